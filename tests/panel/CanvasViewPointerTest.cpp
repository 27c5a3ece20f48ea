#include "tests/panel/PanelFixture.h"

namespace orlamo {
namespace {

class CanvasViewPointer : public PanelFixture {
protected:
    CanvasViewPointer() { controller.setWindow(&window); }

    void moveTo(const Rect& cell) { window.pointerMoved(centreOf(cell)); }
    void click(const Rect& cell) { window.pointerPressed(centreOf(cell)); }
    bool isClosing() { return desktop.runLoop.pending() > 0; }

    CanvasWindowController controller;
};

TEST_F(CanvasViewPointer, HighlightsOneCellAtATimeAndNoneWithoutModifiers) {
    addItem("Save");
    addSystem("Keyboard//Dock");
    addSystem("Keyboard//Bare", "", "F3", 99, 0);
    open();
    moveTo(view->currentShortM.at(0).rect);
    EXPECT_EQ(view->currentHighlightedRect, view->currentShortM[0].rect);
    EXPECT_FALSE(view->systemHighlightedRect);
    EXPECT_TRUE(view->isMouseInsideRect);
    EXPECT_TRUE(desktop.log.contains("文字: Save---- 尺寸: " + describe(view->currentShortM[0].rect)));

    moveTo(view->shortcutsM.at(0).rect);
    EXPECT_FALSE(view->currentHighlightedRect);
    EXPECT_EQ(view->systemHighlightedRect, view->shortcutsM[0].rect);
    EXPECT_TRUE(view->isMouseInsideRect);

    moveTo(view->shortcutsM.at(1).rect);
    EXPECT_FALSE(view->systemHighlightedRect);
    EXPECT_FALSE(view->isMouseInsideRect);

    appMenuItems.clear();
    open("Reader");
    moveTo(view->shortcutsM.at(0).rect);
    EXPECT_EQ(view->systemHighlightedRect, view->shortcutsM[0].rect) << "without any cell of the application";
    window.pointerMoved({1, 1});
    EXPECT_FALSE(view->isMouseInsideRect);
}

TEST_F(CanvasViewPointer, EveryMoveAsksForAPassAndLeavingEndsTheHighlight) {
    addItem("Save");
    open();
    draw();
    view->mouseEntered({});
    EXPECT_TRUE(view->needsDisplay() && view->isMouseInsideRect);
    for (int move = 0; move < 2; ++move) {  // the first one enters, too
        draw();
        moveTo(view->currentShortM.at(0).rect);
        EXPECT_TRUE(view->needsDisplay());
    }
    draw();
    view->systemHighlightedRect = Rect{};
    view->setFrame({view->frame().x, view->frame().y, 1240, 801});
    EXPECT_FALSE(view->currentHighlightedRect || view->systemHighlightedRect) << "a change of size ends the highlight";
    draw();
    moveTo(view->currentShortM.at(0).rect);
    EXPECT_TRUE(view->currentHighlightedRect);
    view->systemHighlightedRect = Rect{};
    view->resetPanelState();
    EXPECT_FALSE(view->currentHighlightedRect || view->systemHighlightedRect);
    draw();
    window.pointerLeft();
    EXPECT_FALSE(view->isMouseInsideRect);
    EXPECT_TRUE(view->needsDisplay());
}

TEST_F(CanvasViewPointer, ACellBeyondTheBoundsIsHitWhereItIsDrawnAndARefusedPressIsLogged) {
    addItems(400);  // 100 rows of 17 points in a view of 800
    open();
    const Rect last = view->currentShortM.back().rect;
    ASSERT_LT(last.y, 0);
    moveTo(last);
    EXPECT_EQ(view->currentHighlightedRect, last);
    elements.back()->pressResult = AXError::cannotComplete;
    click(last);
    EXPECT_EQ(desktop.accessibility.presses.size(), 1U);
    EXPECT_TRUE(desktop.log.contains("点击操作失败，错误码：-25204"));
    EXPECT_TRUE(isClosing());
    appMenuItems.erase(appMenuItems.begin() + 1, appMenuItems.end() - 1);
    draw();
    window.pointerMoved({1, 1});
    draw();
    moveTo(last);
    EXPECT_FALSE(view->needsDisplay()) << "nothing is drawn there any more";
}

TEST_F(CanvasViewPointer, AClickPressesTheFirstItemOfThatTitleAndClosesThePanel) {
    addItem("Other");
    addItem("Twice");
    addItem("Twice");
    isShortcutWindowShown = true;
    open();
    click(view->currentShortM.at(2).rect);
    ASSERT_EQ(desktop.accessibility.presses.size(), 1U);
    EXPECT_EQ(desktop.accessibility.presses[0], elements[1]);
    const std::string rect = describe(view->currentShortM.at(2).rect);
    const auto logged = std::ranges::find(desktop.log.lines, "是这个点");
    ASSERT_GE(desktop.log.lines.end() - logged, 7);
    EXPECT_TRUE(logged[1].starts_with("currentLocation: ("));
    EXPECT_THAT(std::vector<std::string>(logged + 2, logged + 7),
                testing::ElementsAre("current: " + rect, "当前程序title:Twice", "当前程序的菜单栏点击的区域:" + rect,
                                     "点击了: Twice", "成功执行点击操作"));
    desktop.runLoop.advance(0.009);
    click(view->currentShortM.at(2).rect);
    EXPECT_EQ(desktop.accessibility.presses.size(), 1U) << "a double click performs once";
    EXPECT_TRUE(isShortcutWindowShown);
    desktop.runLoop.advance(0.001);
    EXPECT_FALSE(isShortcutWindowShown);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(CanvasViewPointer, AnUnknownTitleOrAnEmptyHarvestClosesThePanelWithoutAPress) {
    for (const bool isEmpty : {false, true}) {
        appMenuItems.clear();
        addItem("Save");
        open();
        menuItemTitles = isEmpty ? std::vector<std::string>{} : std::vector<std::string>{"Else", "Where"};
        desktop.log.lines.clear();
        click(view->currentShortM.at(0).rect);
        EXPECT_TRUE(desktop.accessibility.presses.empty());
        EXPECT_TRUE(isClosing());
        // More titles than elements.
        EXPECT_EQ(desktop.log.count("无法找到指定的键值"), isEmpty ? 0 : 1);
        desktop.runLoop.advance(1);
        menuItemElements.clear();
        menuItemKeyCodes.clear();
    }
}

TEST_F(CanvasViewPointer, ASystemCellReplaysItsCombinationAsDownAndUp) {
    addItem("Save");
    addSystem("Mission Contrl//Move", "⌃", "→", 124, 0x40000);
    open();
    click(view->shortcutsM.at(0).rect);
    ASSERT_EQ(desktop.poster.posted.size(), 2U);
    for (const bool isDown : {true, false}) {
        const auto& posted = desktop.poster.posted[isDown ? 0 : 1];
        EXPECT_EQ(static_cast<int>(posted.tap), 1);
        EXPECT_EQ(posted.event.keyCode, 124);
        EXPECT_EQ(posted.event.flags, 0x40000U);
        EXPECT_EQ(posted.event.keyDown, isDown);
    }
    const Rect cell = view->shortcutsM.at(0).rect;
    const std::string point = describe(Point{cell.x + cell.width / 2, cell.y + cell.height / 2});
    EXPECT_THAT(
        std::vector<std::string>(desktop.log.lines.end() - 8, desktop.log.lines.end()),
        testing::ElementsAre("是这个点", "location: " + point, "rect: " + describe(cell), "title: Move",
                             "frame: " + describe(cell), "修饰键: 262144", "按键: 124", "修饰键: ⌃   按键符号: →"));
    EXPECT_TRUE(isClosing());
}

TEST_F(CanvasViewPointer, ASystemKeyAloneIsPostedToo) {
    addItem("Save");
    constexpr std::int64_t lowest = 0, highest = 65535;
    for (const std::int64_t key : {lowest, highest}) {
        systemShortcutList.clear();
        systemKeyCombos.clear();
        addSystem("Screen Shots//Area", "", "F13", key, 0);
        open();
        click(view->shortcutsM.at(0).rect);
        ASSERT_FALSE(desktop.poster.posted.empty());
        EXPECT_EQ(desktop.poster.posted.back().event.keyCode, key);
        EXPECT_EQ(desktop.poster.posted.back().event.flags, 0U);
        desktop.runLoop.advance(1);
    }
}

TEST_F(CanvasViewPointer, AKeyThatCannotBePostedClosesThePanelAndPostsNothing) {
    for (const std::size_t cell : {0U, 1U}) {
        addSystem("Keyboard//No key", "⌃", "nil", -1, 0x40000);
        addSystem("Keyboard//No mask", "", "A", 0, -5);
        appMenuItems.clear();
        open();
        click(view->shortcutsM.at(cell).rect);
        EXPECT_TRUE(isClosing());
        desktop.runLoop.advance(1);
    }
    EXPECT_TRUE(desktop.poster.posted.empty());
    EXPECT_TRUE(desktop.log.contains("no key to post for No key"));
}

TEST_F(CanvasViewPointer, AClickBetweenTheCellsDoesNothing) {
    addItem("Save");
    open();
    const Rect cell = view->currentShortM.at(0).rect;
    for (const Point outside : {Point{cell.maxX(), cell.y}, Point{cell.x, cell.maxY()}}) {
        window.pointerPressed({view->frame().x + outside.x, view->frame().y + outside.y});
    }
    EXPECT_FALSE(isClosing());
    window.pointerPressed({view->frame().x + cell.x, view->frame().y + cell.y});
    EXPECT_TRUE(isClosing()) << "minimum edges belong to the cell";
    EXPECT_EQ(desktop.accessibility.presses.size(), 1U);
}

TEST_F(CanvasViewPointer, AViewThatIsGoneBeforeItsPanelClosesIsNoTrouble) {
    addItem("Save");
    open();
    click(view->currentShortM.at(0).rect);
    window.setContentView(nullptr);
    isShortcutWindowShown = true;
    desktop.runLoop.advance(1);
    EXPECT_TRUE(isShortcutWindowShown) << "a later showing is not closed by an older click";
    isShortcutWindowShown = false;
}

}  // namespace
}  // namespace orlamo
