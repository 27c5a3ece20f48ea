#include "platform/desktops/ActionTables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "platform/desktops/GioSettingsSource.h"
#include "tests/doubles/FakeLog.h"

namespace orlamo::desktops {
namespace {

struct OtherVersion {
    std::string_view schema;
    std::string_view key;  // empty for the whole schema
};
// Rows that Debian 12 has no key for.
constexpr OtherVersion otherVersions[] = {
    {"org.gnome.shell.keybindings", "toggle-quick-settings"},                  // since GNOME 44
    {"org.gnome.settings-daemon.plugins.media-keys", "screenshot"},            // these four until GNOME 41
    {"org.gnome.settings-daemon.plugins.media-keys", "screenshot-clip"},       //
    {"org.gnome.settings-daemon.plugins.media-keys", "area-screenshot"},       //
    {"org.gnome.settings-daemon.plugins.media-keys", "area-screenshot-clip"},  //
    {"org.cinnamon.desktop.keybindings.wm", "switch-input-source"},            // since Cinnamon 6
    {"org.cinnamon.desktop.keybindings.wm", "switch-input-source-backward"},   //
    {"com.solus-project.budgie-wm", ""},                                       // comes with all of that desktop only
};

bool isOfOtherVersion(const SettingsRow& row) {
    return std::ranges::any_of(otherVersions, [&row](const auto& each) {
        return each.schema == row.schema && (each.key.empty() || each.key == row.key);
    });
}

TEST(ActionTables, NameKeysThatTheInstalledSchemasHave) {
    setenv("GSETTINGS_BACKEND", "memory", 1);
    unsetenv("DBUS_SESSION_BUS_ADDRESS");
    unsetenv("XDG_RUNTIME_DIR");
    FakeLog log;
    GioSettingsSource installed;
    for (const auto desktop :
         {Desktop::gnome, Desktop::gnomeBased, Desktop::flashback, Desktop::budgie, Desktop::cinnamon, Desktop::mate}) {
        for (const auto rows : settingsRows(desktop)) {
            for (const auto& row : rows) {
                if (isOfOtherVersion(row)) continue;
                EXPECT_TRUE(installed.texts(row.schema, row.key)) << row.schema << " " << row.key;
            }
        }
    }
}

}  // namespace
}  // namespace orlamo::desktops
