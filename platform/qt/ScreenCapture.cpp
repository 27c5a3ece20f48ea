#include "platform/qt/ScreenCapture.h"

#include <QPainter>
#include <utility>
#include <vector>

#include "platform/qt/ScreenSpace.h"

namespace orlamo::qt {

namespace {

QImage toQImage(PixelImage&& image) {
    const int width = image.width;
    const int height = image.height;
    if (width <= 0 || height <= 0) return {};
    auto* const pixels = new std::vector<std::uint32_t>(std::move(image.pixels));
    const auto release = [](void* data) { delete static_cast<std::vector<std::uint32_t>*>(data); };
    return {reinterpret_cast<const uchar*>(pixels->data()), width, height, QImage::Format_RGB32, release, pixels};
}

bool isSame(const PixelRect& a, const PixelRect& b) {
    return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
}

}  // namespace

const QImage& ScreenCapture::behind(const PixelRect& area) {
    if (!image_.isNull() && isSame(area, area_)) return image_;
    QImage next;
    if (!image_.isNull() && toQRect(area_).contains(toQRect(area))) {
        next = image_.copy(toQRect(area).translated(-area_.x, -area_.y));
    } else if (WindowEffects::isInstalled()) {
        if (auto shot = WindowEffects::shared().copyScreen(area)) next = toQImage(std::move(*shot));
        if (!next.isNull() && !image_.isNull()) {
            QPainter(&next).drawImage(area_.x - area.x, area_.y - area.y, image_);
        }
    }
    image_ = std::move(next);
    area_ = area;
    return image_;
}

}  // namespace orlamo::qt
