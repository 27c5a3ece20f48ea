#include "platform/qt/TextCache.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QRawFont>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <utility>

#include "platform/Log.h"

namespace orlamo::qt {

namespace {

constexpr std::size_t generationTexts = 16'384;
constexpr std::size_t generationBytes = 1U << 20;
constexpr int largestPixelSize = 512;

// Characters that common fonts lack, or show as they like, and their equals that fonts-dejavu-core has.
constexpr struct {
    char16_t asked;
    char16_t shown;
} standIns[] = {
    {0xF8FF, 0x25C9},  // a private character, the session menu's heading: a ring with a dot
    {0x2334, 0x2423},  // the space bar: the open box
};

char16_t shownAs(char16_t unit) {
    if (unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || unit == 0x2028 || unit == 0x2029) return u' ';
    for (const auto& standIn : standIns) {
        if (unit == standIn.asked) return standIn.shown;
    }
    return unit;
}

QString printable(std::string_view text) {
    QString result = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    for (QChar& c : result) c = QChar(shownAs(c.unicode()));
    return result;
}

SetText set(std::string_view text, const QFont& font) {
    QTextLayout layout(printable(text), font);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    option.setTextDirection(Qt::LeftToRight);
    layout.setTextOption(option);
    layout.setCacheEnabled(true);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    if (!line.isValid()) return {};
    return {layout.glyphRuns(), line.horizontalAdvance(), line.ascent()};
}

}  // namespace

TextCache::TextCache() : systemFont_(QFontDatabase::systemFont(QFontDatabase::GeneralFont).families()) {
    systemFont_.setWeight(QFont::Normal);
    // The font database names families even where no font is; the boxes that stand in for one have no size.
    const QRawFont font = QRawFont::fromFont(systemFont_);
    if (!font.isValid() || font.pixelSize() <= 0) {
        logLine("text: no fonts are installed; the panel cannot show readable texts (install fonts-dejavu-core)");
    }
}

const TextCache::Face& TextCache::face(int pixelSize) {
    const int size = std::clamp(pixelSize, 1, largestPixelSize);
    const auto found = faces_.find(size);
    if (found != faces_.end()) return found->second;
    QFont font = systemFont_;
    font.setPixelSize(size);
    const QFontMetricsF metrics(font);
    return faces_.emplace(size, Face{font, {metrics.ascent(), metrics.descent()}}).first->second;
}

LineBox TextCache::lineBox(int pixelSize) {
    return face(pixelSize).box;
}

const SetText& TextCache::setText(std::string_view text, int pixelSize) {
    const KeyView key{pixelSize, text};
    if (const auto found = younger_.find(key); found != younger_.end()) return found->second;
    if (const auto found = older_.find(key); found != older_.end()) {
        auto node = older_.extract(found);
        return insert(std::move(node.key()), std::move(node.mapped()));
    }
    return insert({pixelSize, std::string(text)}, set(text, face(pixelSize).font));
}

SetText& TextCache::insert(Key key, SetText text) {
    if (younger_.size() >= generationTexts || youngerBytes_ >= generationBytes) {
        older_ = std::exchange(younger_, {});
        youngerBytes_ = 0;
    }
    youngerBytes_ += key.text.size();
    return younger_.insert_or_assign(std::move(key), std::move(text)).first->second;
}

}  // namespace orlamo::qt
