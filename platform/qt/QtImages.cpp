#include "platform/qt/QtImages.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <string>

#include "platform/Bundle.h"
#include "platform/Log.h"

namespace orlamo::qt {

namespace {

constexpr double disabledOpacity = 0.4;

std::shared_ptr<QSvgRenderer> read(std::string_view name) {
    const auto path = Bundle::shared().pathForResource(name, "svg");
    if (!path) {
        logLine("image " + std::string(name) + ": the bundle has none of that name");
        return nullptr;
    }
    auto renderer = std::make_shared<QSvgRenderer>(QString::fromStdString(*path));
    if (!renderer->isValid()) {
        logLine("image " + std::string(name) + ": cannot read " + *path);
        return nullptr;
    }
    return renderer;
}

class SvgIconEngine : public QIconEngine {
public:
    explicit SvgIconEngine(SvgImage image) : image_(std::move(image)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        painter->save();
        if (mode == QIcon::Disabled) painter->setOpacity(painter->opacity() * disabledOpacity);
        image_.paint(*painter, rect);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    // What a window's icon is drawn in for the window manager.
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
        QList<QSize> sizes;
        for (const int side : {16, 22, 32, 48, 64, 128}) sizes.append({side, side});
        return sizes;
    }
    QIconEngine* clone() const override { return new SvgIconEngine(image_); }
    bool isNull() override { return image_.isNull(); }

private:
    SvgImage image_;
};

}  // namespace

SvgImage::SvgImage(std::string_view name, QColor tint) : renderer_(read(name)), tint_(tint) {}

QSizeF SvgImage::size() const {
    return renderer_ != nullptr ? QSizeF(renderer_->defaultSize()) : QSizeF();
}

QImage SvgImage::picture(QSize pixels) const {
    QImage picture(pixels.expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    if (isNull()) return picture;
    QRectF target({}, QSizeF(renderer_->defaultSize()).scaled(picture.size(), Qt::KeepAspectRatio));
    target.moveCenter(QRectF(picture.rect()).center());
    QPainter painter(&picture);
    renderer_->render(&painter, target);
    if (!tint_.isValid()) return picture;
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), tint_);
    return picture;
}

void SvgImage::paint(QPainter& painter, const QRectF& target) const {
    if (isNull() || target.isEmpty()) return;
    const double scale = painter.device()->devicePixelRatio();
    painter.drawImage(target, picture((target.size() * scale).toSize()));
}

QIcon SvgImage::icon() const {
    return isNull() ? QIcon() : QIcon(new SvgIconEngine(*this));
}

}  // namespace orlamo::qt
