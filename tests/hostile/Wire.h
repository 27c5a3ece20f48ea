#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orlamo::hostile {

/// Part of a message as it goes over the wire.
class Wire {
public:
    Wire& align(std::size_t boundary) {
        bytes_.resize((bytes_.size() + boundary - 1) / boundary * boundary, '\0');
        return *this;
    }
    Wire& raw(std::string_view bytes) {
        bytes_.append(bytes);
        return *this;
    }
    Wire& number(std::uint32_t value) { return align(4).raw({reinterpret_cast<const char*>(&value), sizeof value}); }
    Wire& text(std::string_view value) {
        return number(static_cast<std::uint32_t>(value.size())).raw(value).raw({"", 1});
    }
    /// An object: the name of its connection, and its path.
    Wire& object(std::string_view path, std::string_view bus = "") { return align(8).text(bus).text(path); }
    /// An array of what starts at multiples of `boundary`.
    template <class Fill>
    Wire& array(std::size_t boundary, Fill fill) {
        const std::size_t at = number(0).bytes_.size() - sizeof(std::uint32_t);
        const std::size_t begin = align(boundary).bytes_.size();
        fill();
        const auto length = static_cast<std::uint32_t>(bytes_.size() - begin);
        bytes_.replace(at, sizeof length, reinterpret_cast<const char*>(&length), sizeof length);
        return *this;
    }
    const std::string& bytes() const { return bytes_; }

private:
    std::string bytes_;
};

}  // namespace orlamo::hostile
