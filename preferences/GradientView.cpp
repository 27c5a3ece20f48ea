#include "preferences/GradientView.h"

namespace orlamo {

GradientView::GradientView() : View({}), GradientLayer(std::make_shared<orlamo::GradientLayer>()) {
    wantsLayer = true;
}

void GradientView::setFirstColor(const Color& color) {
    firstColor_ = color;
    applyGradient();
}

void GradientView::setSecondColor(const Color& color) {
    secondColor_ = color;
    applyGradient();
}

void GradientView::setIsHorizontal(bool horizontal) {
    isHorizontal_ = horizontal;
    applyGradient();
}

void GradientView::setLayerOpacity(float opacity) {
    layerOpacity_ = opacity;
    applyGradient();
}

bool GradientView::setValueForKey(const Attribute& value, std::string_view key) {
    if (const auto* const color = std::get_if<Color>(&value)) {
        if (key == "firstColor") return setFirstColor(*color), true;
        if (key == "secondColor") return setSecondColor(*color), true;
    }
    if (const auto* const truth = std::get_if<bool>(&value); truth != nullptr && key == "isHorizontal")
        return setIsHorizontal(*truth), true;
    if (const auto* const number = std::get_if<double>(&value); number != nullptr && key == "layerOpacity")
        return setLayerOpacity(static_cast<float>(*number)), true;
    return View::setValueForKey(value, key);
}

void GradientView::awakeFromNib() {
    View::awakeFromNib();
    applyGradient();
}

void GradientView::applyGradient() {
    GradientLayer->colors = {firstColor_, secondColor_};
    GradientLayer->locations = {0.0, 1.0};
    GradientLayer->opacity = layerOpacity_;
    GradientLayer->startPoint = isHorizontal_ ? Point{0.0, 0.5} : Point{0.5, 0.0};
    GradientLayer->endPoint = isHorizontal_ ? Point{1.0, 0.5} : Point{0.5, 1.0};
    layer = GradientLayer;
    setNeedsDisplay(true);
}

}  // namespace orlamo
