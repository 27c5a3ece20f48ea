#include "platform/appcast/FeedReader.h"

#include <QHostAddress>
#include <QNetworkRequest>
#include <utility>

namespace orlamo::appcast {

namespace {

constexpr qint64 bufferedBytes = 64 << 10;  // what the network may hold before it is read

bool isRedirect(int status) {
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

QNetworkRequest requestFor(const QUrl& url, const QByteArray& userAgent) {
    QNetworkRequest request(url);
    request.setRawHeader("User-Agent", userAgent);
    request.setRawHeader("Accept", "application/rss+xml, application/xml, text/xml");
    request.setRawHeader("Accept-Encoding", "identity");  // what arrives is what is counted
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    return request;
}

}  // namespace

void FeedReader::Deletion::operator()(QNetworkReply* reply) const {
    reply->disconnect();
    reply->abort();
    reply->deleteLater();
}

FeedReader::FeedReader(Transport transport, Limits limits, QByteArray userAgent)
    : transport_(transport), limits_(limits), userAgent_(std::move(userAgent)) {
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
    request(url);
}

bool FeedReader::mayFetch(const QUrl& url) const {
    if (!url.isValid() || url.host().isEmpty() || !url.userInfo().isEmpty()) return false;
    if (url.scheme() == "https") return true;
    return transport_ == Transport::httpsOrLoopback && url.scheme() == "http" && QHostAddress(url.host()).isLoopback();
}

void FeedReader::request(const QUrl& url) {
    connecting_.start(limits_.connecting);
    reply_.reset(network_.get(requestFor(url, userAgent_)));
    QNetworkReply* const reply = reply_.get();
    reply->setReadBufferSize(bufferedBytes);
    QObject::connect(reply, &QNetworkReply::requestSent, &connecting_, &QTimer::stop);
    QObject::connect(reply, &QNetworkReply::metaDataChanged, &total_, [this] { readHeaders(); });
    QObject::connect(reply, &QNetworkReply::readyRead, &total_, [this] { readBody(); });
    QObject::connect(reply, &QNetworkReply::finished, &total_, [this] { replyFinished(); });
}

void FeedReader::readHeaders() {
    connecting_.stop();
    const int status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (isRedirect(status)) return followRedirect();
    if (status != 200) return fail(Outcome::refused, "it answered with status " + std::to_string(status));
    const QByteArray encoding = reply_->rawHeader("Content-Encoding").trimmed().toLower();
    if (!encoding.isEmpty() && encoding != "identity") return fail(Outcome::unreadable, "its answer is encoded");
    if (reply_->header(QNetworkRequest::ContentLengthHeader).toLongLong() > limits_.bytes) {
        return fail(Outcome::tooLarge, "its answer is too large");
    }
}

void FeedReader::followRedirect() {
    const QUrl from = reply_->url();
    const QUrl target = from.resolved(reply_->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl());
    if (++redirects_ > limits_.redirects) return fail(Outcome::tooManyRedirects, "it sends on too often");
    const bool isDowngrade = from.scheme() == "https" && target.scheme() != "https";
    if (isDowngrade || !mayFetch(target)) return fail(Outcome::insecureRedirect, "it sends on to what is not https");
    // The reply that is being read may not go away inside its own signal.
    QTimer::singleShot(0, &total_, [this, target] {
        if (done_) request(target);
    });
    reply_->disconnect(&total_);
}

void FeedReader::readBody() {
    body_ += reply_->readAll();
    if (body_.size() > limits_.bytes) fail(Outcome::tooLarge, "its answer is too large");
}

void FeedReader::replyFinished() {
    const QNetworkReply::NetworkError error = reply_->error();
    if (error == QNetworkReply::SslHandshakeFailedError) {
        return fail(Outcome::untrusted, reply_->errorString().toStdString());
    }
    if (error != QNetworkReply::NoError) return fail(Outcome::unreachable, reply_->errorString().toStdString());
    readBody();
    finish({.failure = std::nullopt, .body = std::move(body_), .detail = {}});
}

void FeedReader::fail(Outcome failure, const std::string& detail) {
    finish({.failure = failure, .body = {}, .detail = detail});
}

void FeedReader::finish(FetchResult result) {
    if (!done_) return;
    connecting_.stop();
    total_.stop();
    reply_.reset();
    // Not now: whoever gets it may destroy this, and the reply with it, inside the reply's own signal.
    QTimer::singleShot(0, &total_, [done = std::exchange(done_, nullptr), result = std::move(result)]() mutable {
        done(std::move(result));
    });
}

}  // namespace orlamo::appcast
