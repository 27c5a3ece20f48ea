#include "platform/qt/TextPictures.h"

#include <algorithm>
#include <functional>

namespace orlamo::qt {

namespace {

// Estimated: 500 shortcuts are 500 titles of 100 by 14 pixels, modifiers and keys, about 4 MB in each colour.
constexpr std::size_t mostBytes = 32U << 20;

QRect colouredPart(const QImage& picture) {
    QRect part;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* const row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        const auto* const end = row + picture.width();
        const auto isColoured = [](QRgb pixel) { return qAlpha(pixel) != 0; };
        const auto* const first = std::find_if(row, end, isColoured);
        if (first == end) continue;
        const auto* last = end - 1;
        while (!isColoured(*last)) --last;
        part |= QRect(QPoint(static_cast<int>(first - row), y), QPoint(static_cast<int>(last - row), y));
    }
    return part;
}

}  // namespace

std::size_t TextPictures::Hash::operator()(const Key& key) const {
    const std::hash<double> number;
    std::size_t hash = std::hash<std::string>{}(key.text);
    for (const double part : {static_cast<double>(key.pixelSize), key.color.red, key.color.green, key.color.alpha}) {
        hash = hash * 31 + number(part);
    }
    return hash;
}

const TextPicture* TextPictures::find(const Key& key) const {
    const auto found = pictures_.find(key);
    return found == pictures_.end() ? nullptr : &found->second;
}

const TextPicture& TextPictures::insert(const Key& key, const QImage& picture, QPoint offset) {
    const QRect part = colouredPart(picture);
    TextPicture cut{part.isEmpty() ? QImage() : picture.copy(part), offset + part.topLeft()};
    const auto bytes = static_cast<std::size_t>(cut.image.sizeInBytes());
    if (bytes_ + bytes > mostBytes) {
        pictures_.clear();
        bytes_ = 0;
    }
    bytes_ += bytes;
    return pictures_.insert_or_assign(key, std::move(cut)).first->second;
}

}  // namespace orlamo::qt
