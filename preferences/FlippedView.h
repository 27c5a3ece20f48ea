#pragma once

#include "platform/View.h"

namespace orlamo {

/// A view whose contents are laid out from the top.
class FlippedView : public View {
public:
    FlippedView() : View({}) {}

    bool isFlipped() const override { return true; }
};

}  // namespace orlamo
