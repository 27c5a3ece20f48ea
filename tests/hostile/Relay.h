#pragma once

#include <atomic>
#include <string>

namespace orlamo::hostile {

/// Carries the bytes of a connection, and does to those that go out what no well-formed program can do.
struct Relay {
    std::atomic<long> allowance{-1};       // bytes that still go out; -1: all
    std::atomic<int> dripMicroseconds{0};  // one byte at a time with this pause; 0: as they come
    std::atomic<bool> isRubbish{false};    // what goes out is noise
    std::string marker, replacement;       // of the same length
    bool closesWhenSpent = false;

    /// Starts carrying between `outside` and the returned descriptor, until either end closes.
    int carry(int outside);

private:
    bool send(int outside, std::string bytes);
};

}  // namespace orlamo::hostile
