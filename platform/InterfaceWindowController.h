#pragma once

#include <memory>
#include <string>

#include "platform/ViewController.h"
#include "platform/WindowController.h"

namespace orlamo {

/// Owns a window that an interface file describes, and the controller of what it shows. Closing the window hides it.
class InterfaceWindowController : public WindowController {
public:
    InterfaceWindowController(std::string interfaceName, std::unique_ptr<ViewController> contentViewController);
    ~InterfaceWindowController() override;

    ViewController& contentViewController() { return *content_; }
    /// Loads the window at the first call, then windowDidLoad runs; brings it to the front, with the focus. Later, a
    /// window whose middle no screen shows any more goes to the middle of the main screen.
    void showWindow();

    virtual void windowDidLoad() {}

private:
    WindowDescription describe();
    void loadWindow();
    void returnToAScreen();

    std::string interfaceName_;
    std::unique_ptr<ViewController> content_;
    std::unique_ptr<Window> ownWindow_;
};

}  // namespace orlamo
