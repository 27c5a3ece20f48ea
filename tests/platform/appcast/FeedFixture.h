#pragma once

#include <QApplication>
#include <QFile>
#include <QNetworkProxy>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTcpSocket>
#include <functional>
#include <memory>

#include "tests/platform/qt/QtFixture.h"

namespace orlamo::appcast {

/// The key and the certificate of the server.
inline QByteArray identity() {
    QFile file(ORLAMO_SERVER_IDENTITY);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

enum class Speaks { http, https };

/// Plays a feed's server on loopback, in the test's own event loop.
class FeedServer {
public:
    /// Called with each request's head; writes to the socket and closes it, or leaves it as it is.
    using Answer = std::function<void(QTcpSocket&, const QByteArray& request)>;

    FeedServer(Speaks speaks, Answer answer) : answer_(std::move(answer)), speaks_(speaks) {
        if (speaks == Speaks::http) {
            server_ = std::make_unique<QTcpServer>();
        } else {
            auto secure = std::make_unique<QSslServer>();
            QSslConfiguration configuration;
            configuration.setLocalCertificate(QSslCertificate(identity()));
            configuration.setPrivateKey(QSslKey(identity(), QSsl::Ec));
            secure->setSslConfiguration(configuration);
            server_ = std::move(secure);
        }
        QObject::connect(server_.get(), &QTcpServer::pendingConnectionAvailable, [this] { accept(); });
        server_->listen(QHostAddress::LocalHost);
    }

    QUrl url(const QString& path = "/feed") const {
        return QString("%1://127.0.0.1:%2%3")
            .arg(speaks_ == Speaks::http ? "http" : "https")
            .arg(server_->serverPort())
            .arg(path);
    }

    QList<QByteArray> requests;
    int connections = 0;  // that are open

private:
    void accept() {
        while (QTcpSocket* const socket = server_->nextPendingConnection()) {
            ++connections;
            QObject::connect(socket, &QTcpSocket::disconnected, socket, [this, socket] {
                --connections;
                socket->deleteLater();
            });
            const auto read = [this, socket] {
                if (!socket->peek(1 << 16).contains("\r\n\r\n")) return;
                requests.push_back(socket->readAll());
                answer_(*socket, requests.back());
            };
            QObject::connect(socket, &QTcpSocket::readyRead, socket, read);
            read();
        }
    }

    Answer answer_;
    Speaks speaks_;
    std::unique_ptr<QTcpServer> server_;
};

/// The whole answer with these header lines and this body.
inline QByteArray httpAnswer(const QByteArray& body, const QByteArray& status = "200 OK",
                             const QByteArray& headers = {}) {
    return "HTTP/1.1 " + status + "\r\n" + headers + "Content-Length: " + QByteArray::number(body.size()) +
           "\r\nConnection: close\r\n\r\n" + body;
}

/// Says it and hangs up.
inline FeedServer::Answer says(const QByteArray& text) {
    return [text](QTcpSocket& socket, const QByteArray&) {
        socket.write(text);
        socket.disconnectFromHost();
    };
}

/// Says the beginning, then the rest again and again, up to 1 GB, as long as somebody listens.
inline FeedServer::Answer saysWithoutEnd(const QByteArray& beginning, const QByteArray& rest) {
    return [beginning, rest](QTcpSocket& socket, const QByteArray&) {
        const auto left = std::make_shared<qint64>(qint64{1} << 30);
        const auto more = [&socket, rest, left] {
            while (*left > 0 && socket.bytesToWrite() < (64 << 10)) *left -= socket.write(rest);
        };
        QObject::connect(&socket, &QTcpSocket::bytesWritten, &socket, more);
        socket.write(beginning);
        more();
    };
}

/// The toolkit without a display, and trust in the server's certificate.
class FeedFixture : private OffscreenProgram<QApplication>, public QtFixture {
protected:
    FeedFixture() {
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        QSslConfiguration trusting = QSslConfiguration::defaultConfiguration();
        trusting.addCaCertificate(QSslCertificate(identity()));
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
