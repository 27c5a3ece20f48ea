#pragma once

#include "platform/ViewController.h"

namespace orlamo {

/// What the help of the settings page shows.
class PopoverViewController : public ViewController {
public:
    PopoverViewController() : ViewController("PopoverViewController") {}

    std::weak_ptr<Popover> popover;  // of which it is the content

    std::vector<InterfaceClass> classes() override;
};

}  // namespace orlamo
