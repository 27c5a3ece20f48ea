#include "tests/panel/PanelFixture.h"

namespace orlamo {
namespace {

using testing::ElementsAre;

class CanvasViewDrawing : public PanelFixture {
protected:
    Color colorOf(const std::string& text) const {
        const auto* const found = context.find(text);
        return found != nullptr ? found->color : Color::clearColor();
    }
    std::vector<Rect> hoverFills() const {
        std::vector<Rect> rects;
        for (const auto& fill : context.fills) {
            if (fill.color != Color::systemBlueColor()) continue;
            rects.push_back(fill.path.elements.at(0).rect);
            EXPECT_EQ(fill.path, Path::roundedRect(rects.back(), 5));
        }
        return rects;
    }
};

TEST_F(CanvasViewDrawing, ACellShowsWhatTheKeyboardPrintsUpTo50AndFrom60AndItsTitleFrom85) {
    desktop.keyboard.modifierLegends["⌘"] = "Ctrl";
    desktop.keyboard.keyLegends["F13"] = "PrtSc";
    addItem("Shoot", "⌘", "F13");
    addItem("Delete", "⌘", "", "23");
    open();
    const Rect cell = view->currentShortM.at(0).rect;
    EXPECT_EQ(context.find("Ctrl")->origin, (Point{cell.x - static_cast<int>(4 * 0.6 * 14) + 50, cell.y + 2}));
    EXPECT_EQ(context.find("PrtSc")->origin, (Point{cell.x + 60, cell.y + 2}));
    EXPECT_EQ(context.find("Shoot")->origin, (Point{cell.x + 85, cell.y + 2}));
    EXPECT_EQ(context.find("Shoot")->pointSize, 14);
    EXPECT_EQ(view->currentShortM.at(0).keyString, "F13") << "records keep the symbols";
    EXPECT_NE(context.find("⌫"), nullptr) << "a glyph stands in for a missing character";
    EXPECT_EQ(view->currentShortM.at(1).keyString, "⌫");
}

TEST_F(CanvasViewDrawing, ExactlyTheCellsWhoseModifiersAreHeldTurnTeal) {
    addItem("Plain", "⌘", "P");
    addItem("Shifted", "⇧⌘", "P");
    addItem("Function", "fn", "P");
    addSystem("Keyboard//Dock", "⇧⌘", "D", 2, 0x120000);
    open();
    EXPECT_EQ(colorOf("Function"), Color::systemTealColor()) << "nothing is held";
    desktop.keyboard.flags = EventFlags::shift | EventFlags::command;
    draw();
    EXPECT_EQ(colorOf("Shifted"), Color::systemTealColor());
    EXPECT_EQ(colorOf("Dock"), Color::systemTealColor());
    EXPECT_EQ(colorOf("Plain"), Color::white(1));
    EXPECT_EQ(colorOf("Function"), Color::white(1));
}

TEST_F(CanvasViewDrawing, TheTitleBarsStandAboveTheirAreas) {
    addItem("Save");
    addSystem("Keyboard//Dock");
    desktop.bundle.strings["System"] = "System!";
    open();
    // One row of 30: w1 = 33 + 80, s1 = 33 + 90; the application's edge is 113, the bars reach 10 further.
    const Rect cell = view->currentShortM.at(0).rect;
    const double top = cell.y + 30;
    const auto corner = [&](std::size_t bar) { return context.fills.at(bar).path.elements; };
    EXPECT_EQ(corner(0)[1].point, (Point{5, top + 15 + 5})) << "lower left, half a row above the cells";
    EXPECT_EQ(corner(0)[3].point, (Point{113 + 10 - 5, top + 60 - 5})) << "upper right, two rows above";
    EXPECT_EQ(corner(1)[1].point, (Point{113 + 70 + 5, top + 15 + 5}));
    EXPECT_EQ(corner(1)[3].point, (Point{113 + 70 + 123 + 10 - 5, top + 60 - 5}));
    EXPECT_EQ(context.fills[0].color, Color::white(0.1));
    EXPECT_DOUBLE_EQ(context.find("Editor")->origin.x, 113 / 2 - 6 * 0.6 * 19 / 2);
    EXPECT_DOUBLE_EQ(context.find("Editor")->origin.y, top + 37.5 - 1.2 * 19 / 2);
    EXPECT_DOUBLE_EQ(context.find("System!")->origin.x, 183 + 133 / 2 - 7 * 0.6 * 19 / 2);
    EXPECT_DOUBLE_EQ(context.find("System!")->origin.y, context.find("Editor")->origin.y);
    for (const char* const title : {"Editor", "System!"}) EXPECT_EQ(context.find(title)->pointSize, 17);
    for (const std::int64_t more : {40, 79}) {
        addItems(more);
        open();
        const auto end = context.fills.at(0).path.elements[3].point.x + 5;
        EXPECT_EQ(end, view->currentShortM.back().rect.maxX()) << "above several columns and in small type as well";
    }
}

TEST_F(CanvasViewDrawing, ABarIsFiveArcsClockwiseAndTheSystemsKeepsItsWidthTurnedPositiveWithoutEntries) {
    addItem("Save");
    open();
    using Angles = std::pair<double, double>;
    std::vector<Angles> angles;
    for (const auto& element : context.fills.at(0).path.elements) {
        if (element.verb != Path::Verb::arc) continue;
        EXPECT_TRUE(element.clockwise);
        EXPECT_EQ(element.radius, 5);
        angles.emplace_back(element.startAngle, element.endAngle);
    }
    EXPECT_EQ(context.fills.at(0).path.elements.back().verb, Path::Verb::close);
    EXPECT_THAT(angles,
                ElementsAre(Angles{-50, -90}, Angles{-90, -180}, Angles{180, 90}, Angles{90, 0}, Angles{0, -50}));
    const auto& elements = context.fills.at(1).path.elements;
    const double x1 = 113 + 70;
    EXPECT_EQ(elements[1].point.x, x1 + 5);
    EXPECT_EQ(elements[3].point.x, x1 + 60 - 5) << "|-70 + 10| wide";
    EXPECT_NE(context.find("System"), nullptr);
}

TEST_F(CanvasViewDrawing, AMenuHeadingIsABarAndASubmenuHeadingATriangle) {
    desktop.bundle.strings["Find"] = "Suchen";
    addHeading("Edit");
    addHeading("Edit/Find/Again");
    addItem("Next");
    addHeading("Edit//Odd");
    open();
    EXPECT_EQ(context.find("/Odd"), nullptr);
    const double y = view->currentShortM.at(0).rect.y;
    EXPECT_EQ(context.find("Edit")->pointSize, 16);
    EXPECT_EQ(context.find("Edit")->fillsBelow, 3U) << "two title bars and its own";
    EXPECT_EQ(context.find("Edit")->origin, (Point{20, y + 60 + 1}));
    const auto& bar = context.fills.at(2).path.elements;
    EXPECT_EQ(bar[1].point, (Point{5, y + 60 + 5}));
    EXPECT_EQ(bar[3].point.y, y + 60 + 29 - 5) << "a point less than the row";
    EXPECT_EQ(context.find("Suchen")->color, Color::white(0.5));
    EXPECT_EQ(context.find("Suchen")->origin, (Point{27, y + 30}));
    Path triangle;
    triangle.moveTo({15, y + 40}).lineTo({25, y + 40}).lineTo({20, y + 31}).close();
    EXPECT_THAT(context.fills, testing::Contains(RecordingGraphicsContext::Fill{triangle, Color::white(1)}));
}

TEST_F(CanvasViewDrawing, TheHoveredCellIsUnderlaidInBlueAndNamedOnceAPass) {
    addItem("Save");
    addItem("Save");
    open();
    const Rect second = view->currentShortM.at(1).rect;
    view->isMouseInsideRect = true;
    view->currentHighlightedRect = second;
    desktop.log.lines.clear();
    draw();
    EXPECT_THAT(hoverFills(), ElementsAre(second));
    EXPECT_EQ(context.texts.back().fillsBelow, context.fills.size());
    EXPECT_EQ(desktop.log.count("Editor====当前文字:Save ----37 "), 1);
    view->isMouseInsideRect = false;
    draw();
    EXPECT_TRUE(hoverFills().empty());
}

TEST_F(CanvasViewDrawing, AnEntryTitledSpaceLeavesItsRowEmptyAndTakesNoElement) {
    addItem("Open");
    appMenuItems.emplace_back(MenuItemRecord{"File", "space", "⌘", "X", ""});
    addItem("Close");
    open();
    EXPECT_EQ(context.find("space"), nullptr);
    ASSERT_EQ(view->currentShortM.size(), 2U);
    EXPECT_EQ(view->currentShortM[1].rect.y, view->currentShortM[0].rect.y - 60);
    EXPECT_TRUE(view->currentShortM[1].element->isSameElement(*FakeAccessibility::reference(elements[1])));
}

TEST_F(CanvasViewDrawing, TheApplicationsEntriesEndWithTheFirstCellThatFindsNoKeyCode) {
    addItem("One");
    addItem("Two");
    addItem("Three");
    menuItemKeyCodes.resize(1);
    addSystem("Keyboard//Dock", "⌃", "SPACE", 49, 0x40000);
    open();
    EXPECT_EQ(view->currentShortM.size(), 1U);
    for (const bool elementsEnd : {false, true}) {
        menuItemKeyCodes.resize(elementsEnd ? 3 : 1);
        menuItemElements.resize(elementsEnd ? 1 : 3);
        draw();
        EXPECT_EQ(view->currentShortM.size(), 1U);
    }
    EXPECT_NE(context.find("Two"), nullptr) << "drawn, but without a record";
    EXPECT_EQ(context.find("Three"), nullptr);
    ASSERT_EQ(view->shortcutsM.size(), 1U);
    EXPECT_EQ(view->shortcutsM[0].keyString, "⌴");
    EXPECT_EQ(view->shortcutsM[0].keycode, 49);
    EXPECT_EQ(view->shortcutsM[0].modifierFlags, 0x40000);
}

TEST_F(CanvasViewDrawing, SystemEntriesFollowTheSameRules) {
    desktop.bundle.strings["Dock"] = "Leiste";
    desktop.bundle.strings["Keyboard"] = "Tastatur";
    addItem("Save");
    systemShortcutList.emplace_back("Keyboard");
    addSystem("Keyboard//Dock");
    systemShortcutList.emplace_back(SystemShortcutRecord{"Keyboard//space", "⌃", "E"});
    systemShortcutList.emplace_back(SystemShortcutRecord{"", "⌃", "Q"});
    addSystem("Keyboard//No key", "⌃", "", 3, 0x40000);
    addSystem("Keyboard//Last", "⌃", "L", 4, 0x40000);
    addSystem("Keyboard//Behind");
    systemKeyCombos.resize(2);
    open();
    EXPECT_NE(context.find("Tastatur"), nullptr);
    ASSERT_EQ(view->shortcutsM.size(), 1U) << "without a key there is no record, and the combinations end";
    EXPECT_EQ(context.find("Leiste")->origin.y, view->shortcutsM[0].rect.y + 2);
    EXPECT_NE(context.find("Last"), nullptr) << "drawn, but without a record";
    for (const char* const absent : {"Q", "Behind"}) EXPECT_EQ(context.find(absent), nullptr);
    view->isMouseInsideRect = true;
    view->systemHighlightedRect = view->shortcutsM[0].rect;
    draw();
    EXPECT_THAT(hoverFills(), ElementsAre(view->shortcutsM.at(0).rect));
}

TEST_F(CanvasViewDrawing, TheDenseTierDrawsFlatHeadingsAndSystemCellsAt14) {
    addHeading("File");
    addItems(170);
    addSystem("Keyboard//First", "⌃", "A", 0, 0x40000);
    addSystem("Keyboard//Second", "⌃", "B", 11, 0x40000);
    open();
    const Rect first = view->currentShortM.at(0).rect;
    EXPECT_EQ(context.find("File")->pointSize, 15);
    EXPECT_EQ(context.find("File")->origin.y, first.y + 17);
    EXPECT_EQ(context.find("Item 0")->origin.y, first.y) << "not raised";
    EXPECT_EQ(context.find("Item 0")->pointSize, 15);
    EXPECT_EQ(context.find("First")->pointSize, 14);
    EXPECT_EQ(context.find("Second")->pointSize, 14);
    EXPECT_EQ(context.find("System")->pointSize, 18);
}

TEST_F(CanvasViewDrawing, EachPassLeavesOneRecordPerCellAndAsksForNoOther) {
    addItems(5);
    open();
    draw();
    EXPECT_EQ(view->currentShortM.size(), 5U);
    EXPECT_FALSE(view->needsDisplay());
    NotificationCenter::defaultCenter().post("update");
    EXPECT_TRUE(view->needsDisplay());
    draw();
    view->modifierFlagsDidChange({.type = Event::Type::flagsChanged, .modifierFlags = 0x100000});
    EXPECT_TRUE(view->needsDisplay());
    EXPECT_TRUE(desktop.log.contains("修饰键状态变化: 1048576"));
    CanvasView::initWithFrame({0, 0, 1240, 800})->display(context);  // in no window
}

}  // namespace
}  // namespace orlamo
