#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include "platform/Controls.h"
#include "platform/Layer.h"
#include "platform/Service.h"
#include "platform/View.h"

namespace orlamo {

/// A control of a loaded interface file, found there by its object name. Empty before loading and once the view is
/// gone.
template <class C>
using Outlet = std::weak_ptr<C>;

struct OutletBinding {
    std::string_view name;
    std::variant<Outlet<Control>*, Outlet<Button>*, Outlet<CheckBox>*, Outlet<PopUpButton>*, Outlet<Slider>*,
                 Outlet<ColorWell>*, Outlet<TextField>*, Outlet<ImageView>*, Outlet<TableView>*, Outlet<ScrollView>*,
                 Outlet<CollectionView>*>
        target;
};

/// What a control performs: the control's dynamic property "action" in the file holds the name, as in "startAtLogin:".
struct ActionBinding {
    std::string_view name;
    std::function<bool(const Control& sender)> accepts;  // whether the sender is of the kind that the action takes
    std::function<void(Control& sender)> perform;
};

template <class Owner, class Sender>
ActionBinding action(std::string_view name, Owner& owner, void (Owner::*perform)(Sender&)) {
    const auto accepts = [](const Control& sender) {
        return std::is_same_v<Sender, Control> || dynamic_cast<const Sender*>(&sender) != nullptr;
    };
    return {name, accepts, [&owner, perform](Control& sender) { (owner.*perform)(dynamic_cast<Sender&>(sender)); }};
}

/// What a scroll view does with the wheel.
class ScrollViewBehavior {
public:
    virtual ~ScrollViewBehavior() = default;
    /// `delta` in points, y downward.
    virtual void scrollWheel(ScrollView& view, Point delta) { view.scrollBy(delta); }
};

/// A class of the program's own that an interface file may name for a view or a scroll view.
struct InterfaceClass {
    std::string_view name;
    std::variant<std::function<std::unique_ptr<View>()>, std::function<std::unique_ptr<ScrollViewBehavior>()>> make;
};

/// Whose interface a file is.
class InterfaceOwner {
public:
    virtual ~InterfaceOwner() = default;
    virtual std::vector<OutletBinding> outlets() { return {}; }
    virtual std::vector<ActionBinding> actions() { return {}; }
    virtual std::vector<InterfaceClass> classes() { return {}; }
    /// The view is about to come on the screen, or to leave it.
    virtual void viewWillAppear() {}
    virtual void viewWillDisappear() {}
};

class Window;

/// A loaded interface: owns its controls.
class InterfaceView {
public:
    virtual ~InterfaceView() = default;
    /// Points: as in its file, or more where its texts need more.
    virtual Size size() const = 0;

    bool wantsLayer = false;
    Layer layer;               // counts with wantsLayer, from the next showing on
    Window* window = nullptr;  // of which it is the content
};

/// A window as an interface file describes it.
struct WindowDescription {
    std::string title;
    Size contentSize;  // points
    Size minSize;      // points
    unsigned styleMask = 0;
};

/// The interface files among the bundle's resources. Every text in them that is to be translated is a key of the string
/// table.
class InterfaceFiles : public Service<InterfaceFiles> {
public:
    virtual ~InterfaceFiles() = default;

    /// Sets the owner's outlets and wires its actions; the owner must outlive the view. A missing file, outlet or
    /// action is a log line, and the rest works. Never null.
    virtual std::unique_ptr<InterfaceView> load(std::string_view name, InterfaceOwner& owner) = 0;
    virtual WindowDescription window(std::string_view name) = 0;
    virtual std::unique_ptr<Popover> createPopover() = 0;
};

}  // namespace orlamo
