#include "platform/x11/KeyTable.h"

#include <xkbcommon/xkbcommon-keysyms.h>

#include <algorithm>
#include <iterator>

namespace orlamo::x11 {

namespace {

constexpr KeyRow rows[] = {
    {0, XKB_KEY_a},
    {1, XKB_KEY_s},
    {2, XKB_KEY_d},
    {3, XKB_KEY_f},
    {4, XKB_KEY_h},
    {5, XKB_KEY_g},
    {6, XKB_KEY_z},
    {7, XKB_KEY_x},
    {8, XKB_KEY_c},
    {9, XKB_KEY_v},
    {11, XKB_KEY_b},
    {12, XKB_KEY_q},
    {13, XKB_KEY_w},
    {14, XKB_KEY_e},
    {15, XKB_KEY_r},
    {16, XKB_KEY_y},
    {17, XKB_KEY_t},
    {18, XKB_KEY_1},
    {19, XKB_KEY_2},
    {20, XKB_KEY_3},
    {21, XKB_KEY_4},
    {22, XKB_KEY_6},
    {23, XKB_KEY_5},
    {24, XKB_KEY_equal},
    {25, XKB_KEY_9},
    {26, XKB_KEY_7},
    {27, XKB_KEY_minus},
    {28, XKB_KEY_8},
    {29, XKB_KEY_0},
    {30, XKB_KEY_bracketright},
    {31, XKB_KEY_o},
    {32, XKB_KEY_u},
    {33, XKB_KEY_bracketleft},
    {34, XKB_KEY_i},
    {35, XKB_KEY_p},
    {36, XKB_KEY_Return},
    {37, XKB_KEY_l},
    {38, XKB_KEY_j},
    {39, XKB_KEY_apostrophe},
    {40, XKB_KEY_k},
    {41, XKB_KEY_semicolon},
    {42, XKB_KEY_backslash},
    {43, XKB_KEY_comma},
    {44, XKB_KEY_slash},
    {45, XKB_KEY_n},
    {46, XKB_KEY_m},
    {47, XKB_KEY_period},
    {48, XKB_KEY_Tab, XKB_KEY_ISO_Left_Tab},
    {49, XKB_KEY_space},
    {graveKeyCode, XKB_KEY_grave},
    {51, XKB_KEY_BackSpace},
    {52, XKB_KEY_Return},
    {escapeKeyCode, XKB_KEY_Escape},
    {65, XKB_KEY_KP_Decimal, XKB_KEY_KP_Delete},
    {67, XKB_KEY_KP_Multiply},
    {69, XKB_KEY_KP_Add},
    {71, XKB_KEY_Clear},
    {75, XKB_KEY_KP_Divide},
    {76, XKB_KEY_KP_Enter},
    {78, XKB_KEY_KP_Subtract},
    {81, XKB_KEY_KP_Equal},
    {82, XKB_KEY_KP_0, XKB_KEY_KP_Insert},
    {83, XKB_KEY_KP_1, XKB_KEY_KP_End},
    {84, XKB_KEY_KP_2, XKB_KEY_KP_Down},
    {85, XKB_KEY_KP_3, XKB_KEY_KP_Next},
    {86, XKB_KEY_KP_4, XKB_KEY_KP_Left},
    {87, XKB_KEY_KP_5, XKB_KEY_KP_Begin},
    {88, XKB_KEY_KP_6, XKB_KEY_KP_Right},
    {89, XKB_KEY_KP_7, XKB_KEY_KP_Home},
    {91, XKB_KEY_KP_8, XKB_KEY_KP_Up},
    {92, XKB_KEY_KP_9, XKB_KEY_KP_Prior},
    {96, XKB_KEY_F5},
    {97, XKB_KEY_F6},
    {98, XKB_KEY_F7},
    {99, XKB_KEY_F3},
    {100, XKB_KEY_F8},
    {101, XKB_KEY_F9},
    {103, XKB_KEY_F11},
    // Print, Scroll Lock, Pause and Insert stand where that keyboard has F13, F14, F15 and Help.
    {105, XKB_KEY_Print},
    {107, XKB_KEY_Scroll_Lock},
    {109, XKB_KEY_F10},
    {111, XKB_KEY_F12},
    {113, XKB_KEY_Pause},
    {114, XKB_KEY_Insert},
    {115, XKB_KEY_Home},
    {116, XKB_KEY_Page_Up},
    {117, XKB_KEY_Delete},
    {118, XKB_KEY_F4},
    {119, XKB_KEY_End},
    {120, XKB_KEY_F2},
    {121, XKB_KEY_Page_Down},
    {122, XKB_KEY_F1},
    {123, XKB_KEY_Left},
    {124, XKB_KEY_Right},
    {125, XKB_KEY_Down},
    {126, XKB_KEY_Up},
};

}  // namespace

const KeyRow* keyRow(std::uint16_t virtualKeyCode) {
    const auto* const row = std::ranges::find(rows, virtualKeyCode, &KeyRow::virtualKeyCode);
    return row != std::end(rows) ? row : nullptr;
}

std::optional<std::uint16_t> virtualKeyCodeForKeysym(std::uint32_t keysym) {
    if (keysym == XKB_KEY_NoSymbol) return std::nullopt;
    const auto* const row = std::ranges::find_if(
        rows, [keysym](const KeyRow& each) { return each.keysym == keysym || each.other == keysym; });
    if (row == std::end(rows)) return std::nullopt;
    return row->virtualKeyCode;
}

}  // namespace orlamo::x11
