#include "shell/pages/WebPages.h"

#include "platform/Bundle.h"
#include "platform/Log.h"
#include "platform/Workspace.h"

namespace orlamo::WebPages {

std::string address(std::string_view page) {
    const PropertyList pages = Bundle::shared().infoDictionaryValue("WebPages");
    if (const auto* const dictionary = pages.get<PropertyList::Dictionary>()) {
        const auto found = dictionary->find(page);
        const auto* const text = found != dictionary->end() ? found->second.get<std::string>() : nullptr;
        if (text != nullptr) return *text;
    }
    logLine("the information dictionary has no address for the page " + std::string(page));
    return "";
}

bool open(std::string_view address) {
    return !address.empty() && Workspace::shared().openURL(address);
}

}  // namespace orlamo::WebPages
