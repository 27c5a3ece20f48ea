#pragma once

class QPainter;

namespace orlamo::qt {

class DisplayList;
class TextCache;

/// Paints a finished list. The painter's units are points, `scale` device pixels each, and its origin is the upper left
/// corner of a window that is `height` points high. Outlines and baselines land on whole device pixels. Erases nothing.
void replay(const DisplayList& list, QPainter& painter, double height, double scale, TextCache& texts);

}  // namespace orlamo::qt
