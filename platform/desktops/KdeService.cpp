#include "platform/desktops/KdeService.h"

#include <glib.h>

namespace orlamo::desktops {

std::string kdeComponentPath(std::string_view component) {
    std::string name(component);
    for (auto& c : name) {
        if (!g_ascii_isalnum(c)) c = '_';
    }
    return "/component/" + name;
}

}  // namespace orlamo::desktops
