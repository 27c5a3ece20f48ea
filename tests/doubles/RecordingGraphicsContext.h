#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/GraphicsContext.h"

namespace orlamo {

/// Keeps what is drawn, in order, with every coordinate moved to the outermost origin.
class RecordingGraphicsContext : public GraphicsContext {
public:
    struct Fill {
        Path path;
        Color color;
        bool operator==(const Fill&) const = default;
    };
    struct Text {
        std::string text;
        int pointSize = 0;
        Color color;
        Point origin;
        std::size_t fillsBelow = 0;
        bool operator==(const Text&) const = default;
    };

    void fill(const Path& path, const Color& color) override {
        Path moved = path;
        for (Path::Element& element : moved.elements) {
            element.point = absolute(element.point);
            const Point corner = absolute({element.rect.x, element.rect.y});
            if (element.verb == Path::Verb::roundedRect) {
                element.rect.x = corner.x;
                element.rect.y = corner.y;
            }
        }
        fills.push_back({std::move(moved), color});
    }
    void drawText(std::string_view text, int pointSize, const Color& color, Point origin) override {
        texts.push_back({std::string(text), pointSize, color, absolute(origin), fills.size()});
    }
    void pushOrigin(Point origin) override { origins_.push_back(absolute(origin)); }
    void popOrigin() override { origins_.pop_back(); }

    /// The first text of that wording, or null.
    const Text* find(std::string_view wording) const {
        for (const Text& text : texts) {
            if (text.text == wording) return &text;
        }
        return nullptr;
    }
    void clear() {
        fills.clear();
        texts.clear();
    }

    std::vector<Fill> fills;
    std::vector<Text> texts;

private:
    Point absolute(Point point) const { return {point.x + origins_.back().x, point.y + origins_.back().y}; }

    std::vector<Point> origins_{Point{}};
};

}  // namespace orlamo
