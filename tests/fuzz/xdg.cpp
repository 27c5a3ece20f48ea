// What is exchanged with the session.
#include <glib.h>
#include <sys/socket.h>
#include <systemd/sd-bus.h>

#include <algorithm>
#include <array>
#include <memory>

#include "platform/xdg/ActivationTicket.h"
#include "platform/xdg/Autostart.h"
#include "tests/fuzz/FuzzInput.h"

namespace orlamo::fuzz {
namespace {

/// A bus that nobody answers on: messages can be made with it.
sd_bus* silentBus() {
    static sd_bus* const bus = [] {
        std::array<int, 2> ends{};
        require(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()) == 0, "there is a pair of sockets");
        sd_bus* made = nullptr;
        sd_bus_new(&made);
        sd_bus_set_fd(made, ends[0], ends[0]);
        require(sd_bus_start(made) >= 0, "the bus starts");
        return made;
    }();
    return bus;
}

int appendEntry(sd_bus_message* message, FuzzInput& input) {
    constexpr std::array keys{"desktop-startup-id", "activation-token", "", "other"};
    const char* const key = keys[input.below(keys.size())];
    const auto append = [&](auto... typeAndValue) {
        return sd_bus_message_append(message, "{sv}", key, typeAndValue...);
    };
    const std::size_t kind = input.below(4);
    if (kind == 0) return append("u", static_cast<unsigned>(input.number(4)));
    if (kind == 1) return append("as", 2, "a", "b");
    if (kind == 2) return append("v", "s", "inner");
    return append("s", std::string(input.line()).c_str());
}

bool isUsable(const std::string& text) {
    return text.size() <= 1024 && std::ranges::all_of(text, [](char c) { return c > ' ' && c < 0x7f; });
}

using Text = std::unique_ptr<char, decltype([](char* text) { g_free(text); })>;
using Words = std::unique_ptr<char*, decltype([](char** words) { g_strfreev(words); })>;
using KeyFile = std::unique_ptr<GKeyFile, decltype([](GKeyFile* file) { g_key_file_free(file); })>;

/// A command line without its field codes: "%%" stands for a percent sign, and nothing else may follow one.
std::string withoutFieldCodes(std::string_view command) {
    std::string text;
    for (std::size_t i = 0; i < command.size(); ++i) {
        if (command[i] == '%') require(++i < command.size() && command[i] == '%', "there is no field code");
        text += command[i];
    }
    return text;
}

}  // namespace

/// The platform data of an activation that another program sends: a{sv} with whatever keys and types.
void activation(std::string_view bytes) {
    FuzzInput input(bytes);
    sd_bus_message* message = nullptr;
    require(sd_bus_message_new_signal(silentBus(), &message, "/app", "org.example.App", "Sent") >= 0, "a message");
    sd_bus_message_open_container(message, 'a', "{sv}");
    // A text that the bus would not carry leaves its entry half written: such a message cannot arrive.
    bool canArrive = true;
    while (!input.isEmpty() && canArrive) canArrive = appendEntry(message, input) >= 0;
    if (canArrive) {
        sd_bus_message_close_container(message);
        sd_bus_message_append(message, "s", "after");
        sd_bus_message_seal(message, 1, 0);
        xdg::ActivationTicket ticket;
        const char* after = nullptr;
        require(xdg::read(message, ticket) >= 0, "well-formed platform data is read");
        require(sd_bus_message_read(message, "s", &after) > 0, "the place is behind the platform data");
        require(isUsable(ticket.startupId) && isUsable(ticket.activationToken), "a ticket is printable ASCII");
    }
    sd_bus_message_unref(message);
}

/// Where the program lies, quoted for the session that starts it: what is read back is that place.
void autostart(std::string_view bytes) {
    const std::string path = "/" + std::string(bytes);
    const bool isText = g_utf8_validate(path.data(), static_cast<gssize>(path.size()), nullptr) != FALSE;
    const std::string entry = xdg::desktopEntry({.executable = path, .name = path, .icon = path});
    if (path.find('\0') != std::string::npos || !isText) return;  // no path, or none that a desktop entry can say

    const KeyFile file(g_key_file_new());
    require(g_key_file_load_from_data(file.get(), entry.data(), entry.size(), G_KEY_FILE_NONE, nullptr) != FALSE,
            "the entry can be loaded");
    const auto value = [&file](const char* key) {
        const Text text(g_key_file_get_string(file.get(), "Desktop Entry", key, nullptr));
        require(text != nullptr, key);
        return std::string(text.get());
    };
    require(value("TryExec") == path && value("Name") == path && value("Icon") == path, "texts are read back");
    require(value("X-GNOME-Autostart-enabled") == "true", "the last line is in the entry's group");

    int count = 0;
    char** words = nullptr;
    require(g_shell_parse_argv(withoutFieldCodes(value("Exec")).c_str(), &count, &words, nullptr) != FALSE,
            "the command line can be parsed");
    const Words owner(words);
    require(count == 1 && path == words[0], "the command is the path");
}

}  // namespace orlamo::fuzz
