#include "platform/x11/CoreKeyboard.h"

#include <xkbcommon/xkbcommon-x11.h>

#include "platform/EventFlags.h"
#include "platform/Log.h"
#include "platform/x11/Xkb.h"

namespace orlamo::x11 {

namespace {

constexpr xcb_timestamp_t ownTypingMilliseconds = 500;

}  // namespace

CoreKeyboard::CoreKeyboard(Connection& connection)
    : connection_(connection),
      context_(xkb_context_new(XKB_CONTEXT_NO_FLAGS)),
      layout_(std::make_unique<KeyboardLayout>(nullptr)),
      lastFlags_(EventFlags::noneHeld) {
    if (!connection_.extensions().xkb) return;
    xkb_x11_setup_xkb_extension(connection_.xcb(), 1, 0, XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr,
                                nullptr, nullptr);
    device_ = xkb_x11_get_core_keyboard_device_id(connection_.xcb());
    if (!isAvailable()) {
        logLine("the X server has no core keyboard");
        return;
    }
    selectEvents();
    loadLayout();
    lastFlags_ = askModifierFlags();
    subscription_ = connection_.subscribe([this](const xcb_generic_event_t& event) { received(event); });
}

void CoreKeyboard::selectEvents() {
    // Base modifiers only: neither locks nor any other key the user types wakes the program.
    xcb_xkb_select_events_details_t details{};
    details.affectState = XCB_XKB_STATE_PART_MODIFIER_BASE;
    details.stateDetails = XCB_XKB_STATE_PART_MODIFIER_BASE;
    details.affectNewKeyboard = XCB_XKB_NKN_DETAIL_KEYCODES;
    details.newKeyboardDetails = XCB_XKB_NKN_DETAIL_KEYCODES;
    constexpr std::uint16_t mapParts = XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS |
                                       XCB_XKB_MAP_PART_MODIFIER_MAP | XCB_XKB_MAP_PART_KEY_ACTIONS |
                                       XCB_XKB_MAP_PART_VIRTUAL_MODS | XCB_XKB_MAP_PART_VIRTUAL_MOD_MAP;
    constexpr std::uint16_t events =
        XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY | XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
    xcb_xkb_select_events_aux(connection_.xcb(), static_cast<xcb_xkb_device_spec_t>(device_), events, 0, 0, mapParts,
                              mapParts, &details);
    connection_.flush();
}

const KeyboardLayout& CoreKeyboard::layout() {
    if (layoutIsStale_) loadLayout();
    return *layout_;
}

const KeyboardLayout& CoreKeyboard::layoutNow() {
    loadLayout();
    return *layout_;
}

void CoreKeyboard::loadLayout() {
    layoutIsStale_ = false;
    xkb_keymap* const keymap =
        xkb_x11_keymap_new_from_device(context_.get(), connection_.xcb(), device_, XKB_KEYMAP_COMPILE_NO_FLAGS);
    connection_.noteRoundTrip();
    if (keymap == nullptr) {
        logLine("the keyboard's layout cannot be read; the one before stays");
        return;
    }
    layout_ = std::make_unique<KeyboardLayout>(keymap);
    xkb_keymap_unref(keymap);
}

void CoreKeyboard::received(const xcb_generic_event_t& event) {
    if ((event.response_type & 0x7f) != connection_.extensions().xkbEvent) return;
    switch (event.pad0) {  // the extension's own event number
        case XCB_XKB_NEW_KEYBOARD_NOTIFY:
        case XCB_XKB_MAP_NOTIFY:
            layoutIsStale_ = true;
            break;  // they come in bursts
        case XCB_XKB_STATE_NOTIFY: {
            const auto& state = reinterpret_cast<const xcb_xkb_state_notify_event_t&>(event);
            modifiersAre(state.baseMods, state.time);
            break;
        }
        default:
            break;
    }
}

void CoreKeyboard::expectOwnTyping() {
    ownTypingEnds_ = connection_.serverTime() + ownTypingMilliseconds;
}

void CoreKeyboard::modifiersAre(std::uint8_t realModifiers, xcb_timestamp_t time) {
    const std::uint64_t flags = flagsOf(realModifiers);
    // The server's time wraps around.
    if (ownTypingEnds_ && static_cast<std::int32_t>(time - *ownTypingEnds_) < 0) {
        if (flags == lastFlags_) ownTypingEnds_.reset();
        return;
    }
    ownTypingEnds_.reset();
    if (flags == lastFlags_) return;
    lastFlags_ = flags;
    if (listener_) listener_(flags);
}

std::uint64_t CoreKeyboard::flagsOf(std::uint8_t realModifiers) {
    const std::uint64_t flags = layout().eventFlags(realModifiers);
    return flags != 0 ? flags : EventFlags::noneHeld;
}

std::uint64_t CoreKeyboard::askModifierFlags() {
    if (!isAvailable()) return EventFlags::noneHeld;
    const auto state =
        connection_.reply(xcb_xkb_get_state_reply, xcb_xkb_get_state(connection_.xcb(), XCB_XKB_ID_USE_CORE_KBD));
    return state ? flagsOf(state->baseMods) : std::uint64_t{EventFlags::noneHeld};
}

unsigned CoreKeyboard::group() {
    if (!isAvailable()) return 0;
    const auto state =
        connection_.reply(xcb_xkb_get_state_reply, xcb_xkb_get_state(connection_.xcb(), XCB_XKB_ID_USE_CORE_KBD));
    return state ? state->group : 0;
}

std::optional<HeldKeys> CoreKeyboard::heldKeys() {
    if (!isAvailable()) return std::nullopt;
    const auto stateCookie = xcb_xkb_get_state(connection_.xcb(), XCB_XKB_ID_USE_CORE_KBD);
    const auto downCookie = xcb_query_keymap(connection_.xcb());
    const auto state = connection_.reply(xcb_xkb_get_state_reply, stateCookie);
    const auto down = connection_.reply(xcb_query_keymap_reply, downCookie);
    if (!state || !down) return std::nullopt;
    HeldKeys keys;
    keys.held = state->baseMods | state->latchedMods;
    keys.locked = state->lockedMods;
    keys.group = state->group;
    for (unsigned key = 0; key < keys.down.size(); ++key)
        keys.down[key] = ((down->keys[key / 8] >> (key % 8)) & 1) != 0;
    return keys;
}

}  // namespace orlamo::x11
