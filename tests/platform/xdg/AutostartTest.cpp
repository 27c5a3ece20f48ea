#include "platform/xdg/Autostart.h"

#include <gtest/gtest.h>

#include "tests/doubles/FakeLog.h"
#include "tests/doubles/TemporaryFolder.h"

namespace orlamo::xdg {
namespace {

namespace fs = std::filesystem;

class AutostartTest : public testing::Test {
protected:
    FakeLog log;
    const TemporaryFolder folder;
    const std::string identifier = "app.orlamo.OrlamoHelper";
    const fs::path config = folder.path, file = config / "autostart" / (identifier + ".desktop");
};

TEST_F(AutostartTest, WritesAWholeEntryInPlaceOfAnyOtherAndRemovesNothingElse) {
    Autostart items({.executable = "/opt/or $la`mo/orlamo"}, config);
    EXPECT_TRUE(items.SMLoginItemSetEnabled(identifier, false)) << "what is not there is removed";
    EXPECT_FALSE(fs::exists(config / "autostart"));
    EXPECT_TRUE(items.SMLoginItemSetEnabled(identifier, true));
    std::ofstream(file) << "[Desktop Entry]\nHidden=true\n" << std::string(5000, '#');
    std::ofstream(file.parent_path() / "other.desktop") << "x";
    EXPECT_TRUE(items.SMLoginItemSetEnabled(identifier, true));
    EXPECT_EQ(contentOf(file),
              "[Desktop Entry]\nType=Application\nName=Orlamo\nIcon=app.orlamo.Orlamo\n"
              "TryExec=/opt/or $la`mo/orlamo\nExec=\"/opt/or \\\\$la\\\\`mo/orlamo\"\n"
              "Terminal=false\nNoDisplay=true\nX-GNOME-Autostart-enabled=true\n");
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0600));
    EXPECT_EQ(std::distance(fs::directory_iterator(file.parent_path()), {}), 2);
    EXPECT_TRUE(items.SMLoginItemSetEnabled(identifier, false));
    EXPECT_FALSE(fs::exists(file));
    EXPECT_TRUE(fs::exists(file.parent_path() / "other.desktop"));
}

TEST_F(AutostartTest, SaysSoWhenTheFolderOrTheEntryCannotBeMadeAndLeavesNothingBehind) {
    std::ofstream(config / "autostart") << "a file";
    Autostart items({.executable = "/usr/bin/orlamo"}, config);
    EXPECT_FALSE(items.SMLoginItemSetEnabled(identifier, true));
    ASSERT_EQ(log.lines.size(), 1U);
    EXPECT_TRUE(log.lines[0].starts_with("Start at login: " + (config / "autostart").string())) << log.lines[0];
    fs::remove(config / "autostart");
    fs::create_directories(file / "in the way");
    EXPECT_FALSE(items.SMLoginItemSetEnabled(identifier, true));
    EXPECT_FALSE(items.SMLoginItemSetEnabled(identifier, false));
    EXPECT_EQ(log.lines.size(), 3U);
    EXPECT_EQ(std::distance(fs::directory_iterator(file.parent_path()), {}), 1);
}

TEST_F(AutostartTest, RefusesNamesAndPlacesThatWouldGoAstray) {
    Autostart items({.executable = "/usr/bin/orlamo"}, config);
    for (const auto* name : {"", ".", "..", "../x", "/etc/x"}) EXPECT_FALSE(items.SMLoginItemSetEnabled(name, true));
    EXPECT_FALSE(Autostart({.executable = "orlamo"}, config).SMLoginItemSetEnabled(identifier, true));
    EXPECT_FALSE(Autostart({.executable = "/usr/bin/orlamo"}, "").SMLoginItemSetEnabled(identifier, true));
    EXPECT_EQ(log.lines.size(), 7U);
    EXPECT_TRUE(fs::is_empty(config));
}

}  // namespace
}  // namespace orlamo::xdg
