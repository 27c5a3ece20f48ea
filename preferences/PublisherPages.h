#pragma once

#include <string_view>

namespace orlamo {

/// What a page's button does: opens the page (a name of WebPages) in the default browser. Its address and the success
/// are lines in the log; an address that is none opens nothing.
void openPublisherPage(std::string_view page);

/// Opens an address in the default browser; only the success is a line in the log.
void openInBrowser(std::string_view address);

}  // namespace orlamo
