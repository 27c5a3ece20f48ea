#pragma once

#include "platform/CollectionViewItem.h"

namespace orlamo {

/// The card of one application. Who asks for it fills it.
class FreeAppsItem : public CollectionViewItem {
public:
    FreeAppsItem() : CollectionViewItem("FreeAppsItem") {}

    Outlet<ImageView> icon;
    Outlet<TextField> name;
    Outlet<TextField> desc;

    std::vector<OutletBinding> outlets() override;
    std::vector<InterfaceClass> classes() override;
    void viewDidLoad() override;
};

}  // namespace orlamo
