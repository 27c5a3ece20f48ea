#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/KeyManager.h"
#include "core/ShortcutRecords.h"
#include "core/SystemShortcuts.h"
#include "platform/EventMonitors.h"
#include "platform/NotificationCenter.h"
#include "platform/View.h"

namespace orlamo {

/// The panel's one view: lays out and draws the shortcuts of appMenuItems and systemShortcutList, follows the pointer
/// and performs what is clicked. Created for one showing. Lengths are whole points; y grows upward.
class CanvasView : public View {
public:
    /// Trims appMenuItems as the settings say, loads the system catalogue, and redraws on the notification "update".
    static std::unique_ptr<CanvasView> initWithFrame(Rect frame);
    /// The initial values alone.
    static std::unique_ptr<CanvasView> initWithCoder();

    std::vector<CurrentShortcutsModel> currentShortM;  // the application cells of the latest pass
    std::vector<ShortcutsModel> shortcutsM;            // its system cells
    const KeyManager keyManager{};
    const Color colorOfRect = Color::white(0.1);
    const Color colorOfLightText = Color::white(1.0);
    const Color colorOfTextInMenu = Color::white(0.5);
    const std::int64_t systemTotal;
    std::int64_t rowNumberEveryColume = 0;
    std::int64_t textPositionX = 0;
    std::int64_t textPositionY = 0;
    std::string MenuBarTitles;
    std::string aMenuItemTitle;
    std::int64_t currentColume = 0;
    std::int64_t totalMenuColumn = 0;
    std::int64_t rowHeight = 16;
    bool isXcode = false;
    std::int64_t GlobalSpacing = 20;
    const Color GlobalWindowBgColor = Color::grey(0.9);
    Color ShortcutWindowBgColor;
    double ShortcutWindowCornerRadius;
    std::int64_t GlobalTextSize = 5;
    std::int64_t textSize = 13;
    std::int64_t systemBeginPointX = 0;
    std::int64_t totalEveryColume = 40;
    std::optional<Rect> tempRect;
    double spacing = 30.0;
    std::int64_t beginPointX = 0;
    std::int64_t beginPointY = 0;
    std::string currentAppName;
    std::vector<MenuEntry> itemsToRemove;
    bool isMouseInsideRect = false;
    std::optional<Rect> currentHighlightedRect;
    std::optional<Rect> systemHighlightedRect;
    const Color clickedRectColor = Color::systemBlueColor(0.5);

    void drawRect(GraphicsContext& context, const Rect& dirty) override;
    void resizeSubviewsWithOldSize(Size oldSize) override;
    void viewDidMoveToSuperview() override;
    void mouseEntered(const MouseEvent& event) override;
    void mouseExited(const MouseEvent& event) override;
    void mouseMoved(const MouseEvent& event) override;
    void mouseDown(const MouseEvent& event) override;

    /// Asks for a drawing pass.
    void updateCurrentView();
    /// Logs the event's modifiers and asks for a drawing pass.
    void modifierFlagsDidChange(const Event& event);
    /// Empties the lists that this showing was made of and forgets the highlight.
    void resetPanelState();

protected:
    /// Cells lie where they are drawn, also beyond the bounds.
    bool hearsPressAt(Point point) const override;

private:
    /// What one pass works out before it draws.
    struct Layout {
        std::int64_t total = 0;                   // application entries
        std::array<std::int64_t, 4> appWidths{};  // per column; 0 for a column that does not exist
        std::array<std::int64_t, 3> systemWidths{};
        std::int64_t systemColumns = 0;
        std::int64_t appEdge = 0;    // right edge of the application area
        std::int64_t titleFont = 0;  // size with which title labels are measured
    };
    /// A shortcut cell while it is drawn.
    struct CellText {
        std::string modifier;            // as the keyboard prints it
        std::int64_t modifierWidth = 0;  // points
        Color color;
        Rect rect;
        bool isHovered = false;
    };

    explicit CanvasView(Rect frame);

    void trimAppleMenu();
    // CanvasViewLayout.cpp
    Layout computeLayout();
    void applyLayoutTier(std::int64_t total);
    std::array<std::int64_t, 4> appColumnWidths(std::int64_t total);
    std::array<std::int64_t, 3> systemColumnWidths(std::int64_t& systemColumns);
    std::int64_t entryTotal() const;
    std::int64_t placeApplicationEntry(std::int64_t i, const Layout& layout);
    std::int64_t placeSystemEntry(std::int64_t k, std::int64_t startX, const Layout& layout);
    std::int64_t systemStartX(const Layout& layout) const;
    std::int64_t rowY(std::int64_t rowInColumn) const;
    std::int64_t textWidth(std::string_view text, std::int64_t pointSize) const;
    Size measureText(std::string_view text, std::int64_t pointSize) const;
    const std::string& truncateTitle(const std::string& title, std::int64_t testPointSize);
    void resizeWindowToContent();

    // CanvasViewDrawing.cpp, CanvasViewCells.cpp
    void drawPanel();
    void drawText(std::string_view text, std::int64_t pointSize, const Color& color, double x, double y);
    void fillRoundedBar(double x1, double y1, double x2, double y2, const Color& color);
    void drawAppTitle(const Layout& layout);
    void drawSystemTitle(const Layout& layout);
    void drawMenuTitleRow(const std::string& title, std::int64_t x, std::int64_t y, std::int64_t width);
    void drawAppShortcuts(const Layout& layout);
    bool drawAppCell(const MenuItemRecord& record, std::int64_t width, std::size_t& index);
    void drawSystemShortcuts(std::int64_t startX, const Layout& layout);
    bool drawSystemCell(const SystemShortcutRecord& record, std::string& title, std::int64_t width, std::size_t& index);
    CellText beginCell(std::string_view modifier, std::int64_t width, const std::optional<Rect>& highlighted);
    void fillHover(const Rect& rect);
    void drawCellTexts(const CellText& cell, std::string_view key, std::string& title);

    // CanvasViewPointer.cpp
    void trackDrawnArea();
    void performApplicationCellClick(Point point);
    void performSystemCellClick(Point point);
    void closePanelSoon();

    GraphicsContext* context_ = nullptr;  // while a pass runs
    std::unordered_map<std::string, std::string> shortened_;
    Rect drawnArea_;
    bool isClosing_ = false;  // a cell was performed
    std::unique_ptr<NotificationCenter::Observation> updateObservation_;
    std::shared_ptr<CanvasView*> self_;  // for delayed tasks, which may outlive the view
};

}  // namespace orlamo
