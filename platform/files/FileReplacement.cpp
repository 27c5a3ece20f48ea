#include "platform/files/FileReplacement.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <optional>
#include <thread>

namespace orlamo::files {

namespace {

namespace fs = std::filesystem;

constexpr mode_t ownerOnly = 0600;

std::string failure(const std::string& what, const fs::path& path) {
    return "cannot " + what + " " + path.string() + ": " + std::strerror(errno);
}

fs::path withEnding(const fs::path& path, const std::string& ending) {
    return path.string() + ending;
}

bool writeAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        errno = EIO;  // of a file system that takes nothing and gives no reason
        const ssize_t count = uninterrupted([&] { return ::write(descriptor, text.data(), text.size()); });
        if (count <= 0) return false;
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

std::optional<std::string> bytesOf(const fs::path& path) {
    constexpr std::size_t most = 4U << 20;
    const FileDescriptor file(
        uninterrupted([&] { return open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW); }));
    std::string bytes;
    if (!file.isOpen() || !readAll(file, most, bytes)) return std::nullopt;
    return bytes;
}

FileDescriptor openFolder(const fs::path& folder) {
    return FileDescriptor(uninterrupted([&] { return open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
}

bool isLockedSoon(const FileDescriptor& lock) {
    using namespace std::chrono_literals;
    const auto deadline = std::chrono::steady_clock::now() + 500ms;
    while (flock(lock.get(), LOCK_EX | LOCK_NB) != 0) {
        if ((errno != EWOULDBLOCK && errno != EINTR) || std::chrono::steady_clock::now() > deadline) return false;
        std::this_thread::sleep_for(5ms);
    }
    return true;
}

// A folder's own entry for a renamed file. Some file systems have nothing to flush there.
bool flushFolder(const fs::path& folder) {
    const FileDescriptor descriptor = openFolder(folder);
    if (!descriptor.isOpen()) return false;
    return uninterrupted([&] { return fsync(descriptor.get()); }) == 0 || errno == EINVAL;
}

FileIdentity identityAt(const fs::path& path) {
    struct stat status {};
    return lstat(path.c_str(), &status) == 0 ? identityOf(status) : FileIdentity();
}

std::string writeWhole(const fs::path& path, std::string_view text) {
    unlink(path.c_str());  // left behind by a writer that was killed
    FileDescriptor file(uninterrupted(
        [&] { return open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, ownerOnly); }));
    if (!file.isOpen()) return failure("create", path);
    if (fchmod(file.get(), ownerOnly) == 0 && writeAll(file.get(), text) &&
        uninterrupted([&] { return fsync(file.get()); }) == 0 && file.close()) {
        return {};
    }
    std::string error = failure("write", path);
    unlink(path.c_str());
    return error;
}

bool move(const fs::path& from, const fs::path& to, unsigned how) {
    return uninterrupted([&] { return renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), how); }) == 0;
}

bool movesPlainlyOnly(int code) {
    return code == EINVAL || code == ENOSYS || code == EOPNOTSUPP;
}

// What came out to `next` is newer than what was expected: it goes back, and so does what others put there meanwhile,
// until what comes out is what was put in last.
Replaced putBack(const fs::path& next, const fs::path& target, FileIdentity put, FileIdentity taken,
                 std::string& error) {
    constexpr int mostTurns = 16;
    for (int turn = 0; turn < mostTurns && move(next, target, RENAME_EXCHANGE); ++turn) {
        const FileIdentity out = identityAt(next);
        if (out == put) {
            unlink(next.c_str());
            return Replaced::changedMeanwhile;
        }
        put = taken;
        taken = out;
    }
    if (move(next, target, 0)) return Replaced::changedMeanwhile;
    error = failure("put back", target);
    return Replaced::no;
}

Replaced moveIfStill(const fs::path& next, const fs::path& target, const FileIdentity& expected, std::string& error) {
    const FileIdentity own = identityAt(next);
    if (move(next, target, expected.exists ? RENAME_EXCHANGE : RENAME_NOREPLACE)) {
        if (!expected.exists) return Replaced::yes;
        const FileIdentity taken = identityAt(next);
        if (!(taken == expected)) return putBack(next, target, own, taken, error);
        unlink(next.c_str());
        return Replaced::yes;
    }
    const int code = errno;
    bool hasChanged = code == EEXIST || code == ENOENT;
    if (movesPlainlyOnly(code)) {
        hasChanged = !(identityAt(target) == expected);
        if (!hasChanged && move(next, target, 0)) return Replaced::yes;
    }
    if (!hasChanged) error = failure("replace", target);
    unlink(next.c_str());
    return hasChanged ? Replaced::changedMeanwhile : Replaced::no;
}

}  // namespace

bool readAll(const FileDescriptor& file, std::size_t most, std::string& text) {
    char buffer[16384];
    for (;;) {
        const ssize_t count = uninterrupted([&] { return ::read(file.get(), buffer, sizeof buffer); });
        if (count <= 0) return count == 0;
        text.append(buffer, static_cast<std::size_t>(count));
        if (text.size() > most) {
            errno = EFBIG;
            return false;
        }
    }
}

FileIdentity identityOf(const struct stat& status) {
    return {true, status.st_dev, status.st_ino,
            std::int64_t{status.st_mtim.tv_sec} * 1'000'000'000 + status.st_mtim.tv_nsec, status.st_size};
}

fs::path followLinks(fs::path path, std::string& error) {
    constexpr int mostLinks = 16;
    for (int links = 0; links < mostLinks; ++links) {
        std::error_code code;
        const fs::path next = fs::read_symlink(path, code);
        if (code) {
            // No link, or nothing there yet. Of anything else nobody knows what it is.
            const int reason = code.value();
            if (reason != EINVAL && reason != ENOENT && reason != ENOTDIR) {
                error = "cannot read " + path.string() + ": " + code.message();
            }
            return path;
        }
        path = next.is_absolute() ? next : path.parent_path() / next;
    }
    error = path.string() + " is a link that leads nowhere";
    return path;
}

std::string makePrivateFolder(const fs::path& folder) {
    std::error_code code;
    if (folder.empty() || fs::is_directory(folder, code)) return {};
    if (std::string error = makePrivateFolder(folder.parent_path()); !error.empty()) return error;
    if (mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST) return failure("create", folder);
    return {};
}

FileDescriptor lockBeside(const fs::path& target, std::string& error) {
    const fs::path path = withEnding(target, ".lock");
    FileDescriptor lock(
        uninterrupted([&] { return open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, ownerOnly); }));
    if (!lock.isOpen()) {
        error = failure("lock", path);
        return lock;
    }
    if (!isLockedSoon(lock)) error = failure("lock", path);
    return lock;
}

FileDescriptor lockFolder(const fs::path& folder) {
    FileDescriptor lock(openFolder(folder));
    if (lock.isOpen()) isLockedSoon(lock);
    return lock;
}

std::string keepAside(const fs::path& target) {
    const auto content = bytesOf(target);
    for (int number = 1; number <= 9; ++number) {
        const fs::path aside = withEnding(target, number == 1 ? ".damaged" : ".damaged." + std::to_string(number));
        if (link(target.c_str(), aside.c_str()) == 0) return {};
        if (errno == EEXIST) {
            if (content && bytesOf(aside) == content) return {};
            continue;
        }
        // No second names on this file system: the file itself moves.
        if (errno == EPERM && rename(target.c_str(), aside.c_str()) == 0) return {};
        return failure("keep the damaged content as", aside);
    }
    return "too many damaged copies of " + target.string() + "; please look at them and remove them";
}

std::string replaceAtomically(const fs::path& target, std::string_view text) {
    const fs::path next = withEnding(target, ".new");
    if (std::string error = writeWhole(next, text); !error.empty()) return error;
    if (!move(next, target, 0)) {
        std::string error = failure("replace", target);
        unlink(next.c_str());
        return error;
    }
    return flushFolder(target.parent_path()) ? std::string() : failure("flush", target.parent_path());
}

Replaced replaceIfStill(const fs::path& target, const FileIdentity& expected, std::string_view text,
                        std::string& error) {
    const fs::path next = withEnding(target, ".new");
    if (error = writeWhole(next, text); !error.empty()) return Replaced::no;
    const Replaced replaced = moveIfStill(next, target, expected, error);
    if (replaced != Replaced::yes || flushFolder(target.parent_path())) return replaced;
    error = failure("flush", target.parent_path());
    return Replaced::no;
}

}  // namespace orlamo::files
