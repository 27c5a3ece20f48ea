#include "platform/xdg/Autostart.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <iterator>

#include "tests/doubles/FakeLog.h"

namespace orlamo::xdg {
namespace {

namespace fs = std::filesystem;

class AutostartTest : public testing::Test {
protected:
    AutostartTest() {
        char name[] = "/tmp/orlamo-autostart-XXXXXX";
        config = mkdtemp(name);
        file = config / "autostart" / (identifier + ".desktop");
    }
    ~AutostartTest() override { fs::remove_all(config); }

    static std::string read(const fs::path& path) {
        std::ifstream file(path);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static std::string execOf(const std::string& executable) {
        const auto text = desktopEntry({.executable = executable});
        const auto start = text.find("\nExec=") + 6;
        return text.substr(start, text.find('\n', start) - start);
    }

    FakeLog log;
    const std::string identifier = "app.orlamo.OrlamoHelper";
    fs::path config, file;
};

TEST_F(AutostartTest, WritesAWholeEntryAndNothingElse) {
    Autostart items({.executable = "/opt/or lamo/orlamo"}, config);
    EXPECT_TRUE(items.SMLoginItemSetEnabled(identifier, false)) << "what is not there is removed";
    EXPECT_FALSE(fs::exists(config / "autostart"));
    EXPECT_TRUE(items.SMLoginItemSetEnabled(identifier, true));
    EXPECT_EQ(read(file),
              "[Desktop Entry]\nType=Application\nName=Orlamo\nIcon=app.orlamo.Orlamo\n"
              "TryExec=/opt/or lamo/orlamo\nExec=\"/opt/or "
              "lamo/orlamo\"\nTerminal=false\nNoDisplay=true\nX-GNOME-Autostart-enabled=true\n");
    EXPECT_EQ(std::distance(fs::directory_iterator(file.parent_path()), {}), 1);
    EXPECT_EQ(fs::status(file).permissions(), fs::perms(0600));
}

TEST_F(AutostartTest, ReplacesWhatIsThereAndRemovesItWithoutTheOthers) {
    Autostart items({.executable = "/usr/bin/orlamo"}, config);
    fs::create_directories(file.parent_path());
    std::ofstream(file) << "[Desktop Entry]\nHidden=true\n" << std::string(5000, '#');
    std::ofstream(file.parent_path() / "other.desktop") << "x";
    EXPECT_TRUE(items.SMLoginItemSetEnabled(identifier, true));
    EXPECT_EQ(read(file), desktopEntry({.executable = "/usr/bin/orlamo"}));
    EXPECT_TRUE(items.SMLoginItemSetEnabled(identifier, false));
    EXPECT_FALSE(fs::exists(file));
    EXPECT_TRUE(fs::exists(file.parent_path() / "other.desktop"));
}

TEST_F(AutostartTest, QuotesThePlaceOfTheProgram) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"/a b", R"("/a b")"},   {"/a\"b", R"("/a\\"b")"}, {"/a\\b", R"("/a\\\\b")"},
        {"/a$b", R"("/a\\$b")"}, {"/a`b", R"("/a\\`b")"},  {"/100%u", R"("/100%%u")"},
        {"/a'b", R"("/a'b")"},   {"/a\nb", R"("/a\nb")"},  {"/\xE4\xB8\xAD", "\"/\xE4\xB8\xAD\""},
    };
    for (const auto& [executable, exec] : cases) EXPECT_EQ(execOf(executable), exec) << executable;
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
