#include "platform/qt/controls/QtInterfaceFiles.h"

#include <QCoreApplication>
#include <QVariant>

#include "platform/qt/controls/InterfaceWiring.h"
#include "platform/qt/controls/QtPopover.h"

namespace orlamo::qt {

QtInterfaceFiles::QtInterfaceFiles() : translator_(std::make_unique<InterfaceTranslator>()) {
    QCoreApplication::installTranslator(translator_.get());
}

QtInterfaceFiles::~QtInterfaceFiles() = default;

std::unique_ptr<InterfaceView> QtInterfaceFiles::load(std::string_view name, InterfaceOwner& owner) {
    InterfaceLoader loader(name, owner.classes());
    std::unique_ptr<QWidget> root = loader.read(*translator_);
    const bool isThere = root != nullptr;
    auto view = std::make_unique<QtInterfaceView>(isThere ? std::move(root) : std::make_unique<QWidget>(), owner);
    if (isThere) InterfaceWiring(loader, *view, owner).wire();
    return view;
}

WindowDescription QtInterfaceFiles::window(std::string_view name) {
    InterfaceLoader loader(name, {});
    const std::unique_ptr<QWidget> root = loader.read(*translator_);
    if (root == nullptr) return {};
    const auto points = [](QSize size) { return Size{double(size.width()), double(size.height())}; };
    return {.title = root->windowTitle().toStdString(),
            .contentSize = points(root->size()),
            .minSize = points(root->minimumSize()),
            .styleMask = root->property("styleMask").toUInt()};
}

std::unique_ptr<Popover> QtInterfaceFiles::createPopover() {
    return std::make_unique<QtPopover>();
}

}  // namespace orlamo::qt
