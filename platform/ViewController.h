#pragma once

#include <memory>
#include <string>

#include "platform/Interface.h"

namespace orlamo {

/// Owns the view of the interface file that is named after it.
class ViewController : public InterfaceOwner {
public:
    explicit ViewController(std::string interfaceName) : interfaceName_(std::move(interfaceName)) {}
    ViewController(const ViewController&) = delete;
    ViewController& operator=(const ViewController&) = delete;

    const std::string& interfaceName() const { return interfaceName_; }
    bool isViewLoaded() const { return view_ != nullptr; }
    /// Loads it at the first call, then viewDidLoad runs.
    InterfaceView& view();

    virtual void viewDidLoad() {}

private:
    std::string interfaceName_;
    std::unique_ptr<InterfaceView> view_;
};

}  // namespace orlamo
