#pragma once

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "core/SystemShortcuts.h"
#include "panel/CanvasView.h"
#include "panel/CanvasWindowController.h"
#include "tests/doubles/FakeDesktop.h"
#include "tests/doubles/RecordingGraphicsContext.h"

namespace orlamo {

/// A panel view in a window of its own, filled by hand.
class PanelFixture : public testing::Test {
protected:
    PanelFixture() {
        appMenuItems.clear();
        menuItemTitles.clear();
        menuItemElements.clear();
        menuItemKeyCodes.clear();
        systemShortcutList.clear();
        systemKeyCombos.clear();
        desktop.defaults.values["isContainsAppleMenu"] = true;
    }

    /// A record with its key code and element, as harvesting leaves it.
    void addItem(const std::string& title, const std::string& modifier = "⌘", const std::string& key = "K",
                 const std::string& glyph = "") {
        appMenuItems.emplace_back(MenuItemRecord{"File", title, modifier, key, glyph});
        menuItemTitles.push_back(title);
        elements.push_back(FakeAccessibility::item(title, key));
        menuItemElements.push_back(FakeAccessibility::reference(elements.back()));
        menuItemKeyCodes.push_back({40, 0});
    }
    void addHeading(const std::string& text) { appMenuItems.emplace_back(text); }
    void addItems(std::int64_t count) {
        for (std::int64_t i = 0; i < count; ++i) addItem("Item " + std::to_string(i));
    }
    void addSystem(const std::string& title, const std::string& modifier = "⌃", const std::string& key = "D",
                   std::int64_t keycode = 2, std::int64_t mask = 0x40000) {
        systemShortcutList.emplace_back(SystemShortcutRecord{title, modifier, key});
        systemKeyCombos.push_back({keycode, mask});
    }
    void addSystems(std::int64_t count) {
        while (count-- > 0) addSystem("Keyboard//Other");
    }

    /// Ends the application's list with its name, puts the view into the window and draws once.
    CanvasView& open(const std::string& name = "Editor") {
        appMenuItems.emplace_back(name);
        const auto system = systemShortcutList;
        const auto combos = systemKeyCombos;
        auto created = CanvasView::initWithFrame({0, 0, 1240, 800});
        systemShortcutList = system;
        systemKeyCombos = combos;
        auto content = std::make_unique<View>(Rect{0, 0, 1240, 800});
        view = static_cast<CanvasView*>(&content->addSubview(std::move(created)));
        window.setContentView(std::move(content));
        window.orderFront();
        draw();
        return *view;
    }
    void draw() {
        context.clear();
        // The view's own coordinates, not those of the window that it fits around itself.
        view->display(context);
    }
    /// A cell's centre in window coordinates.
    Point centreOf(const Rect& cell) const {
        return {view->frame().x + cell.x + cell.width / 2, view->frame().y + cell.y + cell.height / 2};
    }

    FakeDesktop desktop;
    Window window{{100, 100, 1240, 800}, Window::borderless, Window::Backing::buffered, Window::Defer::no};
    CanvasView* view = nullptr;
    RecordingGraphicsContext context;
    std::vector<FakeElementPtr> elements;
};

}  // namespace orlamo
