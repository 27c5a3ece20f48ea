#include "platform/appcast/UpdateCheck.h"

#include <utility>

#include "platform/Log.h"

namespace orlamo::appcast {

namespace {

/// What the program calls itself to the server: a product and its version, if that is fit for a header.
QByteArray userAgent(const std::string& version) {
    return Version::parse(version) && version.find_first_of("\r\n") == std::string::npos
               ? QByteArray::fromStdString("Orlamo/" + version)
               : QByteArray("Orlamo");
}

}  // namespace

UpdateCheck::UpdateCheck(const Options& options, std::string currentVersion, std::set<std::string> channels)
    : currentVersion_(std::move(currentVersion)),
      channels_(std::move(channels)),
      reader_(options.transport, options.limits, userAgent(currentVersion_)) {}

void UpdateCheck::start(const QUrl& feed, Done done) {
    reader_.fetch(feed, [this, host = feed.host(), done = std::move(done)](const FetchResult& fetched) {
        done(result(fetched, host));
    });
}

CheckResult UpdateCheck::result(const FetchResult& fetched, const QString& host) const {
    if (fetched.failure) {
        logLine("updates: the feed could not be read: " + fetched.detail);
        return {.outcome = *fetched.failure, .item = std::nullopt};
    }
    const Feed feed = parseFeed(fetched.body, host);
    if (!feed.error.isEmpty()) {
        logLine("updates: the feed is none: " + feed.error.toStdString());
        return {.outcome = Outcome::unreadable, .item = std::nullopt};
    }
    std::optional<Item> newest = newestItem(feed, channels_);
    const auto current = Version::parse(currentVersion_);
    const bool isNewer = newest && (!current || newest->version > *current);
    if (!isNewer) return {.outcome = Outcome::upToDate, .item = std::nullopt};
    return {.outcome = Outcome::newVersion, .item = std::move(newest)};
}

}  // namespace orlamo::appcast
