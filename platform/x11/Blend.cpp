#include "platform/x11/Blend.h"

#include <xcb/render.h>

#include <bit>

namespace orlamo::x11 {

namespace {

struct Formats {
    xcb_render_pictformat_t ofWindow = XCB_NONE;
    xcb_render_pictformat_t withAlpha = XCB_NONE;  // 32 bits a pixel, as PixelImage has them
};

bool isPixelImageFormat(const xcb_render_pictforminfo_t& format) {
    const auto& direct = format.direct;
    return format.type == XCB_RENDER_PICT_TYPE_DIRECT && format.depth == 32 && direct.alpha_mask == 0xff &&
           direct.alpha_shift == 24 && direct.red_shift == 16 && direct.green_shift == 8 && direct.blue_shift == 0;
}

xcb_render_pictformat_t formatOfVisual(const xcb_render_query_pict_formats_reply_t& answer, xcb_visualid_t visual) {
    auto screens = xcb_render_query_pict_formats_screens_iterator(&answer);
    for (; screens.rem > 0; xcb_render_pictscreen_next(&screens)) {
        auto depths = xcb_render_pictscreen_depths_iterator(screens.data);
        for (; depths.rem > 0; xcb_render_pictdepth_next(&depths)) {
            auto visuals = xcb_render_pictdepth_visuals_iterator(depths.data);
            for (; visuals.rem > 0; xcb_render_pictvisual_next(&visuals)) {
                if (visuals.data->visual == visual) return visuals.data->format;
            }
        }
    }
    return XCB_NONE;
}

Formats formatsFor(Connection& connection, xcb_visualid_t visual) {
    const auto* const extension = xcb_get_extension_data(connection.xcb(), &xcb_render_id);
    if (extension == nullptr || extension->present == 0) return {};
    const auto answer =
        connection.reply(xcb_render_query_pict_formats_reply, xcb_render_query_pict_formats(connection.xcb()));
    if (!answer) return {};
    Formats formats;
    formats.ofWindow = formatOfVisual(*answer, visual);
    auto all = xcb_render_query_pict_formats_formats_iterator(answer.get());
    for (; all.rem > 0; xcb_render_pictforminfo_next(&all)) {
        if (isPixelImageFormat(*all.data)) formats.withAlpha = all.data->id;
    }
    return formats;
}

std::vector<std::uint32_t> inServersOrder(xcb_connection_t* xcb, std::vector<std::uint32_t> pixels) {
    constexpr bool isLittle = std::endian::native == std::endian::little;
    if ((xcb_get_setup(xcb)->image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST) == isLittle) return pixels;
    for (std::uint32_t& pixel : pixels) pixel = __builtin_bswap32(pixel);
    return pixels;
}

}  // namespace

bool blendPicture(Connection& connection, xcb_window_t window, xcb_visualid_t visual, int x, int y,
                  const PixelImage& picture, Blend blend) {
    if (picture.pixels.empty()) return true;
    const Formats formats = formatsFor(connection, visual);
    if (formats.ofWindow == XCB_NONE || formats.withAlpha == XCB_NONE) return false;
    xcb_connection_t* const xcb = connection.xcb();
    const auto width = static_cast<std::uint16_t>(picture.width);
    const auto height = static_cast<std::uint16_t>(picture.height);

    const xcb_pixmap_t pixmap = xcb_generate_id(xcb);
    xcb_create_pixmap(xcb, 32, pixmap, connection.root(), width, height);
    const xcb_gcontext_t context = xcb_generate_id(xcb);
    xcb_create_gc(xcb, context, pixmap, 0, nullptr);
    const auto pixels = inServersOrder(xcb, picture.pixels);
    xcb_put_image(xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, context, width, height, 0, 0, 0, 32,
                  static_cast<std::uint32_t>(pixels.size() * sizeof(std::uint32_t)),
                  reinterpret_cast<const std::uint8_t*>(pixels.data()));
    const xcb_render_picture_t source = xcb_generate_id(xcb);
    xcb_render_create_picture(xcb, source, pixmap, formats.withAlpha, 0, nullptr);
    const xcb_render_picture_t target = xcb_generate_id(xcb);
    xcb_render_create_picture(xcb, target, window, formats.ofWindow, 0, nullptr);
    xcb_render_composite(xcb, blend == Blend::over ? XCB_RENDER_PICT_OP_OVER : XCB_RENDER_PICT_OP_SRC, source, XCB_NONE,
                         target, 0, 0, 0, 0, static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), width, height);
    xcb_render_free_picture(xcb, target);
    xcb_render_free_picture(xcb, source);
    xcb_free_gc(xcb, context);
    xcb_free_pixmap(xcb, pixmap);
    connection.flush();
    return true;
}

}  // namespace orlamo::x11
