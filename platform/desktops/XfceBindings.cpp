#include "platform/desktops/XfceBindings.h"

namespace orlamo::desktops {

std::map<std::string, std::string> xfceBindings(const std::map<std::string, std::string>& properties,
                                                const std::string& root) {
    const auto override = properties.find(root + "/custom/override");
    const bool isCustom = override != properties.end() && override->second == "true";
    const std::string folder = root + (isCustom ? "/custom/" : "/default/");
    std::map<std::string, std::string> bindings;
    for (const auto& [path, action] : properties) {
        // What has a further slash belongs to a binding, as "startup-notify" does.
        if (path.starts_with(folder) && path.find('/', folder.size()) == std::string::npos)
            bindings[path.substr(folder.size())] = action;
    }
    return bindings;
}

}  // namespace orlamo::desktops
