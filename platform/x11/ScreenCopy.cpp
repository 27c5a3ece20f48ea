#include "platform/x11/ScreenCopy.h"

#include <sys/ipc.h>
#include <sys/shm.h>
#include <xcb/shm.h>

#include <algorithm>

#include "platform/Log.h"

namespace orlamo::x11 {

namespace {

constexpr std::uint32_t allPlanes = ~0U;

/// A segment that both sides see; gone with the last of them.
class SharedMemory {
public:
    SharedMemory(Connection& connection, std::size_t size) : connection_(connection), size_(size) {
        const int id = shmget(IPC_PRIVATE, size, IPC_CREAT | 0600);
        if (id < 0) return;
        void* const address = shmat(id, nullptr, 0);
        if (address != reinterpret_cast<void*>(-1)) {
            address_ = static_cast<std::byte*>(address);
            segment_ = xcb_generate_id(connection.xcb());
            isAttached_ = connection.succeeded(
                xcb_shm_attach_checked(connection.xcb(), segment_, static_cast<std::uint32_t>(id), 0));
        }
        shmctl(id, IPC_RMID, nullptr);
    }
    ~SharedMemory() {
        if (isAttached_) xcb_shm_detach(connection_.xcb(), segment_);
        if (address_ != nullptr) shmdt(address_);
        connection_.flush();
    }
    SharedMemory(const SharedMemory&) = delete;
    SharedMemory& operator=(const SharedMemory&) = delete;

    bool isAttached() const { return isAttached_; }
    xcb_shm_seg_t segment() const { return segment_; }
    std::span<const std::byte> bytes() const { return {address_, size_}; }

private:
    Connection& connection_;
    std::size_t size_;
    std::byte* address_ = nullptr;
    xcb_shm_seg_t segment_ = 0;
    bool isAttached_ = false;
};

const xcb_visualtype_t* rootVisual(const xcb_screen_t& screen) {
    auto depths = xcb_screen_allowed_depths_iterator(&screen);
    for (; depths.rem > 0; xcb_depth_next(&depths)) {
        auto visuals = xcb_depth_visuals_iterator(depths.data);
        for (; visuals.rem > 0; xcb_visualtype_next(&visuals)) {
            if (visuals.data->visual_id == screen.root_visual) return visuals.data;
        }
    }
    return nullptr;
}

struct Layout {
    PixelFormat format;
    std::size_t rowUnit = 4;  // rows are padded to a multiple of that many bytes
    std::size_t stride(int width) const {
        const std::size_t bytes = static_cast<std::size_t>(width) * static_cast<std::size_t>(format.bitsPerPixel) / 8;
        return (bytes + rowUnit - 1) / rowUnit * rowUnit;
    }
};

std::optional<Layout> pictureLayout(const Connection& connection) {
    const xcb_setup_t* const setup = xcb_get_setup(connection.xcb());
    const xcb_visualtype_t* const visual = rootVisual(connection.screen());
    if (visual == nullptr || (visual->_class != XCB_VISUAL_CLASS_TRUE_COLOR)) return std::nullopt;
    auto formats = xcb_setup_pixmap_formats_iterator(setup);
    for (; formats.rem > 0; xcb_format_next(&formats)) {
        if (formats.data->depth != connection.screen().root_depth) continue;
        return Layout{{formats.data->bits_per_pixel, setup->image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST,
                       visual->red_mask, visual->green_mask, visual->blue_mask},
                      formats.data->scanline_pad / 8U};
    }
    return std::nullopt;
}

/// The size as it is now; the screen's one of the connection's start is outdated after a change.
PixelRect clippedToWindow(Connection& connection, xcb_window_t window, const PixelRect& area) {
    const auto geometry = connection.reply(xcb_get_geometry_reply, xcb_get_geometry(connection.xcb(), window));
    if (!geometry) return {};
    const int left = std::max(area.x, 0);
    const int top = std::max(area.y, 0);
    return {left, top, std::min(area.x + area.width, static_cast<int>(geometry->width)) - left,
            std::min(area.y + area.height, static_cast<int>(geometry->height)) - top};
}

}  // namespace

std::optional<PixelImage> copyScreenArea(Connection& connection, const PixelRect& area) {
    return copyWindowArea(connection, connection.root(), area);
}

std::optional<PixelImage> copyWindowArea(Connection& connection, xcb_window_t window, const PixelRect& area) {
    if (area.width <= 0 || area.height <= 0) return std::nullopt;
    const auto layout = pictureLayout(connection);
    if (!layout) {
        logLine("the screen's pixels have a format that cannot be read");
        return std::nullopt;
    }
    PixelImage image{area.width, area.height, {}};
    image.pixels.assign(static_cast<std::size_t>(area.width) * static_cast<std::size_t>(area.height), 0xff000000);
    const PixelRect seen = clippedToWindow(connection, window, area);
    if (!connection.isAlive()) return std::nullopt;
    if (seen.width <= 0 || seen.height <= 0) return image;

    const auto x = static_cast<std::int16_t>(seen.x);
    const auto y = static_cast<std::int16_t>(seen.y);
    const auto width = static_cast<std::uint16_t>(seen.width);
    const auto height = static_cast<std::uint16_t>(seen.height);
    const std::size_t stride = layout->stride(seen.width);
    if (connection.extensions().shm) {
        const SharedMemory memory(connection, stride * height);
        if (memory.isAttached() &&
            connection.reply(xcb_shm_get_image_reply,
                             xcb_shm_get_image(connection.xcb(), window, x, y, width, height, allPlanes,
                                               XCB_IMAGE_FORMAT_Z_PIXMAP, memory.segment(), 0)) &&
            convertPixels(memory.bytes(), stride, layout->format, seen, area.x, area.y, image)) {
            return image;
        }
    }
    const auto picture = connection.reply(
        xcb_get_image_reply,
        xcb_get_image(connection.xcb(), XCB_IMAGE_FORMAT_Z_PIXMAP, window, x, y, width, height, allPlanes));
    if (!picture) return std::nullopt;
    const auto* const bytes = reinterpret_cast<const std::byte*>(xcb_get_image_data(picture.get()));
    const auto length = static_cast<std::size_t>(xcb_get_image_data_length(picture.get()));
    if (!convertPixels({bytes, length}, stride, layout->format, seen, area.x, area.y, image)) return std::nullopt;
    return image;
}

}  // namespace orlamo::x11
