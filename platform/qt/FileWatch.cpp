#include "platform/qt/FileWatch.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <set>

namespace orlamo::qt {

namespace {

// Not IN_CREATE nor IN_MODIFY: a file that is just being written is not worth reading yet.
constexpr std::uint32_t changes = IN_CLOSE_WRITE | IN_MOVED_TO | IN_DELETE | IN_DELETE_SELF | IN_MOVE_SELF;

}  // namespace

FileWatch::~FileWatch() {
    stop();
}

void FileWatch::stop() {
    watch_.reset();
    if (descriptor_ >= 0) ::close(descriptor_);
    descriptor_ = -1;
}

bool FileWatch::start(const std::filesystem::path& file, std::function<void()> task) {
    stop();
    const int descriptor = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    if (descriptor < 0) return false;
    std::error_code error;
    std::set<std::filesystem::path> folders{file.parent_path()};
    const std::filesystem::path target = std::filesystem::weakly_canonical(file, error);
    if (!error) folders.insert(target.parent_path());
    bool isComplete = true;
    for (const auto& folder : folders) {
        isComplete = ::inotify_add_watch(descriptor, folder.c_str(), changes) >= 0 && isComplete;
    }
    if (!isComplete) {
        ::close(descriptor);
        return false;
    }
    descriptor_ = descriptor;
    task_ = std::move(task);
    watch_ = RunLoop::shared().watchReadable(descriptor_, [this] { drain(); });
    return true;
}

void FileWatch::drain() {
    alignas(inotify_event) std::array<char, 4096> buffer{};
    bool folderIsGone = false;
    ssize_t size = 0;
    while ((size = ::read(descriptor_, buffer.data(), buffer.size())) > 0) {
        for (ssize_t at = 0; at + static_cast<ssize_t>(sizeof(inotify_event)) <= size;) {
            inotify_event event{};
            std::memcpy(&event, buffer.data() + at, sizeof event);
            folderIsGone |= (event.mask & (IN_DELETE_SELF | IN_MOVE_SELF | IN_IGNORED)) != 0;
            at += static_cast<ssize_t>(sizeof event + event.len);
        }
    }
    // The task may start the watch anew, so it runs last.
    const auto task = task_;
    if (folderIsGone) stop();
    task();
}

}  // namespace orlamo::qt
