#pragma once

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <cstdlib>

#include "tests/doubles/FakeLog.h"

namespace orlamo {

/// A toolkit without a display, made once for the process.
class QtFixture : public ::testing::Test {
protected:
    QtFixture() {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        static int count = 1;
        static char name[] = "tests";
        static char* arguments[] = {name, nullptr};
        if (qGuiApp == nullptr) new QGuiApplication(count, arguments);
    }

    static void turnEventLoop() { QCoreApplication::processEvents(); }

    FakeLog log;
};

}  // namespace orlamo
