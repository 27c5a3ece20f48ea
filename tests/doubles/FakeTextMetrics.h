#pragma once

#include <string_view>
#include <vector>

#include "platform/TextMetrics.h"

namespace orlamo {

/// Every code point is one character, `characterWidth` times the point size wide.
class FakeTextMetrics : public TextMetrics {
public:
    Size measure(std::string_view text, int pointSize) override {
        ++measurements;
        return {static_cast<double>(ends(text).size()) * characterWidth * pointSize, lineHeight * pointSize};
    }
    std::vector<std::size_t> characterEnds(std::string_view text) override { return ends(text); }

    double characterWidth = 0.6;
    double lineHeight = 1.2;
    int measurements = 0;

private:
    static std::vector<std::size_t> ends(std::string_view text) {
        std::vector<std::size_t> ends;
        for (std::size_t i = 1; i <= text.size(); ++i) {
            const bool continues = i < text.size() && (static_cast<unsigned char>(text[i]) & 0xC0U) == 0x80;
            if (!continues) ends.push_back(i);
        }
        return ends;
    }

    Installation installation_{*this};
};

}  // namespace orlamo
