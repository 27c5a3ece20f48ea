// Lists of shortcuts through the panel's layout and drawing, the pointer and a press.
#include <array>
#include <cmath>

#include "core/SystemShortcuts.h"
#include "panel/CanvasView.h"
#include "platform/Window.h"
#include "tests/doubles/FakeDesktop.h"
#include "tests/doubles/RecordingGraphicsContext.h"
#include "tests/fuzz/FuzzInput.h"

namespace orlamo::fuzz {
namespace {

std::optional<std::string> makeText(FuzzInput& input) {
    constexpr const char* longTitle = "A rather long title that no column has the place for";
    constexpr std::array usual{
        "", "space", "⌘", "⇧⌘", "fn", "K", "SPACE", "Edit", "Edit/Find", "Keyboard//Move//On", "100", longTitle};
    const std::size_t choice = input.below(usual.size() + 2);
    if (choice < usual.size()) return usual[choice];
    return choice == usual.size() ? std::nullopt : std::optional(std::string(input.line()));
}

void addApplicationEntry(FuzzInput& input) {
    if (input.below(4) == 1) return void(appMenuItems.emplace_back(makeText(input).value_or("")));
    const std::string title = makeText(input).value_or("Item");
    const auto path = input.below(8) == 1 ? makeText(input) : "File";
    appMenuItems.emplace_back(MenuItemRecord{path, title, makeText(input), makeText(input), makeText(input)});
    if (input.below(16) != 1) menuItemKeyCodes.push_back({static_cast<std::int64_t>(input.byte()), 0});
    if (input.below(16) == 1) return;
    menuItemTitles.push_back(title);
    menuItemElements.push_back(FakeAccessibility::reference(FakeAccessibility::item(title, "K")));
}

void addSystemEntry(FuzzInput& input) {
    if (input.below(4) == 1) return void(systemShortcutList.emplace_back(makeText(input).value_or("")));
    systemShortcutList.emplace_back(SystemShortcutRecord{makeText(input), makeText(input), makeText(input)});
    if (input.below(16) == 1) return;
    systemKeyCombos.push_back(
        {static_cast<std::int64_t>(input.number(3)) - 1, static_cast<std::int64_t>(input.byte())});
}

bool isFinite(const Rect& rect) {
    return std::isfinite(rect.x) && std::isfinite(rect.y) && std::isfinite(rect.width) && std::isfinite(rect.height);
}

void check(const RecordingGraphicsContext& context) {
    constexpr double far = 100'000;
    const auto isNear = [](Point point) { return std::abs(point.x) < far && std::abs(point.y) < far; };
    for (const auto& text : context.texts) {
        require(isNear(text.origin) && text.pointSize > 0 && text.pointSize < 100, "a text stands somewhere");
    }
    for (const auto& fill : context.fills) {
        for (const auto& element : fill.path.elements) {
            require(isNear(element.point) && isFinite(element.rect), "a shape stands somewhere");
        }
    }
}

void check(const CanvasView& view) {
    std::vector<Rect> cells;
    for (const auto& cell : view.currentShortM) cells.push_back(cell.rect);
    for (const auto& cell : view.shortcutsM) cells.push_back(cell.rect);
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const Rect& a = cells[i];
        require(isFinite(a) && a.width > 0 && a.height > 0, "a cell has a size");
        for (std::size_t j = 0; j < i; ++j) {
            const Rect& b = cells[j];
            const bool areApart = a.maxX() <= b.x || b.maxX() <= a.x || a.maxY() <= b.y || b.maxY() <= a.y;
            require(areApart, "cells lie beside each other");
        }
    }
}

}  // namespace

void panel(std::string_view bytes) {
    FuzzInput input(bytes);
    FakeDesktop desktop;
    desktop.defaults.values["isContainsAppleMenu"] = input.flag();
    desktop.accessibility.sessionMenu = input.flag();
    desktop.keyboard.flags = EventFlags::noneHeld | (input.number(1) << 16);
    appMenuItems.clear();
    menuItemTitles.clear();
    menuItemElements.clear();
    menuItemKeyCodes.clear();
    for (std::size_t count = input.below(256); count > 0 && !input.isEmpty(); --count) addApplicationEntry(input);
    auto created = CanvasView::initWithFrame({0, 0, 1240, 800});
    systemShortcutList.clear();
    systemKeyCombos.clear();
    for (std::size_t count = input.below(64); count > 0 && !input.isEmpty(); --count) addSystemEntry(input);

    Window window{{100, 100, 1240, 800}, Window::borderless, Window::Backing::buffered, Window::Defer::no};
    auto content = std::make_unique<View>(Rect{0, 0, 1240, 800});
    auto& view = static_cast<CanvasView&>(content->addSubview(std::move(created)));
    window.setContentView(std::move(content));
    window.orderFront();
    RecordingGraphicsContext context;
    for (int pass = 0; pass < 3; ++pass) {
        context.clear();
        view.display(context);
        check(context);
        check(view);
        const Size size = window.frame().size();
        require(size.width > 0 && size.width < 100'000 && size.height > 0 && size.height < 100'000,
                "the window has a size");
        window.pointerMoved({static_cast<double>(input.number(2) % 2000), static_cast<double>(input.byte()) * 4});
    }
    if (!view.currentShortM.empty()) {
        const auto cell =
            view.currentShortM[input.below(view.currentShortM.size() % 256 + 1) % view.currentShortM.size()];
        window.pointerPressed(
            {view.frame().x + cell.rect.x + cell.rect.width / 2, view.frame().y + cell.rect.y + cell.rect.height / 2});
        require(desktop.accessibility.presses.size() <= 1, "one press presses one item");
        for (const auto& pressed : desktop.accessibility.presses) {
            require(pressed->attributes["AXTitle"] == AXValue(cell.title), "the item pressed is the one that is shown");
        }
        require(desktop.poster.posted.empty(), "an application's cell types nothing");
    }
    desktop.runLoop.advance(1);
}

}  // namespace orlamo::fuzz
