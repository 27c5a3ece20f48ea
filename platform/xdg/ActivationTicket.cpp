#include "platform/xdg/ActivationTicket.h"

#include <systemd/sd-bus.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace orlamo::xdg {

namespace {

constexpr std::size_t longest = 1024;

constexpr struct {
    const char* variable;
    const char* key;
    std::string ActivationTicket::*value;
} parts[] = {
    {"DESKTOP_STARTUP_ID", "desktop-startup-id", &ActivationTicket::startupId},
    {"XDG_ACTIVATION_TOKEN", "activation-token", &ActivationTicket::activationToken},
};

std::string usable(const char* text) {
    if (text == nullptr || std::strlen(text) > longest) return {};
    const std::string value(text);
    return std::ranges::all_of(value, [](char c) { return c > ' ' && c < 0x7f; }) ? value : std::string();
}

int readPart(sd_bus_message* message, ActivationTicket& ticket) {
    const char* key = nullptr;
    if (const int result = sd_bus_message_read(message, "s", &key); result < 0) return result;
    const char* contents = nullptr;
    if (const int result = sd_bus_message_peek_type(message, nullptr, &contents); result < 0) return result;
    const auto* const part =
        std::ranges::find_if(parts, [key](const auto& each) { return !std::strcmp(each.key, key); });
    if (part == std::end(parts) || std::strcmp(contents, "s") != 0) return sd_bus_message_skip(message, "v");
    const char* text = nullptr;
    const int result = sd_bus_message_read(message, "v", "s", &text);
    if (result >= 0) ticket.*part->value = usable(text);
    return result;
}

}  // namespace

ActivationTicket ActivationTicket::ofThisLaunch() {
    ActivationTicket ticket;
    for (const auto& part : parts) ticket.*part.value = usable(std::getenv(part.variable));
    return ticket;
}

int append(sd_bus_message* message, const ActivationTicket& ticket) {
    if (const int result = sd_bus_message_open_container(message, 'a', "{sv}"); result < 0) return result;
    for (const auto& part : parts) {
        const std::string& value = ticket.*part.value;
        if (value.empty()) continue;
        const int result = sd_bus_message_append(message, "{sv}", part.key, "s", value.c_str());
        if (result < 0) return result;
    }
    return sd_bus_message_close_container(message);
}

int read(sd_bus_message* message, ActivationTicket& ticket) {
    int result = sd_bus_message_enter_container(message, 'a', "{sv}");
    while (result >= 0 && (result = sd_bus_message_enter_container(message, 'e', "sv")) > 0) {
        result = readPart(message, ticket);
        if (result >= 0) result = sd_bus_message_exit_container(message);
    }
    return result < 0 ? result : sd_bus_message_exit_container(message);
}

}  // namespace orlamo::xdg
