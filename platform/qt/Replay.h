#pragma once

class QPainter;
class QRegion;

namespace orlamo::qt {

class DisplayList;
class TextCache;

/// Paints a finished list. The painter's units are points, `scale` device pixels each, and its origin is the upper left
/// corner of a window that is `height` points high. Outlines and baselines land on whole device pixels. Erases nothing,
/// and leaves out what lies outside `part`, in device pixels of that window.
void replay(const DisplayList& list, QPainter& painter, double height, double scale, const QRegion& part,
            TextCache& texts);

}  // namespace orlamo::qt
