#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/PropertyList.h"
#include "platform/Service.h"

namespace orlamo {

/// The program's own resources: information dictionary, files, string table. `Bundle::shared()` is the main bundle.
class Bundle : public Service<Bundle> {
public:
    virtual ~Bundle() = default;

    virtual std::string bundleIdentifier() const = 0;
    /// An entry of the information dictionary; absent when there is none.
    virtual PropertyList infoDictionaryValue(std::string_view key) const = 0;
    /// The file's path, or none when the bundle has no such resource. `type` is the ending without its dot.
    virtual std::optional<std::string> pathForResource(std::string_view name, std::string_view type) const = 0;
    /// The text of the user's language from the default table; the key itself when the table lacks it.
    virtual std::string localizedString(std::string_view key) const = 0;
};

/// A text of the main bundle's string table; the comment for translators is always empty.
inline std::string NSLocalizedString(std::string_view key) {
    return Bundle::shared().localizedString(key);
}

}  // namespace orlamo
