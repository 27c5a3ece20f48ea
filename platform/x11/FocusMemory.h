#pragma once

#include <cstdint>
#include <optional>

namespace orlamo::x11 {

/// Who has the input focus, as this program sees it.
enum class FocusHolder { thisProgram, otherProgram, nobody };

/// The window that had the focus before one of ours took it, so that exactly that one gets it back.
class FocusMemory {
public:
    struct Former {
        std::uint32_t window = 0;
        int processIdentifier = 0;  // of its application
        bool operator==(const Former&) const = default;
    };

    /// One of our windows takes the focus from `former`; from another of ours when there is none, and then the
    /// remembered one stays.
    void taken(FocusHolder before, std::optional<Former> former) {
        if (before != FocusHolder::thisProgram) former_ = former;
        isTaken_ = true;
    }
    std::optional<Former> former() const { return former_; }
    void settled() {
        former_.reset();
        isTaken_ = false;
    }
    /// Whether this program counts as the one in front. A window of ours that has just closed leaves the focus with
    /// nobody: it is still ours to give back. Once it is elsewhere there is nothing to return.
    bool isFrontmost(FocusHolder now) {
        if (now == FocusHolder::otherProgram) settled();
        return now == FocusHolder::thisProgram || (now == FocusHolder::nobody && isTaken_);
    }

private:
    std::optional<Former> former_;
    bool isTaken_ = false;
};

}  // namespace orlamo::x11
