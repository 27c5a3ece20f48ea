#pragma once

#include "platform/ViewController.h"

namespace orlamo {

/// The page that leads to the publisher's help.
class UserSupportController : public ViewController {
public:
    UserSupportController() : ViewController("UserSupportController") {}

    std::vector<ActionBinding> actions() override;
    std::vector<InterfaceClass> classes() override;

    void TechnicalSupportButtonTap(Control& sender);
    void QQGroupButtonTap(Control& sender);
};

}  // namespace orlamo
