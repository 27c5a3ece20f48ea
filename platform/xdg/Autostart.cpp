#include "platform/xdg/Autostart.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "platform/Log.h"

namespace orlamo::xdg {

namespace {

namespace fs = std::filesystem;

constexpr mode_t entryMode = 0644;

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

bool writeAll(int file, std::string_view text) {
    while (!text.empty()) {
        const auto written = ::write(file, text.data(), text.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return false;
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return ::fchmod(file, entryMode) == 0 && ::fsync(file) == 0;
}

// Writes beside the file and then renames. The ending of the name beside it is none that a session starts.
bool replaceFile(const fs::path& path, std::string_view text) {
    auto beside = (path.parent_path() / ("." + path.filename().string() + ".XXXXXX")).string();
    const int file = ::mkstemp(beside.data());
    if (file < 0) return failed(path, std::strerror(errno));
    bool isWritten = writeAll(file, text);
    int error = errno;
    if (::close(file) != 0 && isWritten) {
        isWritten = false;
        error = errno;
    }
    if (isWritten && ::rename(beside.c_str(), path.c_str()) == 0) return true;
    if (isWritten) error = errno;
    ::unlink(beside.c_str());
    return failed(path, std::strerror(error));
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
    std::error_code error;
    fs::create_directories(folder_, error);
    if (error) return failed(folder_, error.message());
    return replaceFile(entry, desktopEntry(program_));
}

}  // namespace orlamo::xdg
