#include "platform/GraphicsContext.h"

namespace orlamo {

Path& Path::moveTo(Point p) {
    elements.push_back({.verb = Verb::move, .point = p, .rect = {}});
    return *this;
}

Path& Path::lineTo(Point p) {
    elements.push_back({.verb = Verb::line, .point = p, .rect = {}});
    return *this;
}

Path& Path::arc(Point centre, double radius, double startAngle, double endAngle, bool clockwise) {
    elements.push_back({Verb::arc, centre, radius, startAngle, endAngle, clockwise, {}});
    return *this;
}

Path& Path::close() {
    elements.push_back({.verb = Verb::close, .point = {}, .rect = {}});
    return *this;
}

Path Path::roundedRect(Rect rect, double radius) {
    Path path;
    path.elements.push_back({.verb = Verb::roundedRect, .point = {}, .radius = radius, .rect = rect});
    return path;
}

}  // namespace orlamo
