#include "preferences/PopoverViewController.h"

#include "preferences/InterfaceClasses.h"

namespace orlamo {

std::vector<InterfaceClass> PopoverViewController::classes() {
    return interfaceClasses();
}

}  // namespace orlamo
