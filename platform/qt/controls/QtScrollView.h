#pragma once

#include <memory>

#include "platform/Controls.h"
#include "platform/Interface.h"

class QScrollArea;

namespace orlamo::qt {

/// Shows the widgets of interface views: as wide as the area, as high as they need. The area never deletes them, and
/// either side may go first. The wheel goes to the behaviour, if there is one; a wheel that scrolled nothing goes on to
/// what surrounds the area. The toolkit knows no elasticity: none is what it always has.
std::shared_ptr<ScrollView> makeScrollView(QScrollArea& area, std::unique_ptr<ScrollViewBehavior> behavior);

}  // namespace orlamo::qt
