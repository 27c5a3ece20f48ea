#include "platform/qt/SettingsFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <ctime>

namespace orlamo::qt {

using files::FileDescriptor;
using files::Replaced;

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

}  // namespace

SettingsFile::Stamp SettingsFile::stampOf(const struct stat& status) {
    return {files::identityOf(status), nanoseconds(status.st_ctim)};
}

SettingsFile::Stamp SettingsFile::presentStamp() const {
    struct stat status {};
    return stat(path_.c_str(), &status) == 0 ? stampOf(status) : Stamp{};
}

void SettingsFile::remember(const Stamp& stamp) {
    stamp_ = stamp;
    stampIsFinal_ = !stamp.file.exists || now() - stamp.changed > clockTick;
}

bool SettingsFile::hasChanged() const {
    return !stampIsFinal_ || !(presentStamp() == stamp_);
}

FileDescriptor SettingsFile::openForReading() const {
    // Not blocking: a pipe may stand there.
    return FileDescriptor(files::uninterrupted([&] { return open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK); }));
}

SettingsFile::Content SettingsFile::read() {
    return read(openForReading());
}

SettingsFile::Content SettingsFile::read(const FileDescriptor& file) {
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
    if (!files::readAll(file, largestSize, content.text)) {
        return {State::unreadable, {}, errorText("cannot read " + path_.string(), errno)};
    }
    return content;
}

std::string SettingsFile::replace(const std::function<Replacement(const Content&)>& merge) {
    // Only somebody who takes no lock can come between.
    constexpr int mostAttempts = 50;
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        std::string error;
        if (replaceUnlessChanged(merge, error) != Replaced::changedMeanwhile) return error;
    }
    return path_.string() + " is changed by another program all the time";
}

Replaced SettingsFile::replaceUnlessChanged(const std::function<Replacement(const Content&)>& merge,
                                            std::string& error) {
    const std::filesystem::path target = files::followLinks(path_, error);
    if (error.empty()) error = files::makePrivateFolder(target.parent_path());
    if (!error.empty()) return Replaced::no;
    const FileDescriptor lock = files::lockBeside(target, error);
    if (!error.empty()) return Replaced::no;

    const FileDescriptor file = openForReading();
    const Content content = read(file);
    if (content.state == State::unreadable) {
        error = content.error;
        return Replaced::no;
    }
    const Replacement replacement = merge(content);
    if (!replacement.text) return Replaced::yes;
    if (replacement.text->size() > largestSize) {
        error = errorText("cannot write " + path_.string(), EFBIG);
        return Replaced::no;
    }
    if (replacement.setsAside) error = files::keepAside(target);
    if (!error.empty()) return Replaced::no;
    const bool hasMoved = replacement.setsAside && access(target.c_str(), F_OK) != 0;
    const Replaced replaced =
        files::replaceIfStill(target, hasMoved ? files::FileIdentity() : stamp_.file, *replacement.text, error);
    stampIsFinal_ = false;  // what stands there now may be somebody else's already
    return replaced;
}

}  // namespace orlamo::qt
