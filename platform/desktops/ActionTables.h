#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "platform/desktops/Desktop.h"

// Which of a desktop's actions does what a symbolic hot key stands for. Where several rows share an ID, an earlier row
// goes before a later one.
namespace orlamo::desktops {

struct SettingsRow {
    int id;
    std::string_view schema;
    std::string_view key;
};
/// The GSettings keys of that desktop; empty for one that keeps its shortcuts elsewhere.
std::vector<std::span<const SettingsRow>> settingsRows(Desktop desktop);

struct XfceWindowRow {
    int id;
    std::string_view action;  // of the window manager
};
std::span<const XfceWindowRow> xfceWindowRows();

/// Programs that keys of Xfce and Openbox run.
struct CommandRow {
    int id;
    std::string_view program;
    std::string_view options;        // letters that must all be there
    std::string_view unwanted = {};  // letters of which none may be there
    std::string_view word = {};      // must be there, as no option
};
std::span<const CommandRow> commandRows();

struct OpenboxRow {
    int id;
    std::string_view action;
    std::string_view option = {};
    std::string_view value = {};  // of that option; empty also means that it is not given
};
std::span<const OpenboxRow> openboxRows();

struct KdeRow {
    int id;
    std::string_view component;
    std::string_view action;
};
std::span<const KdeRow> kdeRows();

}  // namespace orlamo::desktops
