#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

namespace orlamo::qt {

/// Owns an open descriptor, or none.
class FileDescriptor {
public:
    explicit FileDescriptor(int descriptor = -1) : descriptor_(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&&) = delete;
    ~FileDescriptor() {
        if (isOpen()) close(descriptor_);
    }

    bool isOpen() const { return descriptor_ >= 0; }
    int get() const { return descriptor_; }

private:
    int descriptor_;
};

// Errors are texts for the log, empty on success.

/// Where the path leads through symbolic links, also when nothing is there yet.
std::filesystem::path followLinks(std::filesystem::path path, std::string& error);

/// Creates what is missing of the folder, for its owner only.
std::string makePrivateFolder(const std::filesystem::path& folder);

/// Locks a file beside `target` against others who do the same, until the descriptor is closed. Gives up after half a
/// second.
FileDescriptor lockBeside(const std::filesystem::path& target, std::string& error);

/// Gives the file a second name ("settings.json.damaged", then ".damaged.2", up to 9), so that replacing it loses
/// nothing. Content that is kept already is not kept twice.
std::string keepAside(const std::filesystem::path& target);

/// Writes beside `target`, for its owner only, and moves it there once it is on the disk. Call under the lock.
std::string replaceAtomically(const std::filesystem::path& target, std::string_view text);

}  // namespace orlamo::qt
