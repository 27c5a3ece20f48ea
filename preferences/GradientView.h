#pragma once

#include <memory>

#include "platform/View.h"

namespace orlamo {

/// A view filled with a gradient of two colours, left to right or bottom to top. Interface files set the properties.
class GradientView : public View {
public:
    GradientView();

    const std::shared_ptr<orlamo::GradientLayer> GradientLayer;

    Color firstColor() const { return firstColor_; }
    Color secondColor() const { return secondColor_; }
    bool isHorizontal() const { return isHorizontal_; }
    float layerOpacity() const { return layerOpacity_; }
    void setFirstColor(const Color& color);
    void setSecondColor(const Color& color);
    void setIsHorizontal(bool horizontal);
    void setLayerOpacity(float opacity);

    bool setValueForKey(const Attribute& value, std::string_view key) override;
    void awakeFromNib() override;

private:
    void applyGradient();

    Color firstColor_ = Color::clearColor();
    Color secondColor_ = Color::clearColor();
    bool isHorizontal_ = true;
    float layerOpacity_ = 1.0F;
};

}  // namespace orlamo
