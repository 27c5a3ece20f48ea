#include "platform/desktops/KeyTable.h"

namespace orlamo::desktops {

namespace {

constexpr std::uint32_t pad = keypadBit;
constexpr std::uint16_t none = noCharacter;

// clang-format off
constexpr Key keys[] = {
    {"a", 'A', 0, 'a'}, {"s", 'S', 1, 's'}, {"d", 'D', 2, 'd'}, {"f", 'F', 3, 'f'}, {"h", 'H', 4, 'h'},
    {"g", 'G', 5, 'g'}, {"z", 'Z', 6, 'z'}, {"x", 'X', 7, 'x'}, {"c", 'C', 8, 'c'}, {"v", 'V', 9, 'v'},
    {"b", 'B', 11, 'b'}, {"q", 'Q', 12, 'q'}, {"w", 'W', 13, 'w'}, {"e", 'E', 14, 'e'}, {"r", 'R', 15, 'r'},
    {"y", 'Y', 16, 'y'}, {"t", 'T', 17, 't'}, {"o", 'O', 31, 'o'}, {"u", 'U', 32, 'u'}, {"i", 'I', 34, 'i'},
    {"p", 'P', 35, 'p'}, {"l", 'L', 37, 'l'}, {"j", 'J', 38, 'j'}, {"k", 'K', 40, 'k'}, {"n", 'N', 45, 'n'},
    {"m", 'M', 46, 'm'},
    {"1", '1', 18, '1'}, {"2", '2', 19, '2'}, {"3", '3', 20, '3'}, {"4", '4', 21, '4'}, {"5", '5', 23, '5'},
    {"6", '6', 22, '6'}, {"7", '7', 26, '7'}, {"8", '8', 28, '8'}, {"9", '9', 25, '9'}, {"0", '0', 29, '0'},
    {"equal", '=', 24, '='}, {"minus", '-', 27, '-'}, {"bracketright", ']', 30, ']'},
    {"bracketleft", '[', 33, '['}, {"apostrophe", '\'', 39, '\''}, {"semicolon", ';', 41, ';'},
    {"backslash", '\\', 42, '\\'}, {"comma", ',', 43, ','}, {"slash", '/', 44, '/'}, {"period", '.', 47, '.'},
    {"space", ' ', 49, ' '}, {"grave", '`', 50, '`'},
    // The desktops' word for the key left of 1, whatever it types.
    {"Above_Tab", 0, 50, '`'},
    {"Return", 0x01000004, 36, '\r'}, {"Tab", 0x01000001, 48, '\t'}, {"ISO_Left_Tab", 0x01000002, 48, '\t'},
    {"BackSpace", 0x01000003, 51, '\b'}, {"Escape", 0x01000000, 53, 27},
    {"F1", 0x01000030, 122, none}, {"F2", 0x01000031, 120, none}, {"F3", 0x01000032, 99, none},
    {"F4", 0x01000033, 118, none}, {"F5", 0x01000034, 96, none}, {"F6", 0x01000035, 97, none},
    {"F7", 0x01000036, 98, none}, {"F8", 0x01000037, 100, none}, {"F9", 0x01000038, 101, none},
    {"F10", 0x01000039, 109, none}, {"F11", 0x0100003a, 103, none}, {"F12", 0x0100003b, 111, none},
    {"Print", 0x01000009, 105, none}, {"Sys_Req", 0x0100000a, 105, none}, {"Scroll_Lock", 0x01000026, 107, none},
    {"Pause", 0x01000008, 113, none}, {"Insert", 0x01000006, 114, none}, {"Home", 0x01000010, 115, none},
    {"Page_Up", 0x01000016, 116, none}, {"Prior", 0, 116, none}, {"Delete", 0x01000007, 117, none},
    {"End", 0x01000011, 119, none}, {"Page_Down", 0x01000017, 121, none}, {"Next", 0, 121, none},
    {"Left", 0x01000012, 123, none}, {"Right", 0x01000014, 124, none}, {"Down", 0x01000015, 125, none},
    {"Up", 0x01000013, 126, none},
    {"KP_Decimal", pad | '.', 65, '.'}, {"KP_Delete", pad | 0x01000007, 65, '.'},
    {"KP_Multiply", pad | '*', 67, '*'}, {"KP_Add", pad | '+', 69, '+'}, {"KP_Divide", pad | '/', 75, '/'},
    {"KP_Enter", 0x01000005, 76, 3}, {"KP_Subtract", pad | '-', 78, '-'}, {"KP_Equal", pad | '=', 81, '='},
    {"KP_0", pad | '0', 82, '0'}, {"KP_Insert", pad | 0x01000006, 82, '0'},
    {"KP_1", pad | '1', 83, '1'}, {"KP_End", pad | 0x01000011, 83, '1'},
    {"KP_2", pad | '2', 84, '2'}, {"KP_Down", pad | 0x01000015, 84, '2'},
    {"KP_3", pad | '3', 85, '3'}, {"KP_Next", pad | 0x01000017, 85, '3'}, {"KP_Page_Down", 0, 85, '3'},
    {"KP_4", pad | '4', 86, '4'}, {"KP_Left", pad | 0x01000012, 86, '4'},
    {"KP_5", pad | '5', 87, '5'}, {"KP_Begin", pad | 0x0100000b, 87, '5'},
    {"KP_6", pad | '6', 88, '6'}, {"KP_Right", pad | 0x01000014, 88, '6'},
    {"KP_7", pad | '7', 89, '7'}, {"KP_Home", pad | 0x01000010, 89, '7'},
    {"KP_8", pad | '8', 91, '8'}, {"KP_Up", pad | 0x01000013, 91, '8'},
    {"KP_9", pad | '9', 92, '9'}, {"KP_Prior", pad | 0x01000016, 92, '9'}, {"KP_Page_Up", 0, 92, '9'},
};
// clang-format on

}  // namespace

std::span<const Key> keyTable() {
    return keys;
}

}  // namespace orlamo::desktops
