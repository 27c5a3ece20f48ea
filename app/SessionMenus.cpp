#include "app/SessionMenus.h"

#include "core/KeyManager.h"
#include "platform/Bundle.h"
#include "platform/EventFlags.h"
#include "platform/desktops/Desktop.h"
#include "platform/desktops/GioSettingsSource.h"
#include "platform/desktops/SessionMenu.h"

namespace orlamo {

namespace {

atspi::Shortcut menuShortcut(const desktops::KeyCombination& key) {
    const auto bit = [&key](std::uint64_t flag, std::int64_t number) {
        return (static_cast<std::uint64_t>(key.mask) & flag) != 0 ? number : 0;
    };
    return {.modifiers = bit(EventFlags::shift, 1) + bit(EventFlags::option, 2) + bit(EventFlags::control, 4) +
                         (8 - bit(EventFlags::command, 8)),
            .character = std::string(KeyManager::shared().keyTextForKeyCode(key.keyCode))};
}

desktops::WindowRequests requests(x11::WindowManager& manager, const x11::FocusMemory& focus) {
    using enum desktops::WindowRequest;
    return {.canDo =
                [&manager](desktops::WindowRequest request) {
                    return request == showDesktop ? manager.canShowDesktop() : manager.canMinimize();
                },
            .ask =
                [&manager, &focus](desktops::WindowRequest request) {
                    return request == showDesktop ? manager.toggleShowingDesktop()
                                                  : manager.minimizeWindowInFront(focus);
                }};
}

}  // namespace

SessionMenus::SessionMenus(desktops::SharedSettings& settings, x11::WindowManager& manager,
                           const x11::FocusMemory& focus)
    : settings_(settings), services_(requests(manager, focus)) {}

atspi::SessionMenu SessionMenus::read(std::chrono::milliseconds timeLeft) {
    using desktops::GioSessionServices;
    using desktops::GioSettingsSource;
    settings_.forget();  // of an earlier panel, which may have come to nothing
    if (timeLeft < GioSettingsSource::longestWait + GioSessionServices::longestWait) return {};
    const auto desktop = desktops::desktopOfNames(desktops::desktopNamesOfEnvironment());
    const auto menu = desktops::readSessionMenu(desktop, settings_, services_);
    atspi::SessionMenu shown{.state = menu.state};
    if (menu.state != SessionMenuState::present) return shown;
    shown.title = "Apple";  // shown as a sign, in every language
    for (const auto& command : menu.commands) {
        shown.items.push_back({NSLocalizedString(command.title), menuShortcut(command.key), [this, command] {
                                   return services_.perform(command.deed) ? AXError::success : AXError::cannotComplete;
                               }});
    }
    return shown;
}

}  // namespace orlamo
