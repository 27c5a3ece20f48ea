#pragma once

#include <memory>
#include <string_view>

#include "platform/Interface.h"

namespace orlamo::qt {

class InterfaceTranslator;

/// Interface files are Qt Designer's (.ui) among the bundle's resources. Needs a QApplication and an installed Bundle.
class QtInterfaceFiles final : public InterfaceFiles {
public:
    QtInterfaceFiles();
    ~QtInterfaceFiles() override;

    std::unique_ptr<InterfaceView> load(std::string_view name, InterfaceOwner& owner) override;
    WindowDescription window(std::string_view name) override;
    std::unique_ptr<Popover> createPopover() override;

private:
    std::unique_ptr<InterfaceTranslator> translator_;
};

}  // namespace orlamo::qt
