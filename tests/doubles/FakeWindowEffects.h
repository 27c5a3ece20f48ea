#pragma once

#include <functional>
#include <vector>

#include "platform/WindowEffects.h"

namespace orlamo {

/// A screen of one function from place to colour; keeps what it was asked for.
class FakeWindowEffects : public WindowEffects {
public:
    bool isComposited() override { return composited; }
    bool canBlurBehind() override { return blurs; }
    void blurBehind(NativeWindow, int, int, int) override { ++blurRequests; }
    std::optional<PixelImage> copyScreen(const PixelRect& area) override {
        copies.push_back(area);
        if (!screen) return std::nullopt;
        PixelImage image{area.width, area.height, {}};
        for (int y = area.y; y < area.y + area.height; ++y) {
            for (int x = area.x; x < area.x + area.width; ++x) image.pixels.push_back(screen(x, y));
        }
        return image;
    }
    std::optional<PixelRect> focusedArea() override { return std::nullopt; }
    void shapeRounded(NativeWindow, int, int, int radius) override { shapes.push_back(radius); }
    void giveFocus(NativeWindow window) override { focused.push_back(window); }
    void introduce(NativeWindow, std::string_view, Listing) override {}

    bool composited = false;
    bool blurs = false;
    std::function<std::uint32_t(int x, int y)> screen;  // 0xffRRGGBB; unset: cannot be read
    int blurRequests = 0;
    std::vector<PixelRect> copies;
    std::vector<int> shapes;
    std::vector<NativeWindow> focused;

private:
    Installation installation_{*this};
};

}  // namespace orlamo
