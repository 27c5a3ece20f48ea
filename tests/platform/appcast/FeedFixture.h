#pragma once

#include <QApplication>
#include <QNetworkProxy>

#include "tests/platform/appcast/FeedServer.h"
#include "tests/platform/qt/QtFixture.h"

namespace orlamo::appcast {

/// The toolkit without a display, and trust in the tests' own certificates.
class FeedFixture : private OffscreenProgram<QApplication>, public QtFixture {
protected:
    FeedFixture() {
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        QSslConfiguration trusting = QSslConfiguration::defaultConfiguration();
        trusting.addCaCertificates({QSslCertificate(goodCertificate), QSslCertificate(expiredCertificate)});
        QSslConfiguration::setDefaultConfiguration(trusting);
    }
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
