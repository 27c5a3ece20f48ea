// What Xfce and KDE hold as shortcuts: accelerators, command lines, global shortcuts, Plasma's applets.
#include "platform/desktops/Command.h"
#include "platform/desktops/PlasmaApplets.h"
#include "platform/desktops/SymbolicHotKeys.h"
#include "tests/doubles/FakeSettingsSource.h"
#include "tests/fuzz/FuzzInput.h"

using namespace orlamo;
using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::FuzzInput input(data, size);
    FakeSettingsSource source;
    source.xfconf.emplace();
    source.kde.emplace();
    while (!input.isEmpty()) {
        const std::string_view line = input.line();
        const auto end = line.find('=');
        const std::string key(line.substr(0, end));
        const std::string value(end == std::string_view::npos ? "" : line.substr(end + 1));
        source.xfconf->insert_or_assign(key, value);
        const std::int32_t qtKey = static_cast<std::int32_t>(fuzz::FuzzInput(data, size).number(4));
        source.kde->push_back({key, value, {qtKey, static_cast<std::int32_t>(value.size())}});
        const desktops::Command command = desktops::commandOf(value);
        require(command.program.find('/') == std::string::npos, "a program is named without its folder");
    }
    const std::string text(fuzz::textOf(data, size));
    source.files[std::string(desktops::plasmaAppletsFile)] = text;
    for (const std::string& launcher : desktops::plasmaLaunchers(text)) {
        require(launcher.find(']') == std::string::npos, "an applet's number is taken out of its brackets");
    }
    for (const auto desktop : {desktops::Desktop::xfce, desktops::Desktop::kde}) {
        desktops::symbolicHotKeys(desktop, source).description();
    }
    return 0;
}
