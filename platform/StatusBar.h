#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Service.h"

namespace orlamo {

/// An image resource by name. A template image is drawn in the colour of what surrounds it; only its alpha counts.
struct NamedImage {
    std::string name;  // empty: no image
    bool isTemplate = false;
};

struct MenuItem {
    enum class Kind { entry, separator };
    Kind kind = Kind::entry;
    std::string title;
    std::function<void()> action;
    NamedImage image;

    static MenuItem separatorItem() { return {Kind::separator, {}, {}, {}}; }
};

struct Menu {
    std::vector<MenuItem> items;
};

/// The program's icon in the status area. Gone when destroyed.
class StatusItem {
public:
    virtual ~StatusItem() = default;
    virtual void setImage(const NamedImage& image) = 0;
    /// A press of the icon opens it. Takes a copy.
    virtual void setMenu(const Menu& menu) = 0;
    virtual bool isVisible() const = 0;
    /// Visible: wherever there is a status area, now or later.
    virtual void setVisible(bool visible) = 0;
};

/// The desktop's status area.
class StatusBar : public Service<StatusBar> {
public:
    static constexpr double squareStatusItemLength = -2;

    virtual ~StatusBar() = default;
    static StatusBar& systemStatusBar() { return shared(); }
    /// Invisible until told otherwise. Lengths other than the square one are not used by the program.
    virtual std::unique_ptr<StatusItem> statusItemWithLength(double length) = 0;
};

}  // namespace orlamo
