#include "platform/xdg/AddressOpener.h"

#include <fcntl.h>
#include <gio/gio.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>

#include "platform/Log.h"

namespace orlamo::xdg {

namespace {

constexpr std::size_t longestAddress = 8192;
constexpr std::string_view marks = "-._~:/?#[]@!$&'()*+,;=%";

bool isUrlCharacter(char c) {
    const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    return isLetter || (c >= '0' && c <= '9') || marks.find(c) != std::string_view::npos;
}

/// The scheme in lower case, when the address is one that is opened.
std::optional<std::string> openableScheme(const std::string& address) {
    if (address.size() > longestAddress || !std::ranges::all_of(address, isUrlCharacter)) return std::nullopt;
    const std::unique_ptr<GUri, decltype(&g_uri_unref)> uri(g_uri_parse(address.c_str(), G_URI_FLAGS_NONE, nullptr),
                                                            g_uri_unref);
    if (!uri) return std::nullopt;
    const std::string scheme = g_uri_get_scheme(uri.get());
    const char* const host = g_uri_get_host(uri.get());
    if (scheme == "http" || scheme == "https") {
        return host != nullptr && *host != '\0' ? std::optional(scheme) : std::nullopt;
    }
    const bool isMail = scheme == "mailto" && host == nullptr && *g_uri_get_path(uri.get()) != '\0';
    return isMail ? std::optional(scheme) : std::nullopt;
}

/// The command asks the desktop for the program; where there is none it would fail long after it was started.
bool hasProgramFor(const std::string& scheme) {
    GAppInfo* const program = g_app_info_get_default_for_uri_scheme(scheme.c_str());
    if (program != nullptr) {
        g_object_unref(program);
        return true;
    }
    return scheme != "mailto" && std::getenv("BROWSER") != nullptr;
}

/// In the child: only calls that are safe between fork and exec. Never returns; tells `report` why it could not run.
[[noreturn]] void becomeCommand(char* const* words, int report) {
    const int nothing = ::open("/dev/null", O_RDWR);
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (nothing >= 0) ::dup2(nothing, standard);
    }
    ::execvp(words[0], words);
    const int error = errno;
    [[maybe_unused]] const auto written = ::write(report, &error, sizeof error);
    ::_exit(127);
}

/// Runs the command as nobody's child. 0, or the error that kept it from running.
int startDetached(const std::string& command, const std::string& argument) {
    std::array<int, 2> pipe{};
    if (::pipe2(pipe.data(), O_CLOEXEC) != 0) return errno;
    std::string program = command;
    std::string word = argument;
    const std::array<char*, 3> words{program.data(), word.data(), nullptr};
    const pid_t between = ::fork();
    if (between == 0) {
        ::setsid();
        const pid_t child = ::fork();
        if (child == 0) becomeCommand(words.data(), pipe[1]);
        ::_exit(child < 0 ? 1 : 0);
    }
    int error = between < 0 ? errno : 0;
    ::close(pipe[1]);
    if (between > 0) {
        int status = 0;
        while (::waitpid(between, &status, 0) < 0 && errno == EINTR) {
        }
        if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) error = EAGAIN;
        // Ends with the successful exec, which closes the other end.
        while (::read(pipe[0], &error, sizeof error) < 0 && errno == EINTR) {
        }
    }
    ::close(pipe[0]);
    return error;
}

}  // namespace

bool isOpenableAddress(std::string_view address) {
    return openableScheme(std::string(address)).has_value();
}

bool AddressOpener::open(std::string_view address) const {
    const std::string text(address);
    const auto failed = [&text](const std::string& why) {
        logLine("cannot open " + text.substr(0, 200) + ": " + why);
        return false;
    };
    const auto scheme = openableScheme(text);
    if (!scheme) return failed("not a web or mail address");
    if (!hasProgramFor(*scheme)) return failed("this desktop has no program for " + *scheme);
    if (const int error = startDetached(command_, text); error != 0) return failed(command_ + ": " + strerror(error));
    return true;
}

}  // namespace orlamo::xdg
