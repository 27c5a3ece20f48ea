#pragma once

#include "platform/Interface.h"

namespace orlamo {

/// A scroll view that does not scroll by wheel.
class DisablableScrollView : public ScrollViewBehavior {
public:
    void scrollWheel(ScrollView&, Point) override {}
};

}  // namespace orlamo
