#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/Keyboard.h"

namespace orlamo {

/// Prints every symbol as it is unless a legend is set for it.
class FakeKeyboard : public Keyboard {
public:
    std::uint64_t modifierFlags() override {
        ++reads;
        return flags;
    }
    std::string modifierLegend(std::string_view text) const override { return legend(modifierLegends, text); }
    std::string keyLegend(std::string_view text) const override { return legend(keyLegends, text); }

    std::uint64_t flags = EventFlags::noneHeld;
    int reads = 0;
    std::map<std::string, std::string, std::less<>> modifierLegends;
    std::map<std::string, std::string, std::less<>> keyLegends;

private:
    static std::string legend(const std::map<std::string, std::string, std::less<>>& legends, std::string_view text) {
        const auto found = legends.find(text);
        return found == legends.end() ? std::string(text) : found->second;
    }

    Installation installation_{*this};
};

}  // namespace orlamo
