#pragma once

#include "platform/TextMetrics.h"

namespace orlamo::qt {

class TextCache;

/// Measures what `texts` sets.
class QtTextMetrics final : public TextMetrics {
public:
    explicit QtTextMetrics(TextCache& texts) : texts_(texts) {}

    Size measure(std::string_view text, int pointSize) override;
    /// Grapheme clusters. A byte that is not UTF-8 is a character of its own.
    std::vector<std::size_t> characterEnds(std::string_view text) override;

private:
    TextCache& texts_;
};

}  // namespace orlamo::qt
