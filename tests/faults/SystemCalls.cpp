#include "tests/faults/SystemCalls.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <utility>

namespace orlamo {

namespace {

SystemCalls* current = nullptr;

SystemCalls::Answer ask(std::string_view name) {
    return current != nullptr ? current->ask(name) : SystemCalls::Answer{};
}

bool fails(std::string_view name) {
    const int error = ask(name).error;
    if (error != 0) errno = error;
    return error != 0;
}

template <class Function>
Function* real(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

SystemCalls::SystemCalls(Plan plan) : plan_(std::move(plan)) {
    current = this;
}

SystemCalls::~SystemCalls() {
    current = nullptr;
}

SystemCalls::Answer SystemCalls::ask(std::string_view name) {
    if (std::exchange(isAsking_, true)) return {};
    const Answer answer = plan_(++made_, name);
    isAsking_ = false;
    return answer;
}

// A name of the program itself comes before that of a library, for the libraries too.
#define ORLAMO_CALL(name, parameters, arguments)               \
    extern "C" int name parameters noexcept {                  \
        static auto* const call = real<int parameters>(#name); \
        return fails(#name) ? -1 : call arguments;             \
    }

ORLAMO_CALL(fchmod, (int file, mode_t mode), (file, mode))
ORLAMO_CALL(flock, (int file, int how), (file, how))
ORLAMO_CALL(fstat, (int file, struct stat* status), (file, status))
ORLAMO_CALL(stat, (const char* path, struct stat* status), (path, status))
ORLAMO_CALL(lstat, (const char* path, struct stat* status), (path, status))
ORLAMO_CALL(unlink, (const char* path), (path))
ORLAMO_CALL(access, (const char* path, int how), (path, how))
ORLAMO_CALL(mkdir, (const char* path, mode_t mode), (path, mode))
ORLAMO_CALL(link, (const char* from, const char* to), (from, to))
ORLAMO_CALL(rename, (const char* from, const char* to), (from, to))
ORLAMO_CALL(renameat2, (int a, const char* from, int b, const char* to, unsigned how), (a, from, b, to, how))

extern "C" int fsync(int file) {
    static auto* const call = real<int(int)>("fsync");
    return fails("fsync") ? -1 : call(file);
}

extern "C" ssize_t readlink(const char* path, char* target, std::size_t size) noexcept {
    static auto* const call = real<ssize_t(const char*, char*, std::size_t)>("readlink");
    return fails("readlink") ? -1 : call(path, target, size);
}

extern "C" int open(const char* path, int flags, ...) {
    static auto* const call = real<int(const char*, int, ...)>("open");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    return fails("open") ? -1 : call(path, flags, mode);
}

// A descriptor is closed also when that fails.
extern "C" int close(int file) {
    static auto* const call = real<int(int)>("close");
    const int error = ask("close").error;
    const int result = call(file);
    if (error != 0) errno = error;
    return error != 0 ? -1 : result;
}

extern "C" ssize_t read(int file, void* buffer, std::size_t size) {
    static auto* const call = real<ssize_t(int, void*, std::size_t)>("read");
    const SystemCalls::Answer answer = ask("read");
    if (answer.error != 0) errno = answer.error;
    return answer.error != 0 ? -1 : call(file, buffer, answer.isShort ? 1 : size);
}

extern "C" ssize_t write(int file, const void* buffer, std::size_t size) {
    static auto* const call = real<ssize_t(int, const void*, std::size_t)>("write");
    const SystemCalls::Answer answer = ask("write");
    if (answer.error != 0) errno = answer.error;
    return answer.error != 0 ? -1 : call(file, buffer, answer.isShort ? 1 : size);
}

}  // namespace orlamo
