#pragma once

#include <memory>
#include <vector>

#include "platform/TableRowView.h"
#include "platform/ViewController.h"
#include "preferences/StringDictionary.h"

namespace orlamo {

/// The content of the preferences window: a list of tabs, and the page of the chosen one beside it.
class InitialViewController : public ViewController, public TableViewDelegate {
public:
    InitialViewController();

    Outlet<TextField> productVersionTextField;
    Outlet<TableView> tableView;
    Outlet<ScrollView> scrollView;
    /// "title" in the user's language, "image" an image resource. Fixed.
    const std::vector<StringDictionary> TabsData;
    /// One page for each tab, made together at the first call and kept.
    const std::vector<std::unique_ptr<ViewController>>& viewControllers();

    std::vector<OutletBinding> outlets() override;
    std::vector<InterfaceClass> classes() override;
    void viewDidLoad() override;
    void viewWillDisappear() override;

    /// Selects the tab and shows its page from the top. Nothing when there is no such tab.
    void selectTab(int index);

    int numberOfRowsInTableView(TableView& tableView) override;
    double heightOfRow(TableView& tableView, int row) override;
    std::unique_ptr<TableRowView> rowViewForRow(TableView& tableView, int row) override;
    TableCellView viewForTableColumn(TableView& tableView, int row) override;
    void tableViewSelectionDidChange(TableView& tableView) override;

private:
    std::vector<std::unique_ptr<ViewController>> viewControllers_;
};

}  // namespace orlamo
