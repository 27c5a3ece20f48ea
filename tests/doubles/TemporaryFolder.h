#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace orlamo {

/// A folder of a test's own, removed with all that is in it. In memory where there is such a place, as nothing in it
/// has to last.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string name = (std::filesystem::exists("/dev/shm") ? "/dev/shm" : "/tmp") + std::string("/orlamo-XXXXXX");
        if (::mkdtemp(name.data()) == nullptr) std::abort();
        path = name;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() { std::filesystem::remove_all(path); }

    std::filesystem::path path;
};

/// Empty also when there is no such file.
inline std::string contentOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace orlamo
