#include "shell/pages/WebPages.h"

#include "platform/Bundle.h"
#include "platform/Log.h"
#include "platform/Workspace.h"

namespace orlamo::WebPages {

std::string address(std::string_view page) {
    const PropertyList pages = Bundle::shared().infoDictionaryValue("WebPages");
    const PropertyList* const entry = pages.at(page);
    if (const auto* const text = entry != nullptr ? entry->get<std::string>() : nullptr) return *text;
    logLine("the information dictionary has no address for the page " + std::string(page));
    return "";
}

bool open(std::string_view address) {
    return !address.empty() && Workspace::shared().openURL(address);
}

}  // namespace orlamo::WebPages
