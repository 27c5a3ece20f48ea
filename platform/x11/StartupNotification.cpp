#include "platform/x11/StartupNotification.h"

#include <algorithm>
#include <string>

namespace orlamo::x11 {

namespace {

std::string quoted(std::string_view text) {
    std::string value = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') value += '\\';
        value += c;
    }
    return value + '"';
}

}  // namespace

// A text to whoever listens at the root window, its closing zero included, in messages of 20 bytes.
void completeStartup(Connection& connection, std::string_view startupId) {
    if (startupId.empty()) return;
    std::string text = "remove: ID=" + quoted(startupId);
    text.push_back('\0');
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 8;
    message.window = connection.helperWindow();
    message.type = connection.atom("_NET_STARTUP_INFO_BEGIN");
    for (std::size_t start = 0; start < text.size(); start += sizeof message.data) {
        const std::string_view piece = std::string_view(text).substr(start, sizeof message.data);
        std::ranges::fill(message.data.data8, std::uint8_t{0});
        std::ranges::copy(piece, message.data.data8);
        xcb_send_event(connection.xcb(), 0, connection.root(), XCB_EVENT_MASK_PROPERTY_CHANGE,
                       reinterpret_cast<const char*>(&message));
        message.type = connection.atom("_NET_STARTUP_INFO");
    }
    connection.flush();
}

}  // namespace orlamo::x11
