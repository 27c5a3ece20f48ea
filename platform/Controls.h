#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Color.h"
#include "platform/Geometry.h"

namespace orlamo {

class CollectionViewDataSource;
class InterfaceView;
class TableViewDelegate;
class ViewController;
struct FlowLayout;

/// The toolkit's own controls as a controller sees them. Interface files make them (InterfaceFiles); their view owns
/// them, controllers hold them weakly. Texts are UTF-8 and come localized from the file; lengths are points.
class Control {
public:
    virtual ~Control() = default;
    /// The number that the file gives the control; 0 when it gives none.
    virtual std::int64_t tag() const = 0;
    /// A state or a value as a number; 0 for what has none.
    virtual double doubleValue() const = 0;
    virtual bool isHidden() const = 0;
    virtual void setHidden(bool hidden) = 0;
    virtual void setEnabled(bool enabled) = 0;
    /// In the control's own coordinates.
    virtual Rect bounds() const = 0;
};

enum class ControlState { mixed = -1, off = 0, on = 1 };

/// Setting a state, a selection or a value from the program performs no action.
class Button : public Control {
public:
    virtual ControlState state() const = 0;
    virtual void setState(ControlState state) = 0;
    virtual std::string title() const = 0;
    virtual void setTitle(std::string_view title) = 0;
};

class CheckBox : public Button {};

class PopUpButton : public Control {
public:
    virtual std::optional<std::string> titleOfSelectedItem() const = 0;
    /// A title that no item has leaves the selection as it is.
    virtual void selectItemWithTitle(std::string_view title) = 0;
};

class Slider : public Control {
public:
    virtual std::int64_t integerValue() const = 0;
};

class ColorWell : public Control {
public:
    virtual Color color() const = 0;
};

class TextField : public Control {
public:
    virtual std::string stringValue() const = 0;
    virtual void setStringValue(std::string_view text) = 0;
};

class ImageView : public Control {
public:
    /// An image resource; a name that the bundle lacks shows nothing and is a log line.
    virtual void setImage(std::string_view name) = 0;
};

class TableView : public Control {
public:
    /// Must outlive the table; asks it for the rows at once.
    virtual void setDelegate(TableViewDelegate& delegate) = 0;
    virtual void setIntercellSpacing(Size spacing) = 0;
    /// -1 when no row is selected.
    virtual int selectedRow() const = 0;
    /// Selects this row and no other. The delegate hears of a change, as it does when the user selects.
    virtual void selectRow(int row) = 0;
};

class ScrollView : public Control {
public:
    enum class Elasticity { automatic = 0, none = 1, allowed = 2 };

    virtual void setVerticalScrollElasticity(Elasticity elasticity) = 0;
    /// Shows this view in place of the one before, which keeps its state. The view must outlive its showing.
    virtual void setDocumentView(InterfaceView& view) = 0;
    virtual Rect documentViewBounds() const = 0;
    /// Scrolls so that this point of the document, y upward, is at the upper edge where the document allows.
    virtual void scrollDocumentTo(Point point) = 0;
    /// Scrolls by as much as the document allows, y downward.
    virtual void scrollBy(Point delta) = 0;
};

class CollectionView : public Control {
public:
    /// Null when the file gives the view another layout. Counts from the next setDataSource.
    virtual FlowLayout* flowLayout() = 0;
    virtual void setSelectable(bool selectable) = 0;
    virtual void setAllowsEmptySelection(bool allowed) = 0;
    virtual void setAllowsMultipleSelection(bool allowed) = 0;
    /// Must outlive the view; asks it for the items at once.
    virtual void setDataSource(CollectionViewDataSource& source) = 0;
};

enum class RectEdge { minX = 0, minY = 1, maxX = 2, maxY = 3 };

/// A small window beside a control.
class Popover {
public:
    enum class Behavior { applicationDefined = 0, transient = 1, semitransient = 2 };

    virtual ~Popover() = default;
    /// Transient: any press outside, or Escape, closes it.
    Behavior behavior = Behavior::applicationDefined;
    /// The controller must outlive the popover.
    virtual void setContentViewController(ViewController& controller) = 0;
    /// Beside a rectangle of the control; another edge when there is no room on that one.
    virtual void showRelativeToRect(const Rect& rect, Control& control, RectEdge preferredEdge) = 0;
    virtual bool isShown() const = 0;
};

}  // namespace orlamo
