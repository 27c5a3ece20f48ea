#include "preferences/Preferences.h"

#include "preferences/InitialViewController.h"

namespace orlamo {

Preferences::Preferences() : InterfaceWindowController("Preferences", std::make_unique<InitialViewController>()) {}

void Preferences::windowDidLoad() {
    InterfaceWindowController::windowDidLoad();
    window()->center();
}

bool Preferences::windowShouldClose() {
    return true;
}

}  // namespace orlamo
