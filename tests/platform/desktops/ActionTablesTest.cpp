#include "platform/desktops/ActionTables.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

#include "platform/desktops/GioSettingsSource.h"
#include "tests/doubles/FakeLog.h"

namespace orlamo::desktops {
namespace {

// Rows that Debian 12 has no key for.
const std::set<std::string> otherVersions{
    "org.gnome.shell.keybindings toggle-quick-settings",                  // since GNOME 44
    "org.gnome.settings-daemon.plugins.media-keys screenshot",            // these four until GNOME 41
    "org.gnome.settings-daemon.plugins.media-keys screenshot-clip",       //
    "org.gnome.settings-daemon.plugins.media-keys area-screenshot",       //
    "org.gnome.settings-daemon.plugins.media-keys area-screenshot-clip",  //
    "org.cinnamon.desktop.keybindings.wm switch-input-source",            // since Cinnamon 6
    "org.cinnamon.desktop.keybindings.wm switch-input-source-backward",   //
};
constexpr std::string_view budgie = "com.solus-project.budgie-wm";  // comes with all of that desktop only

TEST(ActionTables, NameKeysThatTheInstalledSchemasHave) {
    setenv("GSETTINGS_BACKEND", "memory", 1);
    unsetenv("DBUS_SESSION_BUS_ADDRESS");
    unsetenv("XDG_RUNTIME_DIR");
    FakeLog log;
    GioSettingsSource installed;
    for (const auto desktop :
         {Desktop::gnome, Desktop::gnomeBased, Desktop::flashback, Desktop::budgie, Desktop::cinnamon, Desktop::mate}) {
        for (const auto rows : settingsRows(desktop)) {
            for (const auto& [id, schema, key] : rows) {
                const std::string name = std::string(schema) + " " + std::string(key);
                if (schema == budgie || otherVersions.contains(name)) continue;
                EXPECT_TRUE(installed.texts(schema, key)) << name;
            }
        }
    }
}

}  // namespace
}  // namespace orlamo::desktops
