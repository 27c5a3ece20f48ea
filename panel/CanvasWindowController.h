#pragma once

#include <memory>
#include <optional>
#include <string>

#include "panel/CanvasWindow.h"
#include "platform/WindowController.h"

namespace orlamo {

class CanvasView;
class View;

/// Whether the trigger considers the panel open. The trigger sets and clears it; hiding clears it.
inline bool isShortcutWindowShown = false;

/// The application that was in front at the latest showing; empty when it had no identifier, absent before the first.
inline std::optional<std::string> frontmostBundleIdentifier;

/// The main screen's size in points, read once; absent until there was a main screen to read.
inline std::optional<Size> mainScreenSize;

/// Opens the panel for the application in front, anew for every showing, and hands the focus back when it closes.
class CanvasWindowController : public WindowController {
public:
    CanvasWindowController() = default;
    ~CanvasWindowController() override = default;

    /// Reads the frontmost application's shortcuts and opens the panel over it, blocking while it reads. Nothing opens
    /// for this program itself, nor for an application that yields nothing; without a main screen one line is logged.
    void showShortcutWindow();

    /// Closes the panel; when this program is still in front, activates the application the panel was opened for.
    void hideShortcutWindow();

    /// The panel's window, created on first use.
    CanvasWindow& canvasWindow();

    /// The view in the panel's window, or null.
    CanvasView* canvasView() const;

private:
    void createCanvasWindow();
    void buildPanelContent();

    std::unique_ptr<CanvasWindow> canvasWindow_;
};

}  // namespace orlamo
