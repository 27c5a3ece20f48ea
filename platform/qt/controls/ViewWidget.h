#pragma once

#include <QWidget>
#include <memory>

#include "platform/View.h"
#include "platform/qt/controls/ViewPainter.h"

namespace orlamo::qt {

/// Shows a View of plain C++, as large as the widget, behind the widget's children. The view's layer and its own
/// drawing are painted, not its children's; the widget's coordinates stand for the window's.
class ViewWidget : public QWidget {
public:
    explicit ViewWidget(std::unique_ptr<View> view, QWidget* parent = nullptr);
    ~ViewWidget() override;

    View& view() const { return *view_; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    std::unique_ptr<View> view_;
    ViewPainter painter_;
};

}  // namespace orlamo::qt
