#include "platform/appcast/FeedReader.h"

#include <QHostAddress>
#include <utility>

namespace orlamo::appcast {

namespace {

constexpr qint64 bufferedBytes = 64 << 10;  // what the socket may hold before it is read

bool isRedirect(int status) {
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

int portOf(const QUrl& url) {
    return url.port(url.scheme() == "https" ? 443 : 80);
}

QByteArray requestFor(const QUrl& url, const QByteArray& userAgent) {
    const QByteArray path = url.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority | QUrl::RemoveFragment);
    const QByteArray host = url.toEncoded(QUrl::RemoveScheme | QUrl::RemoveUserInfo | QUrl::RemovePath |
                                          QUrl::RemoveQuery | QUrl::RemoveFragment);
    return "GET " + (path.startsWith('/') ? path : "/" + path) + " HTTP/1.1\r\n" +
           "Host: " + host.mid(2) +  // without its two slashes
           "\r\nUser-Agent: " + userAgent +
           "\r\nAccept: application/rss+xml, application/xml, text/xml\r\n"
           "Accept-Encoding: identity\r\n"  // what arrives is what is counted
           "Connection: close\r\n\r\n";
}

}  // namespace

void FeedReader::Deletion::operator()(QSslSocket* socket) const {
    socket->disconnect();
    // Not inside its own signal: it still has to say the rest of what it has begun.
    QTimer::singleShot(0, socket, [socket] {
        socket->abort();
        socket->deleteLater();
    });
}

FeedReader::FeedReader(Transport transport, Limits limits, QByteArray userAgent)
    : transport_(transport), limits_(limits), userAgent_(std::move(userAgent)), answer_(limits.bytes) {
    for (QTimer* const timer : {&connecting_, &total_}) timer->setSingleShot(true);
    QObject::connect(&connecting_, &QTimer::timeout,
                     [this] { fail(Outcome::timedOut, "no connection within the time for it"); });
    QObject::connect(&total_, &QTimer::timeout,
                     [this] { fail(Outcome::timedOut, "no answer within the time for it"); });
}

void FeedReader::fetch(const QUrl& url, Done done) {
    done_ = std::move(done);
    total_.start(limits_.total);
    if (!mayFetch(url)) return fail(Outcome::badFeedAddress, "its address is not https");
    connectTo(url);
}

bool FeedReader::mayFetch(const QUrl& url) const {
    if (!url.isValid() || url.host().isEmpty() || !url.userInfo().isEmpty()) return false;
    if (url.scheme() == "https") return true;
    return transport_ == Transport::httpsOrLoopback && url.scheme() == "http" && QHostAddress(url.host()).isLoopback();
}

void FeedReader::connectTo(const QUrl& url) {
    url_ = url;
    answer_ = HttpAnswer(limits_.bytes);
    connecting_.start(limits_.connecting);
    socket_.reset(new QSslSocket);
    QSslSocket* const socket = socket_.get();
    socket->setReadBufferSize(bufferedBytes);
    socket->setProtocolTag(url.scheme());  // for the user's proxy of that protocol
    const bool isSecure = url.scheme() == "https";
    QObject::connect(socket, isSecure ? &QSslSocket::encrypted : &QSslSocket::connected, &total_,
                     [this] { sendRequest(); });
    QObject::connect(socket, &QSslSocket::readyRead, &total_, [this] { read(); });
    QObject::connect(socket, &QSslSocket::errorOccurred, &total_,
                     [this](QAbstractSocket::SocketError error) { connectionFailed(error); });
    const QString host = url.host(QUrl::FullyEncoded);
    const auto port = static_cast<quint16>(portOf(url));
    if (isSecure) {
        socket->connectToHostEncrypted(host, port);
    } else {
        socket->connectToHost(host, port);
    }
}

void FeedReader::sendRequest() {
    connecting_.stop();
    socket_->write(requestFor(url_, userAgent_));
}

void FeedReader::read() {
    judge(answer_.take(socket_->readAll()));
}

void FeedReader::connectionFailed(QAbstractSocket::SocketError error) {
    const QSslSocket* const socket = socket_.get();
    if (error == QAbstractSocket::RemoteHostClosedError) {
        read();
        if (socket_.get() != socket) return;  // that was the end of it, or a redirect
        if (answer_.end() == HttpAnswer::State::complete) return judge(HttpAnswer::State::complete);
    }
    const bool noTrust = error == QAbstractSocket::SslHandshakeFailedError;
    fail(noTrust ? Outcome::untrusted : Outcome::unreachable, socket->errorString().toStdString());
}

void FeedReader::judge(HttpAnswer::State state) {
    const int status = answer_.status();
    if (state == HttpAnswer::State::broken) return fail(Outcome::unreachable, "its answer makes no sense");
    if (isRedirect(status)) return followRedirect();
    if (status != 0 && status != 200) {
        return fail(Outcome::refused, "it answered with status " + std::to_string(status));
    }
    const QByteArray encoding = answer_.header("content-encoding").toLower();
    if (!encoding.isEmpty() && encoding != "identity") return fail(Outcome::unreadable, "its answer is encoded");
    if (state == HttpAnswer::State::tooLarge) return fail(Outcome::tooLarge, "its answer is too large");
    if (state == HttpAnswer::State::complete) finish({.failure = {}, .body = answer_.body(), .detail = {}});
}

void FeedReader::followRedirect() {
    const QUrl location(QString::fromUtf8(answer_.header("location")), QUrl::StrictMode);
    const QUrl target = location.isEmpty() ? location : url_.resolved(location);
    if (++redirects_ > limits_.redirects) return fail(Outcome::tooManyRedirects, "it sends on too often");
    const bool isDowngrade = url_.scheme() == "https" && target.scheme() != "https";
    if (isDowngrade || !mayFetch(target)) return fail(Outcome::insecureRedirect, "it sends on to what is not https");
    connectTo(target);
}

void FeedReader::fail(Outcome failure, const std::string& detail) {
    finish({.failure = failure, .body = {}, .detail = detail});
}

void FeedReader::finish(FetchResult result) {
    if (!done_) return;
    connecting_.stop();
    total_.stop();
    socket_.reset();
    // Not now: whoever gets it may destroy this while it is still at work.
    QTimer::singleShot(0, &total_, [done = std::exchange(done_, nullptr), result = std::move(result)]() mutable {
        done(std::move(result));
    });
}

}  // namespace orlamo::appcast
