#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace orlamo::fuzz {

/// Ends the program when what has to hold for every input does not.
inline void require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

/// Makes choices out of bytes. After the last one every choice is 0, every text empty.
class FuzzInput {
public:
    explicit FuzzInput(std::string_view bytes) : rest_(bytes) {}

    bool isEmpty() const { return rest_.empty(); }
    std::uint8_t byte() {
        if (rest_.empty()) return 0;
        const auto first = static_cast<std::uint8_t>(rest_.front());
        rest_.remove_prefix(1);
        return first;
    }
    bool flag() { return (byte() & 1) != 0; }
    /// Less than `count`, which is 1 to 256.
    std::size_t below(std::size_t count) { return byte() % count; }
    std::uint64_t number(int bytes) {
        std::uint64_t value = 0;
        while (bytes-- > 0) value = value << 8 | byte();
        return value;
    }
    /// The bytes up to the next line end, which is taken too.
    std::string_view line() {
        const auto end = rest_.find('\n');
        const auto text = rest_.substr(0, end);
        rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
        return text;
    }

private:
    std::string_view rest_;
};

}  // namespace orlamo::fuzz
