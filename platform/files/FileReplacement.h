#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "platform/files/FileDescriptor.h"

namespace orlamo::files {

/// Appends what is in the file. False with errno on an error; more than `most` bytes are one.
bool readAll(const FileDescriptor& file, std::size_t most, std::string& text);

// Errors below are texts for the log, empty on success.

/// Which file stands somewhere and since when; survives renaming. Nobody else's file has it while that one is open.
struct FileIdentity {
    bool exists = false;
    dev_t device = 0;
    ino_t inode = 0;
    std::int64_t modified = 0;  // nanoseconds since 1970
    off_t size = 0;
    bool operator==(const FileIdentity&) const = default;
};
FileIdentity identityOf(const struct stat& status);

/// Where the path leads through symbolic links, also when nothing is there yet.
std::filesystem::path followLinks(std::filesystem::path path, std::string& error);

/// Creates what is missing of the folder, for its owner only.
std::string makePrivateFolder(const std::filesystem::path& folder);

/// Locks a file beside `target` against others who do the same, until the descriptor is closed. Gives up after half a
/// second.
FileDescriptor lockBeside(const std::filesystem::path& target, std::string& error);

/// The same of all files in a folder, without a file for it; where the file system cannot lock a folder, of none.
FileDescriptor lockFolder(const std::filesystem::path& folder);

/// Gives the file a second name ("settings.json.damaged", then ".damaged.2", up to 9), so that replacing it loses
/// nothing. Content that is kept already is not kept twice. Where a file has one name only, it moves.
std::string keepAside(const std::filesystem::path& target);

/// Writes beside `target` ("settings.json.new"), for its owner only, and moves it there once it is on the disk. Call
/// under a lock.
std::string replaceAtomically(const std::filesystem::path& target, std::string_view text);

enum class Replaced { yes, no, changedMeanwhile };

/// The same, if `expected` (or nothing) stands there still at that moment, and else changes nothing. Call under the
/// lock, with the expected file open. Where the file system cannot exchange two files, somebody who takes no lock may
/// come between the last look and the move.
Replaced replaceIfStill(const std::filesystem::path& target, const FileIdentity& expected, std::string_view text,
                        std::string& error);

}  // namespace orlamo::files
