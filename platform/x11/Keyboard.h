#pragma once

#include <utility>

#include "platform/Keyboard.h"
#include "platform/x11/CoreKeyboard.h"
#include "platform/x11/Legends.h"

namespace orlamo::x11 {

class Keyboard final : public orlamo::Keyboard {
public:
    /// `ctrl` is the name of the Ctrl key in the language of the program's texts, as other programs write it too.
    Keyboard(CoreKeyboard& keyboard, std::string ctrl) : keyboard_(keyboard), ctrl_(std::move(ctrl)) {}

    std::uint64_t modifierFlags() override { return keyboard_.modifierFlags(); }
    std::string modifierLegend(std::string_view modifierText) const override {
        return modifierLegendOf(modifierText, ctrl_);
    }
    std::string keyLegend(std::string_view keyText) const override { return std::string(keyLegendOf(keyText)); }

private:
    CoreKeyboard& keyboard_;
    std::string ctrl_;
};

}  // namespace orlamo::x11
