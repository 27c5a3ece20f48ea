#pragma once

#include <memory>

#include "platform/Interface.h"

class QWidget;

namespace orlamo::qt {

/// The dynamic property that, when true, makes a plain widget a collection view.
inline constexpr const char* collectionViewProperty = "isCollectionView";

/// The control over a widget, of the kind that its class stands for; a plain Control when it stands for none.
/// `behavior` is a scroll view's, or null.
std::shared_ptr<Control> makeControl(QWidget& widget, std::unique_ptr<ScrollViewBehavior> behavior);

}  // namespace orlamo::qt
