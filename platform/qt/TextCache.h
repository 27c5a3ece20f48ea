#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/qt/TextPictures.h"

namespace orlamo::qt {

/// One line of text, set. Positions are relative to the line's left end and baseline.
struct SetText {
    QList<QGlyphRun> runs;  // one per font that was needed
    double width = 0;       // points
    double baseline = 0;    // of the runs, below the point they are drawn at
};

/// Height of a line box in points.
struct LineBox {
    double ascent = 0;
    double descent = 0;
    double height() const { return ascent + descent; }
};

/// Texts of the desktop's system font, each set once as long as it stays in use. Shared by measuring and drawing, so
/// that what is drawn is exactly as wide as what was measured. Sizes are logical pixels.
class TextCache {
public:
    /// Needs a QGuiApplication. Without any font installed the log says so, and every text is a row of boxes.
    TextCache();

    /// UTF-8; control characters are set as spaces. Valid until the next call.
    const SetText& setText(std::string_view text, int pixelSize);
    LineBox lineBox(int pixelSize);
    /// For painting: the texts' pictures.
    TextPictures& pictures() { return pictures_; }

private:
    struct Key {
        int pixelSize;
        std::string text;
    };
    struct KeyView {
        int pixelSize;
        std::string_view text;
    };
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(const KeyView& key) const {
            return std::hash<std::string_view>{}(key.text) * 31 + static_cast<std::size_t>(key.pixelSize);
        }
        std::size_t operator()(const Key& key) const { return (*this)(KeyView{key.pixelSize, key.text}); }
    };
    struct Equal {
        using is_transparent = void;
        template <class A, class B>
        bool operator()(const A& a, const B& b) const {
            return a.pixelSize == b.pixelSize && a.text == b.text;
        }
    };
    using Generation = std::unordered_map<Key, SetText, Hash, Equal>;
    struct Face {
        QFont font;
        LineBox box;
    };

    const Face& face(int pixelSize);
    SetText& insert(Key key, SetText text);

    QFont systemFont_;
    std::map<int, Face> faces_;
    // Texts in use move from the older generation to the younger; what is left in the older one is dropped with it.
    Generation younger_;
    Generation older_;
    std::size_t youngerBytes_ = 0;
    TextPictures pictures_;
};

}  // namespace orlamo::qt
