#include "preferences/FreeAppsItem.h"

#include "preferences/InterfaceClasses.h"

namespace orlamo {

std::vector<OutletBinding> FreeAppsItem::outlets() {
    return {{"icon", &icon}, {"name", &name}, {"desc", &desc}};
}

std::vector<InterfaceClass> FreeAppsItem::classes() {
    return interfaceClasses();
}

void FreeAppsItem::viewDidLoad() {
    CollectionViewItem::viewDidLoad();
    InterfaceView& card = view();
    card.wantsLayer = true;
    card.layer.backgroundColor = Color::clearColor();
    card.layer.cornerRadius = 10.0;
}

}  // namespace orlamo
