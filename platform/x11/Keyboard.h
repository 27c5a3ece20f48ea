#pragma once

#include "platform/Keyboard.h"
#include "platform/x11/CoreKeyboard.h"
#include "platform/x11/Legends.h"

namespace orlamo::x11 {

class Keyboard final : public orlamo::Keyboard {
public:
    explicit Keyboard(CoreKeyboard& keyboard) : keyboard_(keyboard) {}

    std::uint64_t modifierFlags() override { return keyboard_.modifierFlags(); }
    std::string modifierLegend(std::string_view modifierText) const override {
        return std::string(modifierLegendOf(modifierText));
    }
    std::string keyLegend(std::string_view keyText) const override { return std::string(keyLegendOf(keyText)); }

private:
    CoreKeyboard& keyboard_;
};

}  // namespace orlamo::x11
