#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <concepts>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "platform/CollectionViewItem.h"
#include "platform/Controls.h"
#include "platform/Interface.h"
#include "platform/TableRowView.h"
#include "platform/ViewController.h"

namespace orlamo {

/// What every fake control answers is a public field that the test may set.
template <class Kind>
class FakeControlOf : public Kind {
public:
    std::int64_t tag() const override { return tagNumber; }
    double doubleValue() const override { return number; }
    bool isHidden() const override { return hidden; }
    void setHidden(bool hide) override { hidden = hide; }
    void setEnabled(bool enable) override { enabled = enable; }
    Rect bounds() const override { return area; }

    std::int64_t tagNumber = 0;
    double number = 0;
    bool hidden = false;
    bool enabled = true;
    Rect area{0, 0, 100, 20};
};

template <class Kind>
class FakeButtonOf : public FakeControlOf<Kind> {
public:
    double doubleValue() const override { return static_cast<double>(value); }
    ControlState state() const override { return value; }
    void setState(ControlState state) override { value = state; }
    std::string title() const override { return text; }
    void setTitle(std::string_view title) override { text = title; }

    ControlState value = ControlState::off;
    std::string text;
};

class FakeControl : public FakeControlOf<Control> {};
class FakeButton : public FakeButtonOf<Button> {};
class FakeCheckBox : public FakeButtonOf<CheckBox> {};

class FakePopUpButton : public FakeControlOf<PopUpButton> {
public:
    std::optional<std::string> titleOfSelectedItem() const override { return selected; }
    void selectItemWithTitle(std::string_view title) override {
        if (std::ranges::find(items, title) != items.end()) selected = title;
    }

    std::vector<std::string> items{"Command", "Control", "Shift"};
    std::optional<std::string> selected;
};

class FakeSlider : public FakeControlOf<Slider> {
public:
    std::int64_t integerValue() const override { return static_cast<std::int64_t>(number); }
};

class FakeColorWell : public FakeControlOf<ColorWell> {
public:
    Color color() const override { return value; }

    Color value;
};

class FakeTextField : public FakeControlOf<TextField> {
public:
    std::string stringValue() const override { return text; }
    void setStringValue(std::string_view value) override { text = value; }

    std::string text;
};

class FakeImageView : public FakeControlOf<ImageView> {
public:
    void setImage(std::string_view name) override { image = name; }

    std::string image;
};

class FakeTableView : public FakeControlOf<TableView> {
public:
    void setDelegate(TableViewDelegate& newDelegate) override {
        delegate = &newDelegate;
        rows = delegate->numberOfRowsInTableView(*this);
    }
    void setIntercellSpacing(Size size) override { spacing = size; }
    int selectedRow() const override { return selected; }
    void selectRow(int row) override {
        if (row == selected || row < 0 || row >= rows) return;
        selected = row;
        selections.push_back(row);
        delegate->tableViewSelectionDidChange(*this);
    }

    TableViewDelegate* delegate = nullptr;
    Size spacing;
    int rows = 0;
    int selected = -1;
    std::vector<int> selections;  // every change, by the program or by a test that plays the user
};

class FakeScrollView : public FakeControlOf<ScrollView> {
public:
    void setVerticalScrollElasticity(Elasticity value) override { elasticity = value; }
    void setDocumentView(InterfaceView& view) override {
        documents.push_back(&view);
        scrolledTo.clear();
    }
    Rect documentViewBounds() const override {
        if (documents.empty()) return {};
        const Size size = documents.back()->size();
        return {0, 0, size.width, size.height};
    }
    void scrollDocumentTo(Point point) override { scrolledTo.push_back(point); }
    void scrollBy(Point delta) override { scrolledBy.push_back(delta); }

    Elasticity elasticity = Elasticity::automatic;
    std::vector<InterfaceView*> documents;  // the last one is shown
    std::vector<Point> scrolledTo;          // with the last one
    std::vector<Point> scrolledBy;
};

class FakeCollectionView : public FakeControlOf<CollectionView> {
public:
    FlowLayout* flowLayout() override { return layout ? &*layout : nullptr; }
    void setSelectable(bool value) override { selectable = value; }
    void setAllowsEmptySelection(bool value) override { allowsEmptySelection = value; }
    void setAllowsMultipleSelection(bool value) override { allowsMultipleSelection = value; }
    void setDataSource(CollectionViewDataSource& source) override { dataSource = &source; }

    // Each starts as what a page has to change.
    std::optional<FlowLayout> layout{{FlowLayout::ScrollDirection::horizontal, true, true}};
    bool selectable = false;
    bool allowsEmptySelection = false;
    bool allowsMultipleSelection = true;
    CollectionViewDataSource* dataSource = nullptr;
};

/// What a popover was told; outlives it.
struct FakePopoverRecord {
    Popover::Behavior behavior = Popover::Behavior::applicationDefined;  // at the showing
    ViewController* content = nullptr;
    std::optional<Rect> rect;
    Control* control = nullptr;
    std::optional<RectEdge> edge;
    bool isShown = false;  // a test that plays the user closes it here
    bool isAlive = true;
};

class FakePopover : public Popover {
public:
    explicit FakePopover(std::shared_ptr<FakePopoverRecord> record) : record_(std::move(record)) {}
    ~FakePopover() override { record_->isAlive = record_->isShown = false; }
    void setContentViewController(ViewController& controller) override { record_->content = &controller; }
    void showRelativeToRect(const Rect& rect, Control& control, RectEdge edge) override {
        *record_ = {behavior, record_->content, rect, &control, edge, true, true};
        record_->content->view();
    }
    bool isShown() const override { return record_->isShown; }

private:
    std::shared_ptr<FakePopoverRecord> record_;
};

/// The first of these fakes that is a control of that kind.
template <class Kind, class First, class... Rest>
auto makeFake() {
    if constexpr (std::derived_from<First, Kind>) {
        return std::make_shared<First>();
    } else {
        return makeFake<Kind, Rest...>();
    }
}

class FakeInterfaceView;
using FakeInterfaceViews = std::vector<FakeInterfaceView*>;

/// A loaded interface with a fake control for every outlet of its owner; they die with it, as real ones do.
class FakeInterfaceView : public InterfaceView {
public:
    FakeInterfaceView(std::string viewName, InterfaceOwner& viewOwner, Size viewSize,
                      std::shared_ptr<FakeInterfaceViews> living)
        : name(std::move(viewName)), owner(viewOwner), size_(viewSize), living_(std::move(living)) {
        living_->push_back(this);
    }
    ~FakeInterfaceView() override { std::erase(*living_, this); }

    Size size() const override { return size_; }
    void appear() { owner.viewWillAppear(); }
    void disappear() { owner.viewWillDisappear(); }

    const std::string name;
    InterfaceOwner& owner;
    std::map<std::string, std::shared_ptr<Control>, std::less<>> controls;  // by outlet

private:
    Size size_;
    std::shared_ptr<FakeInterfaceViews> living_;
};

/// Interface files that need no files. Through it a test reaches the controls of what is loaded and plays the user.
class FakeInterfaceFiles : public InterfaceFiles {
public:
    std::unique_ptr<InterfaceView> load(std::string_view name, InterfaceOwner& owner) override {
        auto view = std::make_unique<FakeInterfaceView>(std::string(name), owner, viewSize, living_);
        for (const OutletBinding& outlet : owner.outlets()) {
            if (missing.contains(outlet.name)) continue;
            std::visit([&](auto* target) { view->controls[std::string(outlet.name)] = connect(*target); },
                       outlet.target);
        }
        loaded.emplace_back(name);
        if (beforeViewDidLoad) beforeViewDidLoad(*view);
        return view;
    }
    WindowDescription window(std::string_view name) override {
        const auto found = windows.find(name);
        return found == windows.end() ? WindowDescription{} : found->second;
    }
    std::unique_ptr<Popover> createPopover() override {
        popovers.push_back(std::make_shared<FakePopoverRecord>());
        return std::make_unique<FakePopover>(popovers.back());
    }

    // What the files hold.
    Size viewSize{320, 200};
    std::set<std::string, std::less<>> missing;  // outlets that no file has
    std::map<std::string, WindowDescription, std::less<>> windows{
        {"Preferences", {"Orlamo", {800, 560}, {800, 560}, 15}},
        {"PrivilegeWindowController", {"Permissions", {480, 240}, {480, 240}, 3}}};
    std::function<void(FakeInterfaceView&)> beforeViewDidLoad;  // the outlets are set

    // What was done with them.
    std::vector<std::string> loaded;                           // names, in order
    std::vector<std::shared_ptr<FakePopoverRecord>> popovers;  // in order of creation

    /// The view of that file that was loaded last, or null when there is none any more.
    FakeInterfaceView* view(std::string_view name) const {
        const auto found = std::ranges::find(living_->rbegin(), living_->rend(), name, &FakeInterfaceView::name);
        return found == living_->rend() ? nullptr : *found;
    }
    /// The control of an outlet in the view that was loaded last among those that have it. Fails the test when there is
    /// none of that kind, and gives one that belongs to nobody.
    template <class Fake>
    Fake& control(std::string_view outlet) const {
        for (auto each = living_->rbegin(); each != living_->rend(); ++each) {
            const auto found = (*each)->controls.find(outlet);
            if (found == (*each)->controls.end()) continue;
            if (auto* const control = dynamic_cast<Fake*>(found->second.get())) return *control;
        }
        ADD_FAILURE() << "no such control: " << outlet;
        static Fake nobodys;
        return nobodys;
    }
    /// What a control wired to that action does. Fails the test when no loaded view's owner has the action or when it
    /// refuses the sender.
    void perform(std::string_view action, Control& sender) const {
        for (auto each = living_->rbegin(); each != living_->rend(); ++each) {
            for (const ActionBinding& binding : (*each)->owner.actions()) {
                if (binding.name != action) continue;
                EXPECT_TRUE(binding.accepts(sender)) << action << " from a control of another kind";
                if (binding.accepts(sender)) binding.perform(sender);
                return;
            }
        }
        ADD_FAILURE() << "no such action: " << action;
    }
    /// The same from the control of that outlet.
    void performFrom(std::string_view outlet, std::string_view action) const {
        for (auto each = living_->rbegin(); each != living_->rend(); ++each) {
            const auto found = (*each)->controls.find(outlet);
            if (found != (*each)->controls.end()) return perform(action, *found->second);
        }
        ADD_FAILURE() << "no such control: " << outlet;
    }

private:
    template <class Kind>
    static std::shared_ptr<Control> connect(Outlet<Kind>& outlet) {
        auto control = makeFake<Kind, FakeControl, FakeButton, FakeCheckBox, FakePopUpButton, FakeSlider, FakeColorWell,
                                FakeTextField, FakeImageView, FakeTableView, FakeScrollView, FakeCollectionView>();
        outlet = control;
        return control;
    }

    std::shared_ptr<FakeInterfaceViews> living_ = std::make_shared<FakeInterfaceViews>();
    Installation installation_{*this};
};

}  // namespace orlamo
