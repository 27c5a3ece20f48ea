#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/Geometry.h"
#include "platform/Service.h"

namespace orlamo {

/// Measures UTF-8 texts in the desktop's system font. Layouts measure thousands of texts in a pass, so an adapter
/// answers a text and size it has seen before without setting it again.
class TextMetrics : public Service<TextMetrics> {
public:
    virtual ~TextMetrics() = default;

    /// Width and height, in points, of one line set at `pointSize` points. The height is the font's line height.
    virtual Size measure(std::string_view text, int pointSize) = 0;

    /// The byte offset behind each user-perceived character, ascending; the last one is the text's size.
    virtual std::vector<std::size_t> characterEnds(std::string_view text) = 0;
};

}  // namespace orlamo
