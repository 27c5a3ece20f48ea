#pragma once

#include <string>
#include <string_view>

namespace orlamo::xdg {

/// Opens web and mail addresses with the program that the user has chosen for them.
class AddressOpener {
public:
    /// `command` is run with the address as its only argument, never through a shell.
    explicit AddressOpener(std::string command = "xdg-open") : command_(std::move(command)) {}

    /// Returns once that command has begun; it and what it starts do not end with this program. False, with a line in
    /// the log, for anything but a well-formed http, https or mailto address, and when nothing here opens such a one.
    bool open(std::string_view address) const;

private:
    std::string command_;
};

/// An absolute http or https address with a host, or a mailto address; nothing in it but the characters of a URL.
bool isOpenableAddress(std::string_view address);

}  // namespace orlamo::xdg
