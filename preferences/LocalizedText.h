#pragma once

#include <array>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "platform/Bundle.h"

namespace orlamo {

/// Where the texts come from: the bundle that holds this class, the program's own. Asked for at the first read.
class Bundler {
public:
    /// The one of the process, made at the first lookup of any key.
    static Bundler& shared();

    Bundle& bundle();

private:
    std::once_flag once_;
    Bundle* bundle_ = nullptr;
};

/// A text of the string table. Looked up once, at the first read; a change of the language later does not count. A key
/// that the table lacks is its own text. Reads may race.
class LocalizedText {
public:
    constexpr explicit LocalizedText(std::string_view key) : key_(key) {}

    const std::string& text() const;
    operator const std::string&() const { return text(); }

private:
    std::string_view key_;
    mutable std::once_flag once_;
    mutable std::optional<std::string> text_;
};

/// Fills in a format: %@ is the next argument, %2$@ the second, %% a percent sign. A placeholder that is none of these,
/// or whose argument is missing, stays as it stands.
std::string formatted(std::string_view format, std::span<const std::string_view> arguments);

/// A text of the string table with places for `Count` texts. Looked up at every call.
template <std::size_t Count>
class LocalizedFormat {
public:
    constexpr explicit LocalizedFormat(std::string_view key) : key_(key) {}

    template <class... Texts>
    requires(sizeof...(Texts) == Count && (std::is_convertible_v<const Texts&, std::string_view> && ...)) std::string
    operator()(const Texts&... texts) const {
        const std::array<std::string_view, Count> arguments{texts...};
        return formatted(Bundler::shared().bundle().localizedString(key_), arguments);
    }

private:
    std::string_view key_;
};

}  // namespace orlamo
