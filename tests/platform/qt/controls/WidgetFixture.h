#pragma once

#include <QApplication>
#include <QHoverEvent>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <memory>

#include "platform/CollectionViewItem.h"
#include "platform/qt/controls/QtInterfaceView.h"
#include "tests/platform/qt/QtFixture.h"

namespace orlamo {

/// Its program comes before the fixture's, which would be one without widgets.
class WidgetFixture : private OffscreenProgram<QApplication>, public QtFixture {
protected:
    static void press(QWidget& widget, QPointF at) {
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const auto buttons = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
            QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton, buttons, Qt::NoModifier);
            QCoreApplication::sendEvent(&widget, &event);
        }
    }
    static void pressKey(QWidget& widget, int key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &event);
    }
    static void hover(QWidget& widget, QEvent::Type type, QPointF at) {
        QHoverEvent event(type, at, widget.mapToGlobal(at), QPointF());
        QCoreApplication::sendEvent(&widget, &event);
    }
    static QImage picture(QWidget& widget, double scale = 1) {
        QImage image(widget.size() * scale, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::transparent);
        widget.render(&image, {}, {}, QWidget::DrawChildren);
        return image;
    }
};

/// Views that are one plain widget each, of the size named.
class PlainInterfaceFiles : public InterfaceFiles {
public:
    std::unique_ptr<InterfaceView> load(std::string_view, InterfaceOwner& owner) override {
        auto root = std::make_unique<QWidget>();
        root->resize(size);
        return std::make_unique<qt::QtInterfaceView>(std::move(root), owner);
    }
    WindowDescription window(std::string_view) override { return {}; }
    std::unique_ptr<Popover> createPopover() override { return nullptr; }

    QSize size{100, 400};

private:
    Installation installation_{*this};
};

/// A controller that counts what its view goes through.
class Page : public CollectionViewItem {
public:
    Page() : CollectionViewItem("Page") {}
    QWidget& widget() { return qt::native(view()).widget(); }
    void viewWillAppear() override { ++appearances; }
    void viewWillDisappear() override { ++disappearances; }

    int appearances = 0;
    int disappearances = 0;
};

}  // namespace orlamo
