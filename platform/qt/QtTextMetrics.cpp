#include "platform/qt/QtTextMetrics.h"

#include <QString>
#include <QTextBoundaryFinder>
#include <algorithm>

#include "platform/qt/TextCache.h"

namespace orlamo::qt {

namespace {

struct Decoded {
    QString text;
    std::vector<std::size_t> byteEnds;  // per UTF-16 unit, where its character ends in the bytes
};

std::size_t sequenceLength(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead <= 0xDF) return 2;
    if (lead >= 0xE0 && lead <= 0xEF) return 3;
    if (lead >= 0xF0 && lead <= 0xF4) return 4;
    return 0;
}

Decoded decode(std::string_view bytes) {
    Decoded decoded;
    for (std::size_t at = 0; at < bytes.size();) {
        std::size_t length = sequenceLength(static_cast<unsigned char>(bytes[at]));
        QString character;
        if (length > 0 && at + length <= bytes.size()) {
            character = QString::fromUtf8(bytes.data() + at, static_cast<qsizetype>(length));
        }
        const bool isWhole = character.size() == 1 || (character.size() == 2 && character[0].isHighSurrogate());
        if (!isWhole) {
            character = QChar(QChar::ReplacementCharacter);
            length = 1;
        }
        at += length;
        decoded.text += character;
        decoded.byteEnds.insert(decoded.byteEnds.end(), static_cast<std::size_t>(character.size()), at);
    }
    return decoded;
}

bool isPlainAscii(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return c >= ' ' && c < 0x7F; });
}

}  // namespace

Size QtTextMetrics::measure(std::string_view text, int pointSize) {
    return {texts_.setText(text, pointSize).width, texts_.lineBox(pointSize).height()};
}

std::vector<std::size_t> QtTextMetrics::characterEnds(std::string_view text) {
    std::vector<std::size_t> ends;
    if (isPlainAscii(text)) {
        for (std::size_t end = 1; end <= text.size(); ++end) ends.push_back(end);
        return ends;
    }
    const Decoded decoded = decode(text);
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, decoded.text);
    for (auto boundary = finder.toNextBoundary(); boundary > 0; boundary = finder.toNextBoundary()) {
        ends.push_back(decoded.byteEnds[static_cast<std::size_t>(boundary) - 1]);
    }
    return ends;
}

}  // namespace orlamo::qt
