#include "preferences/FreeAppsViewController.h"

#include <optional>

#include "platform/Bundle.h"
#include "platform/Clock.h"
#include "platform/UserDefaults.h"
#include "preferences/FreeAppsItem.h"
#include "preferences/InterfaceClasses.h"
#include "preferences/PublisherPages.h"
#include "shell/pages/WebPages.h"
#include "shell/settings/SettingsKeys.h"

namespace orlamo {

namespace {

constexpr double developerPageSeconds = 172800.0;  // two days
constexpr Size cardSize{580.0, 80.0};

StringDictionary application(std::string name, std::string icon, std::string desc) {
    return {{"name", std::move(name)}, {"icon", std::move(icon)}, {"desc", std::move(desc)}};
}

std::vector<StringDictionary> publishersApplications() {
    return {
        application("Orlamo", "app.orlamo.Orlamo", "freeapps.orlamo.desc"),        // all shortcuts at a glance
        application("Tavlumi", "app.orlamo.Tavlumi", "freeapps.tavlumi.desc"),     // what was copied before
        application("Brenquo", "app.orlamo.Brenquo", "freeapps.brenquo.desc"),     // windows side by side
        application("Oskelid", "app.orlamo.Oskelid", "freeapps.oskelid.desc"),     // a ruler for the screen
        application("Pirvanto", "app.orlamo.Pirvanto", "freeapps.pirvanto.desc"),  // many files renamed at once
        application("Zelmoru", "app.orlamo.Zelmoru", "freeapps.zelmoru.desc"),     // work and breaks by the clock
        application("Fenzavo", "app.orlamo.Fenzavo", "freeapps.fenzavo.desc"),     // phrases typed by abbreviation
        application("Murtiglo", "app.orlamo.Murtiglo", "freeapps.murtiglo.desc"),  // what fills the disk
        application("Yarpeno", "app.orlamo.Yarpeno", "freeapps.yarpeno.desc"),     // notes in plain text
    };
}

/// Booleans and texts are no times.
std::optional<double> installTime() {
    const UserDefaults::Value stored = UserDefaults::standardUserDefaults().objectForKey(SettingsKeys::installTime);
    if (const auto* const seconds = std::get_if<double>(&stored)) return *seconds;
    if (const auto* const seconds = std::get_if<std::int64_t>(&stored)) return static_cast<double>(*seconds);
    return std::nullopt;
}

}  // namespace

FreeAppsViewController::FreeAppsViewController()
    : ViewController("FreeAppsViewController"), freeAppsData(publishersApplications()) {}

std::vector<OutletBinding> FreeAppsViewController::outlets() {
    return {{"collectionView", &collectionView}};
}

std::vector<ActionBinding> FreeAppsViewController::actions() {
    return {action("officialWebsiteButtonTap:", *this, &FreeAppsViewController::officialWebsiteButtonTap),
            action("moreApps:", *this, &FreeAppsViewController::moreApps)};
}

std::vector<InterfaceClass> FreeAppsViewController::classes() {
    return interfaceClasses();
}

void FreeAppsViewController::viewDidLoad() {
    ViewController::viewDidLoad();
    const auto cards = collectionView.lock();
    if (cards == nullptr) return;
    if (FlowLayout* const layout = cards->flowLayout()) {
        layout->scrollDirection = FlowLayout::ScrollDirection::vertical;
        layout->sectionHeadersPinToVisibleBounds = false;
        layout->sectionFootersPinToVisibleBounds = false;
        layout->itemSize = cardSize;
        layout->minimumLineSpacing = 0.0;
        layout->minimumInteritemSpacing = 0.0;
    }
    cards->setSelectable(true);
    cards->setAllowsEmptySelection(true);
    cards->setAllowsMultipleSelection(false);
    cards->setDataSource(*this);
}

void FreeAppsViewController::officialWebsiteButtonTap(Control&) {
    openPublisherPage(WebPages::home);
}

void FreeAppsViewController::moreApps(Control&) {
    const auto installed = installTime();
    if (!installed) return;
    const bool isSettledIn = Clock::shared().secondsSince1970() - *installed > developerPageSeconds;
    WebPages::open(WebPages::address(isSettledIn ? WebPages::applications : WebPages::developer));
}

int FreeAppsViewController::numberOfSectionsInCollectionView(CollectionView&) {
    return 1;
}

int FreeAppsViewController::numberOfItemsInSection(CollectionView&, int) {
    return static_cast<int>(freeAppsData.size());
}

std::unique_ptr<CollectionViewItem> FreeAppsViewController::itemForRepresentedObjectAtIndexPath(CollectionView&,
                                                                                                IndexPath indexPath) {
    const StringDictionary& entry = freeAppsData[static_cast<std::size_t>(indexPath.item)];
    auto item = std::make_unique<FreeAppsItem>();
    item->view();
    if (const auto icon = item->icon.lock()) icon->setImage(textOf(entry, "icon"));
    if (const auto name = item->name.lock()) name->setStringValue(textOf(entry, "name"));
    const std::string desc = textOf(entry, "desc");
    if (const auto text = item->desc.lock()) text->setStringValue(desc.empty() ? "" : NSLocalizedString(desc));
    return item;
}

}  // namespace orlamo
