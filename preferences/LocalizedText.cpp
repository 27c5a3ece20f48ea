#include "preferences/LocalizedText.h"

#include <charconv>

namespace orlamo {

namespace {

/// A placeholder at the start of a text.
struct Placeholder {
    std::size_t length = 0;    // 0: there is none
    std::size_t position = 0;  // of its argument, from 1; 0: the next one
};

Placeholder placeholderAt(std::string_view text) {
    if (text.starts_with("%@")) return {2, 0};
    std::size_t position = 0;
    const char* const end = text.data() + text.size();
    const auto [after, error] = std::from_chars(text.data() + 1, end, position);
    if (error != std::errc() || position == 0) return {};
    if (!std::string_view(after, end).starts_with("$@")) return {};
    return {static_cast<std::size_t>(after - text.data()) + 2, position};
}

}  // namespace

Bundler& Bundler::shared() {
    static Bundler bundler;
    return bundler;
}

Bundle& Bundler::bundle() {
    std::call_once(once_, [this] { bundle_ = &Bundle::shared(); });
    return *bundle_;
}

const std::string& LocalizedText::text() const {
    std::call_once(once_, [this] { text_ = Bundler::shared().bundle().localizedString(key_); });
    return *text_;
}

std::string formatted(std::string_view format, std::span<const std::string_view> arguments) {
    std::string result;
    std::size_t next = 1;
    for (auto percent = format.find('%'); percent != std::string_view::npos; percent = format.find('%')) {
        result += format.substr(0, percent);
        format.remove_prefix(percent);
        if (format.starts_with("%%")) {
            result += '%';
            format.remove_prefix(2);
            continue;
        }
        const Placeholder placeholder = placeholderAt(format);
        const std::size_t length = placeholder.length == 0 ? 1 : placeholder.length;
        const std::size_t position =
            placeholder.length != 0 && placeholder.position == 0 ? next++ : placeholder.position;
        result += position >= 1 && position <= arguments.size() ? arguments[position - 1] : format.substr(0, length);
        format.remove_prefix(length);
    }
    return result += format;
}

}  // namespace orlamo
