#include "platform/atspi/Press.h"

#include <systemd/sd-bus.h>

#include <algorithm>
#include <array>
#include <optional>
#include <thread>

#include "platform/atspi/BusNodeSource.h"
#include "platform/atspi/Utf8.h"

namespace orlamo::atspi {
namespace {

constexpr std::chrono::milliseconds checkTime{400};
constexpr std::chrono::milliseconds wholeCheckTime{600};  // with what follows when the item is disabled
// GTK performs the item before it answers: one that opens a modal dialog keeps its answer until that is closed. The
// program has just answered the check, so silence after this time means that it is busy with the item.
constexpr std::chrono::milliseconds pressTime{150};
// An editor enables "Select All" when its text has the focus again.
constexpr std::chrono::milliseconds forwardTime{300};
constexpr std::chrono::milliseconds betweenLooks{5};

struct LiveItem {
    Answer name, role, states, keyBinding;
};

std::optional<LiveItem> askItem(Connection& bus, const ObjectRef& object, Deadline deadline) {
    BusNodeSource source(bus, deadline);
    LiveItem item;
    int outstanding = 0;
    const auto ask = [&](Question question, Answer& into) {
        ++outstanding;
        source.ask(object, question, [&](Answer answer) {
            --outstanding;
            into = std::move(answer);
        });
    };
    ask(Question::role, item.role);
    ask(Question::states, item.states);
    ask(Question::keyBinding, item.keyBinding);
    ask(Question::name, item.name);  // the last one: it is what the user chose by
    while (outstanding > 0 && source.wait()) {
    }
    if (outstanding > 0) return std::nullopt;
    return item;
}

bool isMenuItemRole(ObjectRole role) {
    return role == ObjectRole::menuItem || role == ObjectRole::checkMenuItem || role == ObjectRole::radioMenuItem ||
           role == ObjectRole::menu;
}

bool isSameItem(const LiveItem& live, const MenuNode& item) {
    const auto* const name = std::get_if<std::string>(&live.name);
    const auto* const role = std::get_if<std::uint64_t>(&live.role);
    const auto* const keyBinding = std::get_if<std::string>(&live.keyBinding);
    if (name == nullptr || role == nullptr) return false;
    const auto liveRole = static_cast<ObjectRole>(*role);
    if (item.title && cleanName(*name) != *item.title) return false;
    if (item.role ? liveRole != *item.role : !isMenuItemRole(liveRole)) return false;
    return item.keyBinding.empty() || (keyBinding != nullptr && *keyBinding == item.keyBinding);
}

bool isDisabled(const LiveItem& live) {
    const auto* const value = std::get_if<std::uint64_t>(&live.states);
    return value != nullptr && (*value & (states::enabled | states::sensitive)) == 0;
}

bool becomesEnabled(Connection& bus, const MenuNode& item, Deadline deadline) {
    while (const auto live = askItem(bus, item.object, deadline)) {
        if (!isSameItem(*live, item)) return false;
        if (!isDisabled(*live)) return true;
        std::this_thread::sleep_for(betweenLooks);
    }
    return false;
}

}  // namespace

AXError pressMenuItem(Connection& bus, const MenuNode& item, const std::function<bool()>& bringForward) {
    const Deadline checked = deadlineIn(wholeCheckTime);
    const auto live = askItem(bus, item.object, deadlineIn(checkTime));
    if (!live) return AXError::cannotComplete;
    if (!isSameItem(*live, item)) return AXError::invalidUIElement;
    if (isDisabled(*live)) {
        const bool wasEnabled = item.isEnabled.value_or(true);
        if (!wasEnabled || !bringForward() || !becomesEnabled(bus, item, std::min(checked, deadlineIn(forwardTime))))
            return AXError::failure;
    }

    AXError result = AXError::success;
    bool isAnswered = false;
    bus.call(
        {item.object.bus, item.object.path, "org.a11y.atspi.Action", "DoAction", {std::int32_t{0}}},
        [&](sd_bus_message* answer) {
            isAnswered = true;
            int isDone = 0;
            const bool isError = answer == nullptr || sd_bus_message_is_method_error(answer, nullptr) > 0;
            if (isError || sd_bus_message_read(answer, "b", &isDone) < 0) {
                result = AXError::cannotComplete;
            } else if (isDone == 0) {
                result = AXError::failure;
            }
        },
        &result);
    const Deadline deadline = deadlineIn(pressTime);
    const std::array<Connection*, 1> connections{&bus};
    while (!isAnswered && waitForAnswers(connections, deadline)) {
    }
    bus.cancel(&result);
    return result;
}

}  // namespace orlamo::atspi
