#pragma once

#include <string_view>
#include <vector>

#include "platform/TextMetrics.h"

namespace orlamo {

/// Every code point is one character, `width` times the point size wide.
class FakeTextMetrics : public TextMetrics {
public:
    Size measure(std::string_view text, int pointSize) override {
        return {static_cast<double>(characterEnds(text).size()) * width * pointSize, 1.2 * pointSize};
    }
    std::vector<std::size_t> characterEnds(std::string_view text) override {
        std::vector<std::size_t> ends;
        for (std::size_t i = 1; i <= text.size(); ++i) {
            const bool continues = i < text.size() && (static_cast<unsigned char>(text[i]) & 0xC0U) == 0x80;
            if (!continues) ends.push_back(i);
        }
        return ends;
    }
    double width = 0.6;

private:
    Installation installation_{*this};
};

}  // namespace orlamo
