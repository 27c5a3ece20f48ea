#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orlamo::hostile {

/// The body of a message as it goes over the wire, for answers that are too long to be put together while somebody
/// waits.
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
    Wire& number(std::uint32_t value) {
        align(4);
        bytes_.append(reinterpret_cast<const char*>(&value), sizeof value);
        return *this;
    }
    Wire& text(std::string_view value) {
        number(static_cast<std::uint32_t>(value.size()));
        bytes_.append(value).push_back('\0');
        return *this;
    }
    /// An object: the name of its connection, and its path.
    Wire& object(std::string_view path) { return align(8).text("").text(path); }
    /// An array of structures.
    template <class Fill>
    Wire& array(Fill fill) {
        const std::size_t at = number(0).bytes_.size() - sizeof(std::uint32_t);
        const std::size_t begin = align(8).bytes_.size();
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
