#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "platform/files/FileReplacement.h"

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
    /// Reads, lets `merge` decide, and replaces, all under a lock against others who do the same; anew when somebody
    /// who takes no lock replaced the file meanwhile. The file has the old content or the new at every moment, and the
    /// new is on the disk when this succeeds. Creates the folder.
    std::string replace(const std::function<Replacement(const Content&)>& merge);

private:
    struct Stamp {
        files::FileIdentity file;
        std::int64_t changed = 0;  // nanoseconds since 1970
        bool operator==(const Stamp&) const = default;
    };

    static Stamp stampOf(const struct stat& status);
    Stamp presentStamp() const;
    void remember(const Stamp& stamp);
    files::FileDescriptor openForReading() const;
    Content read(const files::FileDescriptor& file);
    files::Replaced replaceUnlessChanged(const std::function<Replacement(const Content&)>& merge, std::string& error);

    std::filesystem::path path_;
    Stamp stamp_;
    bool stampIsFinal_ = false;  // false when the file could change once more within the clock tick of the stamp
};

}  // namespace orlamo::qt
