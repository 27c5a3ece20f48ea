#pragma once

#include <QString>
#include <functional>
#include <optional>
#include <set>
#include <string>

#include "platform/appcast/Feed.h"
#include "platform/appcast/FeedReader.h"
#include "platform/appcast/Outcome.h"

namespace orlamo::appcast {

/// How checks are made; only tests have reason to change it.
struct Options {
    Transport transport = Transport::https;
    Limits limits;
};

struct CheckResult {
    Outcome outcome;
    std::optional<Item> item;  // of newVersion
};

/// One check: fetches the feed and compares what it offers with the version that runs. Windows are not its business.
class UpdateCheck {
public:
    using Done = std::function<void(const CheckResult&)>;

    /// `currentVersion` is the program's own; one that is no version is older than any.
    UpdateCheck(const Options& options, std::string currentVersion, std::set<std::string> channels);

    /// Answers once, later; a failure is in the log by then. Destroying the check before cancels it.
    void start(const QUrl& feed, Done done);

private:
    CheckResult result(const FetchResult& fetched, const QString& host) const;

    const std::string currentVersion_;
    const std::set<std::string> channels_;
    FeedReader reader_;
};

}  // namespace orlamo::appcast
