#pragma once

#include <QPointF>
#include <memory>

#include "platform/Color.h"
#include "platform/Geometry.h"
#include "platform/Layer.h"
#include "platform/qt/DisplayList.h"

class QColor;
class QPainter;

namespace orlamo {
class View;
}

namespace orlamo::qt {

class TextCache;

QColor toQColor(const Color& color);

/// A position in a widget that is `height` points high, as a view that fills the widget sees it. Qt names a pixel by
/// its upper left corner, a view by its lower left one.
Point toViewPoint(QPointF position, double height, double devicePixelRatio);

/// Fills a rectangle with the layer's background or gradient. The painter's units are points.
void paintLayer(QPainter& painter, const Layer& layer, Size size);

/// Paints views on widgets. One for as many views as like: it keeps what setting their texts has cost.
class ViewPainter {
public:
    ViewPainter();
    ~ViewPainter();

    /// Lets the view draw, and paints its layer and the drawing with the view's upper left corner at the painter's
    /// origin. The painter's units are points; lines stay sharp at any device pixel ratio.
    void paint(QPainter& painter, View& view);

private:
    DisplayList list_;
    std::unique_ptr<TextCache> texts_;
};

}  // namespace orlamo::qt
