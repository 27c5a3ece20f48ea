#pragma once

#include <unistd.h>

#include <cerrno>
#include <utility>

namespace orlamo::files {

/// Owns an open descriptor, or none.
class FileDescriptor {
public:
    explicit FileDescriptor(int descriptor = -1) : descriptor_(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&&) = delete;
    ~FileDescriptor() { close(); }

    bool isOpen() const { return descriptor_ >= 0; }
    int get() const { return descriptor_; }
    /// False with errno when the file system says only now that it could not keep what was written.
    bool close() {
        // Interrupted, it is closed all the same.
        return !isOpen() || ::close(std::exchange(descriptor_, -1)) == 0 || errno == EINTR;
    }

private:
    int descriptor_;
};

/// Calls a system call anew for as long as a signal interrupts it.
template <class Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) result = call();
    return result;
}

}  // namespace orlamo::files
