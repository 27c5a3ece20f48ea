#pragma once

#include <memory>

#include "platform/ViewController.h"

namespace orlamo {

/// Items of one size, one after another in lines.
struct FlowLayout {
    enum class ScrollDirection { vertical = 0, horizontal = 1 };
    ScrollDirection scrollDirection = ScrollDirection::vertical;
    bool sectionHeadersPinToVisibleBounds = false;
    bool sectionFootersPinToVisibleBounds = false;
    Size itemSize{50, 50};  // points
    double minimumLineSpacing = 10;
    double minimumInteritemSpacing = 10;
};

/// One cell of a collection view.
class CollectionViewItem : public ViewController {
public:
    using ViewController::ViewController;
};

struct IndexPath {
    int section = 0;
    int item = 0;
};

class CollectionViewDataSource {
public:
    virtual ~CollectionViewDataSource() = default;
    virtual int numberOfSectionsInCollectionView(CollectionView& collectionView) = 0;
    virtual int numberOfItemsInSection(CollectionView& collectionView, int section) = 0;
    /// With its view loaded and filled. The collection view owns it.
    virtual std::unique_ptr<CollectionViewItem> itemForRepresentedObjectAtIndexPath(CollectionView& collectionView,
                                                                                    IndexPath indexPath) = 0;
};

}  // namespace orlamo
