#include "preferences/PublisherPages.h"

#include <string>

#include "platform/Log.h"
#include "shell/pages/WebPages.h"

namespace orlamo {

void openPublisherPage(std::string_view page) {
    const std::string address = WebPages::address(page);
    logLine("官网地址：" + address);
    openInBrowser(address);
}

void openInBrowser(std::string_view address) {
    if (WebPages::open(address)) logLine("default browser was successfully opened");
}

}  // namespace orlamo
