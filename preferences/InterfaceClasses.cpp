#include "preferences/InterfaceClasses.h"

#include "preferences/DisablableScrollView.h"
#include "preferences/FlippedView.h"
#include "preferences/GradientView.h"

namespace orlamo {

namespace {

template <class Base, class Made>
InterfaceClass interfaceClass(std::string_view name) {
    return {name, [] { return std::unique_ptr<Base>(std::make_unique<Made>()); }};
}

}  // namespace

std::vector<InterfaceClass> interfaceClasses() {
    return {interfaceClass<ScrollViewBehavior, DisablableScrollView>("DisablableScrollView"),
            interfaceClass<View, FlippedView>("FlippedView"), interfaceClass<View, GradientView>("GradientView")};
}

}  // namespace orlamo
