#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/CollectionViewItem.h"
#include "platform/Controls.h"
#include "platform/Interface.h"
#include "platform/TableRowView.h"

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
    void setDocumentView(InterfaceView& view) override { documents.push_back(&view); }
    Rect documentViewBounds() const override {
        if (documents.empty()) return {};
        const Size size = documents.back()->size();
        return {0, 0, size.width, size.height};
    }
    void scrollDocumentTo(Point point) override { scrolledTo.push_back(point); }
    void scrollBy(Point delta) override { scrolledBy.push_back(delta); }

    Elasticity elasticity = Elasticity::automatic;
    std::vector<InterfaceView*> documents;  // the last one is shown
    std::vector<Point> scrolledTo;
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

}  // namespace orlamo
