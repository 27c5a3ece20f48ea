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

template <class Buffer>
ssize_t transfer(const char* name, int file, Buffer* buffer, std::size_t size) {
    static auto* const call = real<ssize_t(int, Buffer*, std::size_t)>(name);
    const SystemCalls::Answer answer = ask(name);
    if (answer.error != 0) errno = answer.error;
    return answer.error != 0 ? -1 : call(file, buffer, answer.isShort ? 1 : size);
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
#define ORLAMO_CALL(Result, name, parameters, arguments, qualifier) \
    extern "C" Result name parameters qualifier {                   \
        static auto* const call = real<Result parameters>(#name);   \
        return fails(#name) ? -1 : call arguments;                  \
    }

ORLAMO_CALL(int, fchmod, (int file, mode_t mode), (file, mode), noexcept)
ORLAMO_CALL(int, flock, (int file, int how), (file, how), noexcept)
ORLAMO_CALL(int, fstat, (int file, struct stat* status), (file, status), noexcept)
ORLAMO_CALL(int, stat, (const char* path, struct stat* status), (path, status), noexcept)
ORLAMO_CALL(int, lstat, (const char* path, struct stat* status), (path, status), noexcept)
ORLAMO_CALL(int, unlink, (const char* path), (path), noexcept)
ORLAMO_CALL(int, access, (const char* path, int how), (path, how), noexcept)
ORLAMO_CALL(int, mkdir, (const char* path, mode_t mode), (path, mode), noexcept)
ORLAMO_CALL(int, link, (const char* from, const char* to), (from, to), noexcept)
ORLAMO_CALL(int, rename, (const char* from, const char* to), (from, to), noexcept)
ORLAMO_CALL(int, renameat2, (int a, const char* from, int b, const char* to, unsigned how), (a, from, b, to, how),
            noexcept)
ORLAMO_CALL(ssize_t, readlink, (const char* path, char* target, std::size_t size), (path, target, size), noexcept)
ORLAMO_CALL(int, fsync, (int file), (file), )

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
    return transfer("read", file, buffer, size);
}

extern "C" ssize_t write(int file, const void* buffer, std::size_t size) {
    return transfer("write", file, buffer, size);
}

}  // namespace orlamo
