#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace orlamo::qt {

/// A small file that other programs may change too, replaced as a whole. Reached through symbolic links, it stays where
/// they lead. Errors are texts for the log, empty on success.
class SettingsFile {
public:
    enum class State { absent, read, unreadable };
    struct Content {
        State state = State::absent;
        std::string text;
        std::string error;
    };
    /// What the file is to hold next; none leaves it as it is.
    struct Replacement {
        std::optional<std::string> text;
        bool setsAside = false;  // the present content is damaged: keep it under another name
    };

    explicit SettingsFile(std::filesystem::path path) : path_(std::move(path)) {}

    const std::filesystem::path& path() const { return path_; }

    /// Whether the file may have changed since the last read or replace.
    bool hasChanged() const;
    Content read();
    /// Reads, lets `merge` decide, and replaces, all under a lock against others who do the same. The file has the old
    /// content or the new at every moment, and the new is on the disk when this succeeds. Creates the folder.
    std::string replace(const std::function<Replacement(const Content&)>& merge);

private:
    struct Stamp {
        bool exists = false;
        dev_t device = 0;
        ino_t inode = 0;
        std::int64_t modified = 0;  // nanoseconds since 1970
        std::int64_t changed = 0;
        off_t size = 0;
        bool operator==(const Stamp&) const = default;
    };

    static Stamp stampOf(const struct stat& status);
    Stamp presentStamp() const;
    void remember(const Stamp& stamp);

    std::filesystem::path path_;
    Stamp stamp_;
    bool stampIsFinal_ = false;  // false when the file could change once more within the clock tick of the stamp
};

}  // namespace orlamo::qt
