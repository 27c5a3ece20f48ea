#include "platform/qt/SettingsFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <ctime>

#include "platform/qt/FileReplacement.h"

namespace orlamo::qt {

namespace {

constexpr std::int64_t clockTick = 20'000'000;  // nanoseconds; file systems stamp with the kernel's tick, 1 to 10 ms
constexpr std::size_t largestSize = 4U << 20;

std::int64_t nanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * 1'000'000'000 + time.tv_nsec;
}

std::int64_t now() {
    timespec time{};
    clock_gettime(CLOCK_REALTIME, &time);
    return nanoseconds(time);
}

std::string errorText(const std::string& what, int code) {
    return what + ": " + std::strerror(code);
}

// False with errno on an error; a file that grows beyond `largestSize` is one.
bool readAll(int descriptor, std::string& text) {
    char buffer[16384];
    for (;;) {
        const ssize_t count = ::read(descriptor, buffer, sizeof buffer);
        if (count == 0) return true;
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        text.append(buffer, static_cast<std::size_t>(count));
        if (text.size() > largestSize) {
            errno = EFBIG;
            return false;
        }
    }
}

}  // namespace

SettingsFile::Stamp SettingsFile::stampOf(const struct stat& status) {
    return {true,          status.st_dev, status.st_ino, nanoseconds(status.st_mtim), nanoseconds(status.st_ctim),
            status.st_size};
}

SettingsFile::Stamp SettingsFile::presentStamp() const {
    struct stat status {};
    return stat(path_.c_str(), &status) == 0 ? stampOf(status) : Stamp{};
}

void SettingsFile::remember(const Stamp& stamp) {
    stamp_ = stamp;
    stampIsFinal_ = !stamp.exists || now() - stamp.changed > clockTick;
}

bool SettingsFile::hasChanged() const {
    return !stampIsFinal_ || !(presentStamp() == stamp_);
}

SettingsFile::Content SettingsFile::read() {
    // Not blocking: a pipe may stand there.
    const FileDescriptor file(open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.isOpen()) {
        const int code = errno;
        remember(presentStamp());
        if (code == ENOENT || code == ENOTDIR) return {State::absent, {}, {}};
        return {State::unreadable, {}, errorText("cannot open " + path_.string(), code)};
    }
    struct stat status {};
    if (fstat(file.get(), &status) != 0)
        return {State::unreadable, {}, errorText("cannot read " + path_.string(), errno)};
    remember(stampOf(status));
    if (!S_ISREG(status.st_mode)) return {State::unreadable, {}, path_.string() + " is not a file"};
    Content content{State::read, {}, {}};
    if (!readAll(file.get(), content.text)) {
        return {State::unreadable, {}, errorText("cannot read " + path_.string(), errno)};
    }
    return content;
}

std::string SettingsFile::replace(const std::function<Replacement(const Content&)>& merge) {
    std::string error;
    const std::filesystem::path target = followLinks(path_, error);
    if (!error.empty()) return error;
    if (error = makePrivateFolder(target.parent_path()); !error.empty()) return error;
    const FileDescriptor lock = lockBeside(target, error);
    if (!error.empty()) return error;

    const Content content = read();
    if (content.state == State::unreadable) return content.error;
    const Replacement replacement = merge(content);
    if (!replacement.text) return {};
    if (replacement.setsAside) error = keepAside(target);
    if (error.empty()) error = replaceAtomically(target, *replacement.text);
    if (error.empty()) remember(presentStamp());
    return error;
}

}  // namespace orlamo::qt
