#include "platform/qt/FileReplacement.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <thread>

namespace orlamo::qt {

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
        const ssize_t count = ::write(descriptor, text.data(), text.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

std::string bytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// A folder's own entry for a renamed file. Some file systems have nothing to flush there.
bool flushFolder(const fs::path& folder) {
    const FileDescriptor descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!descriptor.isOpen()) return false;
    return fsync(descriptor.get()) == 0 || errno == EINVAL;
}

}  // namespace

fs::path followLinks(fs::path path, std::string& error) {
    constexpr int mostLinks = 16;
    for (int links = 0; links < mostLinks; ++links) {
        std::error_code code;
        const fs::path next = fs::read_symlink(path, code);
        if (code) return path;
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
    using namespace std::chrono_literals;
    const fs::path path = withEnding(target, ".lock");
    FileDescriptor lock(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, ownerOnly));
    if (!lock.isOpen()) {
        error = failure("lock", path);
        return lock;
    }
    const auto deadline = std::chrono::steady_clock::now() + 500ms;
    while (flock(lock.get(), LOCK_EX | LOCK_NB) != 0) {
        if ((errno != EWOULDBLOCK && errno != EINTR) || std::chrono::steady_clock::now() > deadline) {
            error = failure("lock", path);
            break;
        }
        std::this_thread::sleep_for(5ms);
    }
    return lock;
}

std::string keepAside(const fs::path& target) {
    const std::string content = bytesOf(target);
    for (int number = 1; number <= 9; ++number) {
        const fs::path aside = withEnding(target, number == 1 ? ".damaged" : ".damaged." + std::to_string(number));
        if (link(target.c_str(), aside.c_str()) == 0) return {};
        if (errno == EEXIST) {
            if (bytesOf(aside) == content) return {};
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
    unlink(next.c_str());  // left behind by a writer that was killed
    const FileDescriptor file(open(next.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, ownerOnly));
    if (!file.isOpen()) return failure("create", next);
    const bool written = fchmod(file.get(), ownerOnly) == 0 && writeAll(file.get(), text) && fsync(file.get()) == 0;
    if (!written || rename(next.c_str(), target.c_str()) != 0) {
        std::string error = failure(written ? "replace" : "write", written ? target : next);
        unlink(next.c_str());
        return error;
    }
    return flushFolder(target.parent_path()) ? std::string() : failure("flush", target.parent_path());
}

}  // namespace orlamo::qt
