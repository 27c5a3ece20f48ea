#pragma once

#include <QPointer>
#include <QWidget>

namespace orlamo::qt {

/// A window of the desktop around the widget of an interface, which fills it and is never deleted by it.
class ControlsWindow : public QWidget {
public:
    class Listener {
    public:
        virtual ~Listener() = default;
        /// The window stays unless it is retired now.
        virtual void userCloses() = 0;
        /// Moved or sized, by whomever.
        virtual void geometryChanged() = 0;
        virtual void becameActive() = 0;
    };
    enum class Backdrop { opaque, clear };

    ControlsWindow(Listener& listener, QWidget& content, Qt::WindowFlags flags, Backdrop backdrop);
    ~ControlsWindow() override;

    /// Rounds the corners of all that it shows. Points.
    void roundCorners(double radius);
    /// Lets the content go and hears nothing any more; deletes itself when the event that is being handled is over.
    void retire();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    Listener* listener_;
    QPointer<QWidget> content_;
};

}  // namespace orlamo::qt
