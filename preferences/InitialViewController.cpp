#include "preferences/InitialViewController.h"

#include "platform/Log.h"
#include "preferences/FreeAppsViewController.h"
#include "preferences/InterfaceClasses.h"
#include "preferences/LCCustomTableRowView.h"
#include "preferences/Localization.h"
#include "preferences/SettingsController.h"
#include "preferences/TutorialViewController.h"
#include "preferences/UserSupportController.h"
#include "shell/utility/Utility.h"

namespace orlamo {

namespace {

constexpr double rowHeight = 32.0;
constexpr Size rowSpacing{0.0, 10.0};

}  // namespace

InitialViewController::InitialViewController()
    : ViewController("InitialViewController"),
      TabsData{{{"title", Localization::TabOption::settings}, {"image", "General1"}},
               {{"title", Localization::TabOption::tutorial}, {"image", "Learn1"}},
               {{"title", Localization::TabOption::freeApps}, {"image", "freeapp1"}},
               {{"title", Localization::TabOption::about}, {"image", "contactus2"}}} {}

const std::vector<std::unique_ptr<ViewController>>& InitialViewController::viewControllers() {
    if (viewControllers_.empty()) {
        viewControllers_.push_back(std::make_unique<SettingsController>());
        viewControllers_.push_back(std::make_unique<TutorialViewController>());
        viewControllers_.push_back(std::make_unique<FreeAppsViewController>());
        viewControllers_.push_back(std::make_unique<UserSupportController>());
    }
    return viewControllers_;
}

std::vector<OutletBinding> InitialViewController::outlets() {
    return {
        {"productVersionTextField", &productVersionTextField}, {"tableView", &tableView}, {"scrollView", &scrollView}};
}

std::vector<InterfaceClass> InitialViewController::classes() {
    return interfaceClasses();
}

void InitialViewController::viewDidLoad() {
    ViewController::viewDidLoad();
    if (const auto table = tableView.lock()) {
        table->setDelegate(*this);
        table->setIntercellSpacing(rowSpacing);
    }
    if (const auto version = productVersionTextField.lock())
        version->setStringValue("Orlamo " + Utility::shared().appVersion());
    selectTab(0);
}

void InitialViewController::viewWillDisappear() {
    ViewController::viewWillDisappear();
    logLine("InitialViewController 即将消失。。。。");
}

void InitialViewController::selectTab(int index) {
    const auto& pages = viewControllers();
    if (index < 0 || index >= static_cast<int>(pages.size())) return;
    if (const auto table = tableView.lock(); table != nullptr && table->selectedRow() != index) table->selectRow(index);
    ViewController& page = *pages[static_cast<std::size_t>(index)];
    const auto area = scrollView.lock();
    if (area == nullptr) return;
    area->setVerticalScrollElasticity(ScrollView::Elasticity::none);
    area->setDocumentView(page.view());
    area->scrollDocumentTo({0, area->documentViewBounds().height});
}

int InitialViewController::numberOfRowsInTableView(TableView&) {
    return static_cast<int>(TabsData.size());
}

double InitialViewController::heightOfRow(TableView&, int) {
    return rowHeight;
}

std::unique_ptr<TableRowView> InitialViewController::rowViewForRow(TableView&, int) {
    return std::make_unique<LCCustomTableRowView>();
}

TableCellView InitialViewController::viewForTableColumn(TableView&, int row) {
    const StringDictionary& tab = TabsData[static_cast<std::size_t>(row)];
    return {textOf(tab, "image"), textOf(tab, "title")};
}

void InitialViewController::tableViewSelectionDidChange(TableView& changed) {
    if (&changed == tableView.lock().get()) selectTab(changed.selectedRow());
}

}  // namespace orlamo
