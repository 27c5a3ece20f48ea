#pragma once

#include <optional>

#include "platform/Color.h"
#include "platform/View.h"

namespace orlamo {

/// A view that shows a material behind its subviews: the host of its window paints it, blurred where it can.
/// The numbers are those of the platform this toolkit follows.
class VisualEffectView : public View {
public:
    enum class Material { sheet = 11, fullScreenUI = 15 };
    enum class State { followsWindow = 0, active = 1 };
    enum class BlendingMode { behindWindow = 0, withinWindow = 1 };

    /// What is left of the material: a rounded rectangle filled with `color`. Only its alpha counts. It stretches
    /// with the view, its corners keep their radius.
    struct MaskImage {
        Size size;
        double cornerRadius = 0;
        Color color;
        bool flipped = false;
    };

    explicit VisualEffectView(Rect frame) : View(frame) {}

    Material material = Material::sheet;
    State state = State::followsWindow;
    BlendingMode blendingMode = BlendingMode::behindWindow;
    std::optional<MaskImage> maskImage;
};

}  // namespace orlamo
