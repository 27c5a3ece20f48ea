#include "preferences/UserSupportController.h"

#include "preferences/InterfaceClasses.h"
#include "preferences/PublisherPages.h"
#include "shell/pages/WebPages.h"

namespace orlamo {

std::vector<ActionBinding> UserSupportController::actions() {
    return {action("TechnicalSupportButtonTap:", *this, &UserSupportController::TechnicalSupportButtonTap),
            action("QQGroupButtonTap:", *this, &UserSupportController::QQGroupButtonTap)};
}

std::vector<InterfaceClass> UserSupportController::classes() {
    return interfaceClasses();
}

void UserSupportController::TechnicalSupportButtonTap(Control&) {
    openPublisherPage(WebPages::support);
}

void UserSupportController::QQGroupButtonTap(Control&) {
    openPublisherPage(WebPages::chatGroup);
}

}  // namespace orlamo
