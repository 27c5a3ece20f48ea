#pragma once

// The C header calls a field "explicit".
#include <xcb/xcb.h>
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit
