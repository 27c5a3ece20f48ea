#pragma once

#include <QImage>
#include <QPoint>
#include <cstddef>
#include <string>
#include <unordered_map>

#include "platform/Color.h"

namespace orlamo::qt {

/// A text as it was painted once, cut to what it coloured; null when it coloured nothing.
struct TextPicture {
    QImage image;   // premultiplied, in device pixels
    QPoint offset;  // of its upper left corner from the pen, in device pixels
};

/// Painted texts. Measured: laying pictures down, a pass of 200 cells takes about a third of its time glyph by glyph,
/// and the panel paints the same few hundred texts at every change of the held modifiers. Bounded; what is dropped is
/// painted again when needed.
class TextPictures {
public:
    struct Key {
        std::string text;
        int pixelSize = 0;
        Color color;
        double scale = 1;  // device pixels per point
        bool operator==(const Key&) const = default;
    };

    /// Null when it is not kept. Valid until the next insert.
    const TextPicture* find(const Key& key) const;
    /// Cuts the picture and keeps it.
    const TextPicture& insert(const Key& key, const QImage& picture, QPoint offset);

private:
    struct Hash {
        std::size_t operator()(const Key& key) const;
    };

    std::unordered_map<Key, TextPicture, Hash> pictures_;
    std::size_t bytes_ = 0;
};

}  // namespace orlamo::qt
