#pragma once

#include <QByteArray>
#include <QSslSocket>
#include <QTimer>
#include <QUrl>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/appcast/HttpAnswer.h"
#include "platform/appcast/Outcome.h"

namespace orlamo::appcast {

/// How far a feed's server is trusted with this program's time and memory.
struct Limits {
    std::chrono::milliseconds connecting{10'000};  // until a server has the request, anew after each redirect
    std::chrono::milliseconds total{30'000};
    qint64 bytes = qint64{1} << 20;
    int redirects = 3;
};

/// Which addresses may be fetched. Loopback: https, and http to this machine, for a feed that a test plays.
enum class Transport { https, httpsOrLoopback };

struct FetchResult {
    std::optional<Outcome> failure;
    QByteArray body;     // empty after a failure
    std::string detail;  // of a failure, for the log
};

/// Fetches one document over the network without blocking the caller. Sends no cookies, no referrer, no credentials,
/// and keeps nothing.
class FeedReader {
public:
    using Done = std::function<void(FetchResult)>;

    FeedReader(Transport transport, Limits limits, QByteArray userAgent);

    /// Answers once, later, from the event loop; the reader may be destroyed then. Destroying it before cancels. A
    /// reader fetches once.
    void fetch(const QUrl& url, Done done);

private:
    struct Deletion {
        void operator()(QSslSocket* socket) const;
    };

    bool mayFetch(const QUrl& url) const;
    void connectTo(const QUrl& url);
    void sendRequest();
    void read();
    void connectionFailed(QAbstractSocket::SocketError error);
    void judge(HttpAnswer::State state);
    void followRedirect();
    void fail(Outcome failure, const std::string& detail);
    void finish(FetchResult result);

    const Transport transport_;
    const Limits limits_;
    const QByteArray userAgent_;
    Done done_;
    QTimer connecting_;
    QTimer total_;
    QUrl url_;  // that is being fetched
    int redirects_ = 0;
    HttpAnswer answer_;
    std::unique_ptr<QSslSocket, Deletion> socket_;
};

}  // namespace orlamo::appcast
