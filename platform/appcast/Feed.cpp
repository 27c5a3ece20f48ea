#include "platform/appcast/Feed.h"

#include <QMap>
#include <QStringDecoder>
#include <QXmlStreamReader>
#include <algorithm>

#include "platform/Log.h"
#include "platform/appcast/PlainText.h"

namespace orlamo::appcast {

namespace {

// The name that the format gives to its elements beside those of RSS.
constexpr QStringView formatNamespace = u"http://www.andymatuschak.org/xml-namespaces/sparkle";

constexpr int deepestNesting = 32;
constexpr int mostElements = 20'000;
constexpr std::size_t mostItems = 500;
constexpr qsizetype longestTag = 4096;  // characters; the XML reader's time grows with the square of a tag's attributes
constexpr qsizetype longestVersionText = 64;
constexpr qsizetype longestNotes = 10'000;

/// Where the tag or declaration that starts there ends; quoted values may hold a '>'.
qsizetype endOfTag(QStringView text, qsizetype at) {
    QChar quote;
    for (; at < text.size(); ++at) {
        const QChar character = text[at];
        if (!quote.isNull()) {
            if (character == quote) quote = QChar();
        } else if (character == '"' || character == '\'') {
            quote = character;
        } else if (character == '>') {
            return at;
        }
    }
    return at;
}

/// Whether some tag or declaration is longer than a feed's ever is. Comments and the like may be long.
bool hasOverlongTag(QStringView text) {
    static const struct {
        QStringView start, end;
    } sections[]{{u"<!--", u"-->"}, {u"<![CDATA[", u"]]>"}, {u"<?", u"?>"}};
    for (qsizetype at = text.indexOf('<'); at >= 0; at = text.indexOf('<', at)) {
        const auto* const section = std::ranges::find_if(
            sections, [rest = text.mid(at)](const auto& each) { return rest.startsWith(each.start); });
        if (section == std::end(sections)) {
            const qsizetype end = endOfTag(text, at);
            if (end - at > longestTag) return true;
            at = end;
        } else {
            at = text.indexOf(section->end, at + section->start.size());
            if (at < 0) return false;
        }
    }
    return false;
}

/// What an item says, by the names of its children or of its enclosure's attributes.
using Texts = QMap<QString, QString>;

QString keyOf(QStringView namespaceUri, QStringView name) {
    if (namespaceUri == formatNamespace) return "sparkle:" + name.toString();
    return namespaceUri.isEmpty() ? name.toString() : QString();
}

/// Reads one document: where the reader stands, and what the item being read has so far.
class FeedParser {
public:
    FeedParser(const QString& text, QString host) : reader_(text), host_(std::move(host)) {}

    Feed parse() {
        while (!reader_.atEnd() && feed_.error.isEmpty()) {
            switch (reader_.readNext()) {
                case QXmlStreamReader::DTD:
                    feed_.error = "it has a document type";
                    break;
                case QXmlStreamReader::StartElement:
                    startElement();
                    break;
                case QXmlStreamReader::EndElement:
                    endElement();
                    break;
                case QXmlStreamReader::Characters:
                    if (isInItem() && path_.size() > itemDepth) text_ += reader_.text();
                    break;
                default:
                    break;
            }
        }
        if (reader_.hasError()) feed_.error = reader_.errorString();
        return std::move(feed_);
    }

private:
    static constexpr qsizetype itemDepth = 3;  // rss, channel, item

    bool isInItem() const {
        return path_.size() >= itemDepth && path_[0] == "rss" && path_[1] == "channel" && path_[2] == "item";
    }

    void startElement() {
        path_.push_back(keyOf(reader_.namespaceUri(), reader_.name()));
        if (path_.size() > deepestNesting) return fail("it is nested too deeply");
        if (++elements_ > mostElements) return fail("it has too many elements");
        if (path_.front() != "rss") return fail("it is no RSS feed");
        if (!isInItem()) return;
        if (path_.size() == itemDepth) texts_.clear();
        if (path_.size() != itemDepth + 1) return;
        text_.clear();
        if (path_.back() != "enclosure") return;
        for (const QXmlStreamAttribute& attribute : reader_.attributes()) {
            attributes_.insert(keyOf(attribute.namespaceUri(), attribute.name()), attribute.value().toString());
        }
    }

    void endElement() {
        if (isInItem() && path_.size() == itemDepth + 1 && !texts_.contains(path_.back())) {
            texts_.insert(path_.back(), text_);
        }
        if (isInItem() && path_.size() == itemDepth) endItem();
        path_.pop_back();
    }

    void endItem() {
        if (++items_ > mostItems) return fail("it has too many items");
        const auto text = [this](const QString& key) {
            const QString own = texts_.value(key).trimmed();
            return own.isEmpty() ? attributes_.value(key).trimmed() : own;
        };
        QString versionText = text("sparkle:shortVersionString");
        if (versionText.isEmpty()) versionText = text("sparkle:version");
        const auto version = Version::parse(versionText.toStdString());
        if (version) {
            feed_.items.push_back(
                {.version = *version,
                 .versionText = shownText(versionText, LineEnds::drop, longestVersionText),
                 .channel = text("sparkle:channel"),
                 .notes = shownText(withoutMarkup(texts_.value("description")), LineEnds::keep, longestNotes),
                 .page = page(text("link"))});
        } else {
            logLine("updates: an item of the feed has no version that can be read and is passed over");
        }
        attributes_.clear();
    }

    QUrl page(const QString& link) const {
        const QUrl url(link, QUrl::StrictMode);
        const bool isOwn = url.isValid() && url.scheme() == "https" && url.userInfo().isEmpty() &&
                           !url.host().isEmpty() && url.host() == host_;
        if (!isOwn && !link.isEmpty()) logLine("updates: a link that leads away from the feed's host is dropped");
        return isOwn ? url : QUrl();
    }

    void fail(const char* reason) { feed_.error = reason; }

    QXmlStreamReader reader_;
    QString host_;
    Feed feed_;
    QStringList path_;  // the names of the open elements; an empty one is of a namespace that nobody reads
    Texts texts_;       // of the item being read
    Texts attributes_;  // of its enclosure
    QString text_;      // of its child being read, with what is nested in it
    int elements_ = 0;
    std::size_t items_ = 0;
};

}  // namespace

Feed parseFeed(const QByteArray& bytes, const QString& host) {
    QStringDecoder decode(QStringDecoder::Utf8);
    const QString text = decode(bytes);
    if (decode.hasError()) return {.items = {}, .error = "it is not in UTF-8"};
    if (hasOverlongTag(text)) return {.items = {}, .error = "it has a tag that is too long"};
    return FeedParser(text, host).parse();
}

std::optional<Item> newestItem(const Feed& feed, const std::set<std::string>& channels) {
    const Item* newest = nullptr;
    for (const Item& item : feed.items) {
        if (!item.channel.isEmpty() && !channels.contains(item.channel.toStdString())) continue;
        if (newest == nullptr || item.version > newest->version) newest = &item;
    }
    return newest != nullptr ? std::optional(*newest) : std::nullopt;
}

}  // namespace orlamo::appcast
