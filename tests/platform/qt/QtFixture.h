#pragma once

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTemporaryFile>
#include <QTimer>

#include "tests/doubles/FakeLog.h"

namespace orlamo {

/// A toolkit without a display, made once for the process: of the kind that is asked for first. It has the screen
/// "main", and right of it "side", of 800 by 500 points at a scale of 1.5.
template <class Program>
struct OffscreenProgram {
    OffscreenProgram() {
        if (qGuiApp != nullptr) return;
        QTemporaryFile screens;
        if (screens.open()) {
            screens.write(R"({"screens": [
                {"name": "main", "x": 0, "y": 0, "width": 800, "height": 800,
                 "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
                {"name": "side", "x": 800, "y": 0, "width": 1200, "height": 750,
                 "logicalDpi": 144, "logicalBaseDpi": 96, "dpr": 1}]})");
            screens.flush();
        }
        qputenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + screens.fileName()).toUtf8());
        static int count = 1;
        static char name[] = "tests";
        static char* arguments[] = {name, nullptr};
        new Program(count, arguments);
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
    static void turnEventLoopFor(double seconds) {
        bool isOver = false;
        QTimer::singleShot(static_cast<int>(seconds * 1000), [&] { isOver = true; });
        turnEventLoopUntil([&] { return isOver; });
    }

    FakeLog log;
};

}  // namespace orlamo
