// Where the program lies, quoted for the session that starts it: what is read back is that place.
#include "platform/xdg/Autostart.h"

#include <glib.h>

#include <memory>

#include "tests/fuzz/FuzzInput.h"

using namespace orlamo;
using fuzz::require;

namespace {

template <auto release>
struct Release {
    template <class T>
    void operator()(T* what) const {
        release(what);
    }
};
using Text = std::unique_ptr<char, Release<g_free>>;

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

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string path = "/" + std::string(fuzz::textOf(data, size));
    const bool isText = g_utf8_validate(path.data(), static_cast<gssize>(path.size()), nullptr) != FALSE;
    const std::string entry = xdg::desktopEntry({.executable = path, .name = path, .icon = path});
    if (path.find('\0') != std::string::npos || !isText) return 0;  // no path, or none that a desktop entry can say

    const std::unique_ptr<GKeyFile, Release<g_key_file_free>> file(g_key_file_new());
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
    const std::unique_ptr<char*, Release<g_strfreev>> owner(words);
    require(count == 1 && path == words[0], "the command is the path");
    return 0;
}
