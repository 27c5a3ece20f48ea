#pragma once

#include <QColor>
#include <QIcon>
#include <QImage>
#include <QRectF>
#include <QSizeF>
#include <memory>
#include <string_view>

class QPainter;
class QSvgRenderer;

namespace orlamo::qt {

/// An SVG image of the bundle, by its name without the ending. A name that the bundle lacks, and a file that is no SVG,
/// is a log line and an image that shows nothing. With a tint it is a template: its shape in that colour.
class SvgImage {
public:
    explicit SvgImage(std::string_view name, QColor tint = {});

    bool isNull() const { return renderer_ == nullptr; }
    /// In points, as the file says; empty for one that shows nothing.
    QSizeF size() const;
    /// A transparent picture of `pixels`, the image in its middle as large as its shape allows.
    QImage picture(QSize pixels) const;
    /// That, over `target`, in the device's own pixels.
    void paint(QPainter& painter, const QRectF& target) const;
    /// Sharp at any size; pale while what shows it is disabled.
    QIcon icon() const;

private:
    std::shared_ptr<QSvgRenderer> renderer_;
    QColor tint_;
};

}  // namespace orlamo::qt
