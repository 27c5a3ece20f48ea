#include "platform/xdg/Autostart.h"

#include <cstdlib>

#include "platform/Log.h"
#include "platform/files/FileReplacement.h"

namespace orlamo::xdg {

namespace {

namespace fs = std::filesystem;

bool failed(const fs::path& path, const std::string& why) {
    logLine("Start at login: " + path.string() + ": " + why);
    return false;
}

// The escapes of any text value of a desktop entry.
std::string escapedValue(std::string_view text) {
    std::string value;
    for (const char c : text) {
        switch (c) {
            case '\\':
                value += "\\\\";
                break;
            case '\n':
                value += "\\n";
                break;
            case '\t':
                value += "\\t";
                break;
            case '\r':
                value += "\\r";
                break;
            default:
                value += c;
        }
    }
    return value;
}

// One argument of a command line, quoted always; a percent sign would begin a field code.
std::string quotedArgument(std::string_view text) {
    constexpr std::string_view escaped = "\"`$\\";
    std::string argument = "\"";
    for (const char c : text) {
        if (escaped.find(c) != std::string_view::npos) argument += '\\';
        if (c == '%') argument += '%';
        argument += c;
    }
    return argument + '"';
}

bool isFileName(std::string_view text) {
    return !text.empty() && text != "." && text != ".." && text.find('/') == std::string_view::npos &&
           text.find('\0') == std::string_view::npos;
}

fs::path absoluteFolder(const char* variable) {
    const char* const value = std::getenv(variable);
    return value != nullptr && fs::path(value).is_absolute() ? fs::path(value) : fs::path();
}

}  // namespace

fs::path userConfigFolder() {
    if (auto folder = absoluteFolder("XDG_CONFIG_HOME"); !folder.empty()) return folder;
    const auto home = absoluteFolder("HOME");
    return home.empty() ? fs::path() : home / ".config";
}

std::string desktopEntry(const StartedProgram& program) {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=" +
           escapedValue(program.name) + "\nIcon=" + escapedValue(program.icon) +
           "\nTryExec=" + escapedValue(program.executable.string()) +
           "\nExec=" + escapedValue(quotedArgument(program.executable.string())) +
           "\nTerminal=false\n"
           "NoDisplay=true\n"
           "X-GNOME-Autostart-enabled=true\n";
}

Autostart::Autostart(StartedProgram program, const fs::path& configFolder)
    : program_(std::move(program)), folder_(configFolder.empty() ? fs::path() : configFolder / "autostart") {}

bool Autostart::SMLoginItemSetEnabled(std::string_view identifier, bool enabled) {
    if (!isFileName(identifier)) return failed(std::string(identifier), "no name for a file");
    if (folder_.empty()) return failed(std::string(identifier), "there is no configuration folder");
    const auto entry = folder_ / (std::string(identifier) + ".desktop");
    if (enabled) return add(entry);
    std::error_code error;
    fs::remove(entry, error);
    return !error || failed(entry, error.message());
}

bool Autostart::add(const fs::path& entry) const {
    if (!program_.executable.is_absolute()) return failed(entry, "the program's own place is not known");
    std::string error = files::makePrivateFolder(folder_);
    if (!error.empty()) return failed(folder_, error);
    // A session starts what ends in ".desktop": nothing that stands beside the entry meanwhile.
    const auto lock = files::lockFolder(folder_);
    error = files::replaceAtomically(entry, desktopEntry(program_));
    return error.empty() || failed(entry, error);
}

}  // namespace orlamo::xdg
