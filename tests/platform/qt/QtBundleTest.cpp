#include "platform/qt/QtBundle.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <fstream>
#include <vector>

#include "tests/doubles/FakeLog.h"
#include "tests/doubles/FakePropertyListParser.h"

namespace orlamo {
namespace {

namespace fs = std::filesystem;

class BundleOfFiles : public ::testing::Test {
protected:
    // The tests' own program stands beside the resources, as the program does.
    const fs::path built = qt::resourcesFolder(fs::read_symlink("/proc/self/exe"));
    FakeLog log;
    FakePropertyListParser parser;
};

// What the toolkit makes of $LANGUAGE, or without it of $LC_ALL, $LC_MESSAGES or $LANG.
TEST_F(BundleOfFiles, SpeaksTheFirstOfTheUsersLanguagesThatItHas) {
    const std::vector<std::pair<QStringList, const char*>> cases{
        {{"en-GB", "en-Latn-GB", "de", "de-Latn-DE", "de-DE"}, "Search"},
        {{"de-AT", "de-Latn-AT", "en", "en-Latn-US", "en-US"}, "Suche"},
        {{"ja-JP", "ja-Jpan-JP", "ja"}, "検索"},
        {{"zh-CN", "zh-Hans-CN", "zh"}, "搜索"},
        {{"zh-SG", "zh-Hans-SG"}, "搜索"},
        {{"zh-TW", "zh-Hant-TW"}, "Search"},  // another script
        {{"zh-TW", "zh-Hant-TW", "zh-CN", "zh-Hans-CN", "zh"}, "搜索"},
        {{"C"}, "Search"},
        {{}, "Search"},
        {{"it", "it-Latn-IT", "it-IT", "xx", "C", "fr", "fr-Latn-FR", "fr-FR"}, "Recherche"},
    };
    for (const auto& [languages, spoken] : cases) {
        EXPECT_EQ(qt::QtBundle(built, languages).localizedString("Spotlight"), spoken)
            << languages.join(' ').toStdString();
    }
    EXPECT_EQ(qt::QtBundle(built, {"zh-SG"}).language(), "zh_CN");
    EXPECT_EQ(qt::QtBundle(built, {"it"}).language(), "en");
    const qt::QtBundle chinese(built, {"zh-CN"});
    for (int time = 0; time < 2; ++time) EXPECT_EQ(chinese.localizedString("no.such.key"), "no.such.key");
}

TEST_F(BundleOfFiles, SaysWhatIsMissingAndLivesOn) {
    const qt::QtBundle bundle("/nowhere", {"en"});
    EXPECT_EQ(log.lines.size(), 2U);
    EXPECT_EQ(bundle.bundleIdentifier(), "");
    EXPECT_EQ(bundle.localizedString("System"), "System");
}

}  // namespace
}  // namespace orlamo
