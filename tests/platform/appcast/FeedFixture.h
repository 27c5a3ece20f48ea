#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QNetworkProxy>
#include <QTimer>
#include <chrono>
#include <cstdlib>

#include "tests/doubles/FakeLog.h"
#include "tests/platform/appcast/FeedServer.h"

namespace orlamo::appcast {

/// The toolkit without a display, and trust in the tests' own certificates.
class FeedFixture : public testing::Test {
protected:
    FeedFixture() {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        static int count = 1;
        static char name[] = "tests";
        static char* arguments[] = {name, nullptr};
        if (qApp != nullptr) return;
        new QApplication(count, arguments);
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        QSslConfiguration trusting = QSslConfiguration::defaultConfiguration();
        trusting.addCaCertificates({QSslCertificate(goodCertificate), QSslCertificate(expiredCertificate)});
        QSslConfiguration::setDefaultConfiguration(trusting);
    }

    template <class Condition>
    static void turnEventLoopUntil(Condition condition) {
        QElapsedTimer timer;
        timer.start();
        QTimer pulse;
        pulse.start(10);
        while (!condition() && timer.elapsed() < 2000) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        EXPECT_TRUE(condition()) << "not within two seconds";
    }

    FakeLog log;
};

/// One item; its children beside the version are given as they are written.
inline QByteArray item(const QByteArray& version, const QByteArray& channel = {}, const QByteArray& more = {}) {
    return "<item><sparkle:version>" + version + "</sparkle:version>" +
           (channel.isEmpty() ? "" : "<sparkle:channel>" + channel + "</sparkle:channel>") + more + "</item>";
}

inline QByteArray feed(const QList<QByteArray>& items) {
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?><rss version=\"2.0\" "
           "xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\"><channel><title>Feed</title>" +
           items.join() + "</channel></rss>";
}

}  // namespace orlamo::appcast
