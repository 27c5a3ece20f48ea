#pragma once

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTimer>
#include <cstdlib>

#include "tests/doubles/FakeLog.h"

namespace orlamo {

/// A toolkit without a display, made once for the process: of the kind that is asked for first.
template <class Program>
struct OffscreenProgram {
    OffscreenProgram() {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        static int count = 1;
        static char name[] = "tests";
        static char* arguments[] = {name, nullptr};
        if (qGuiApp == nullptr) new Program(count, arguments);
    }
};

class QtFixture : private OffscreenProgram<QGuiApplication>, public ::testing::Test {
protected:
    static void turnEventLoop() { QCoreApplication::processEvents(); }
    template <class Condition>
    static void turnEventLoopUntil(Condition condition) {
        QElapsedTimer timer;
        timer.start();
        QTimer pulse;
        pulse.start(10);
        while (!condition() && timer.elapsed() < 5000) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        EXPECT_TRUE(condition()) << "not within five seconds";
    }

    FakeLog log;
};

}  // namespace orlamo
