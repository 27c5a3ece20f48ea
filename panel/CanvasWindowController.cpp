#include "panel/CanvasWindowController.h"

#include "core/MenuHarvest.h"
#include "core/ShortcutRecords.h"
#include "panel/CanvasView.h"
#include "platform/Bundle.h"
#include "platform/Log.h"
#include "platform/UserDefaults.h"
#include "platform/VisualEffectView.h"
#include "platform/Workspace.h"
#include "shell/settings/SettingsKeys.h"

namespace orlamo {

namespace {

// Whatever radius the settings hold: this is the panel's shape.
constexpr double panelCornerRadius = 30;

std::string frontmostIdentifier() {
    const auto application = Workspace::shared().frontmostApplication();
    return application ? application->bundleIdentifier.value_or("") : "";
}

const std::optional<Size>& readMainScreenSize() {
    if (!mainScreenSize) {
        if (const auto screen = WindowSystem::shared().mainScreen()) mainScreenSize = screen->frame.size();
    }
    return mainScreenSize;
}

}  // namespace

void CanvasWindowController::showShortcutWindow() {
    logLine("------------ 双击显示窗口 --------------");
    frontmostBundleIdentifier = frontmostIdentifier();
    logLine("前台应用的 Bundle Identifier: " + *frontmostBundleIdentifier);
    if (frontmostIdentifier() == Bundle::shared().bundleIdentifier()) return;
    // Asked before the harvest: what is harvested for a panel that never opens would stay in the lists.
    if (!readMainScreenSize()) {
        logLine("no main screen: the panel is not shown");
        return;
    }
    appMenuItems = harvestMenuShortcuts();
    createCanvasWindow();
    if (appMenuItems.empty()) return;
    logLine("获取到了快捷键，就设置UI");
    buildPanelContent();
}

void CanvasWindowController::createCanvasWindow() {
    const Rect contentRect{100, 100, mainScreenSize->width - 200, mainScreenSize->height - 100};
    canvasWindow_ =
        std::make_unique<CanvasWindow>(contentRect, Window::borderless, Window::Backing::buffered, Window::Defer::no);
    canvasWindow_->backgroundColor = Color::clearColor();
    setWindow(canvasWindow_.get());
}

void CanvasWindowController::buildPanelContent() {
    CanvasWindow& panel = canvasWindow();
    auto blur = std::make_unique<VisualEffectView>(panel.frame());
    blur->material = UserDefaults::standardUserDefaults().boolForKey(SettingsKeys::isBlurStyle)
                         ? VisualEffectView::Material::fullScreenUI
                         : VisualEffectView::Material::sheet;
    blur->state = VisualEffectView::State::active;
    blur->blendingMode = VisualEffectView::BlendingMode::withinWindow;
    VisualEffectView& background = *blur;
    panel.setContentView(std::move(blur));
    auto canvas = CanvasView::initWithFrame(background.frame());
    background.maskImage = VisualEffectView::MaskImage{.size = background.frame().size(),
                                                       .cornerRadius = panelCornerRadius,
                                                       .color = Color::black(),
                                                       .flipped = false};
    background.addSubview(std::move(canvas));
    panel.backgroundColor = Color::clearColor();
    panel.orderFront();
}

void CanvasWindowController::hideShortcutWindow() {
    if (CanvasView* const canvas = canvasView()) canvas->resetPanelState();
    isShortcutWindowShown = false;
    close();
    // The cells hold the application's menu elements: nothing of them stays until the next showing.
    if (canvasWindow_ != nullptr) canvasWindow_->setContentView(nullptr);
    const std::string frontmost = frontmostIdentifier();
    if (!frontmostBundleIdentifier) return;
    if (frontmost != Bundle::shared().bundleIdentifier()) return;
    if (frontmostBundleIdentifier->empty()) return;
    const auto running = Workspace::shared().runningApplicationsWithBundleIdentifier(*frontmostBundleIdentifier);
    if (running.empty()) return;
    Workspace::shared().activateWithOptions(running.front(), Workspace::activateIgnoringOtherApps);
}

CanvasWindow& CanvasWindowController::canvasWindow() {
    if (canvasWindow_ == nullptr) canvasWindow_ = std::make_unique<CanvasWindow>();
    return *canvasWindow_;
}

CanvasView* CanvasWindowController::canvasView() const {
    if (window() == nullptr || window()->contentView() == nullptr) return nullptr;
    View* const content = window()->contentView();
    if (auto* const canvas = dynamic_cast<CanvasView*>(content)) return canvas;
    for (const auto& view : content->subviews()) {
        if (auto* const canvas = dynamic_cast<CanvasView*>(view.get())) return canvas;
    }
    return nullptr;
}

}  // namespace orlamo
