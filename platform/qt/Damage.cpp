#include "platform/qt/Damage.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "platform/qt/TextCache.h"

namespace orlamo::qt {

namespace {

constexpr std::size_t mostRectangles = 64;

Rect boxOf(const Path& path) {
    double left = HUGE_VAL;
    double bottom = HUGE_VAL;
    double right = -HUGE_VAL;
    double top = -HUGE_VAL;
    const auto include = [&](double x, double y, double reach) {
        left = std::min(left, x - reach);
        right = std::max(right, x + reach);
        bottom = std::min(bottom, y - reach);
        top = std::max(top, y + reach);
    };
    for (const Path::Element& element : path.elements) {
        if (element.verb == Path::Verb::roundedRect) {
            include(element.rect.x, element.rect.y, 0);
            include(element.rect.maxX(), element.rect.maxY(), 0);
        } else if (element.verb != Path::Verb::close) {
            include(element.point.x, element.point.y, element.radius);
        }
    }
    return {left, bottom, right - left, top - bottom};
}

// Glyphs reach beyond their line box: slanted ones, marks, and those of another font.
Rect boxOf(std::string_view text, const DisplayList::Item& item, TextCache& texts) {
    const double reach = item.pointSize;
    return {item.origin.x - reach, item.origin.y - reach, texts.setText(text, item.pointSize).width + 2 * reach,
            texts.lineBox(item.pointSize).height() + 2 * reach};
}

bool drawsTheSame(const DisplayList& a, const DisplayList::Item& x, const DisplayList& b, const DisplayList::Item& y) {
    return x.pointSize == y.pointSize && x.color == y.color && x.origin == y.origin && a.origin(x) == b.origin(y) &&
           a.text(x) == b.text(y) && x.path == y.path;
}

}  // namespace

QRect pixelsOf(const DisplayList& list, const DisplayList::Item& item, double height, double scale, TextCache& texts) {
    const Rect box = item.path.elements.empty() ? boxOf(list.text(item), item, texts) : boxOf(item.path);
    const Point origin = list.origin(item);
    const double left = (origin.x + box.x) * scale;
    const double top = (height - origin.y - box.maxY()) * scale;
    // One pixel more for rounding on either side.
    return QRectF(left, top, box.width * scale, box.height * scale).toAlignedRect().adjusted(-1, -1, 1, 1);
}

std::optional<QRegion> damage(const DisplayList& before, const DisplayList& after, double height, double scale,
                              TextCache& texts) {
    const auto& old = before.items();
    const auto& young = after.items();
    std::vector<QRect> parts;
    const auto add = [&](const DisplayList& list, const DisplayList::Item& item) {
        const QRect pixels = pixelsOf(list, item, height, scale, texts);
        if (!parts.empty() && parts.back().intersects(pixels)) {
            parts.back() |= pixels;
        } else {
            parts.push_back(pixels);
        }
    };
    const auto same = [&](std::size_t i, std::size_t j) {
        return i < old.size() && j < young.size() && drawsTheSame(before, old[i], after, young[j]);
    };
    // What is matched keeps its order, so whatever is left unmatched is all that can have changed.
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < old.size() || j < young.size()) {
        if (parts.size() > mostRectangles) return std::nullopt;
        if (same(i, j)) {
            ++i;
            ++j;
        } else if (same(i + 1, j)) {
            add(before, old[i++]);
        } else if (same(i, j + 1)) {
            add(after, young[j++]);
        } else {
            if (i < old.size()) add(before, old[i++]);
            if (j < young.size()) add(after, young[j++]);
        }
    }
    QRegion result;
    for (const QRect& part : parts) result += part;
    return result;
}

}  // namespace orlamo::qt
