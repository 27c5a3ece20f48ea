#pragma once

#include <filesystem>
#include <functional>
#include <memory>

#include "platform/RunLoop.h"

namespace orlamo::qt {

/// Calls a task when a file may have been replaced, written or removed by anybody: watches the folder that
/// holds it, and where it is a symbolic link, the folder of what it leads to.
class FileWatch {
public:
    FileWatch() = default;
    ~FileWatch();
    FileWatch(const FileWatch&) = delete;
    FileWatch& operator=(const FileWatch&) = delete;

    /// False when its folder does not exist, or cannot be watched. Starts anew when it is called again.
    bool start(const std::filesystem::path& file, std::function<void()> task);
    /// False before start, and once the folder went away.
    bool isWatching() const { return descriptor_ >= 0; }

private:
    void stop();
    void drain();

    int descriptor_ = -1;
    std::function<void()> task_;
    std::unique_ptr<RunLoop::Handle> watch_;
};

}  // namespace orlamo::qt
