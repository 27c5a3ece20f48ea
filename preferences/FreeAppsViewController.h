#pragma once

#include <memory>
#include <vector>

#include "platform/CollectionViewItem.h"
#include "preferences/StringDictionary.h"

namespace orlamo {

/// The page that presents the publisher's applications, one card below the other.
class FreeAppsViewController : public ViewController, public CollectionViewDataSource {
public:
    FreeAppsViewController();

    Outlet<CollectionView> collectionView;
    /// "name" as shown, "icon" an image resource, "desc" a key of the string table. Fixed.
    const std::vector<StringDictionary> freeAppsData;

    std::vector<OutletBinding> outlets() override;
    std::vector<ActionBinding> actions() override;
    std::vector<InterfaceClass> classes() override;
    void viewDidLoad() override;

    void officialWebsiteButtonTap(Control& sender);
    /// Opens the list of applications, or the developer's page until two days after the installation. Nothing unless
    /// the settings hold the time of the installation.
    void moreApps(Control& sender);

    int numberOfSectionsInCollectionView(CollectionView& collectionView) override;
    int numberOfItemsInSection(CollectionView& collectionView, int section) override;
    std::unique_ptr<CollectionViewItem> itemForRepresentedObjectAtIndexPath(CollectionView& collectionView,
                                                                            IndexPath indexPath) override;
};

}  // namespace orlamo
