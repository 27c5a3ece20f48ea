#pragma once

#include <memory>

#include "platform/Controls.h"

class QWidget;

namespace orlamo::qt {

/// Places the views of a data source's items on the widget, line after line, and makes the widget as high as they
/// need. At most one item is selected. The widget's dynamic property "layout" names its layout when that is no flow
/// layout; the items then stand as in a flow layout of the standard values.
std::shared_ptr<CollectionView> makeCollectionView(QWidget& widget);

}  // namespace orlamo::qt
