#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/appcast/Version.h"

namespace orlamo::appcast {

/// One release that the feed names. The texts are plain, bounded and fit for showing.
struct Item {
    Version version;
    QString versionText;  // as the feed writes it
    QString channel;      // empty: the default one
    QString notes;        // lines; may be empty
    QUrl page;            // https, on the feed's own host; empty when the feed names no such page
};

struct Feed {
    std::vector<Item> items;  // those with a version, as the feed has them
    QString error;            // empty on success, else why it is no feed, for the log
};

/// Reads an RSS 2.0 feed in UTF-8. Refuses, with an error: a document type, more than 32 levels, more than 20,000
/// elements or 500 items, a tag of more than 4096 characters, whatever is not well formed.
Feed parseFeed(const QByteArray& bytes, const QString& host);

/// The item of the greatest version in the default channel and these; the first of several. None without any.
std::optional<Item> newestItem(const Feed& feed, const std::set<std::string>& channels);

}  // namespace orlamo::appcast
