#include "platform/qt/QtBundle.h"

#include <gtest/gtest.h>

#include <QLocale>
#include <fstream>

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

TEST_F(BundleOfFiles, AnswersFromItsInformationAndFiles) {
    parser.result.value =
        PropertyList::Dictionary{{"CFBundleIdentifier", std::string("a.b")}, {"CFBundleShortVersionString", 1.5}};
    const qt::QtBundle bundle(built, QLocale("en"));
    EXPECT_EQ(bundle.bundleIdentifier(), "a.b");
    EXPECT_EQ(bundle.infoDictionaryValue("CFBundleShortVersionString"), PropertyList(1.5));
    EXPECT_EQ(bundle.infoDictionaryValue("other"), PropertyList());
    EXPECT_EQ(bundle.pathForResource("Info", "plist"), (built / "Info.plist").string());
    EXPECT_EQ(bundle.pathForResource("Info", "other"), std::nullopt);
    EXPECT_EQ(bundle.pathForResource("", ""), std::nullopt);
    EXPECT_TRUE(log.lines.empty());
}

TEST_F(BundleOfFiles, SpeaksTheUsersLanguageElseEnglishElseShowsTheKey) {
    const qt::QtBundle english(built, QLocale("en_GB"));
    const qt::QtBundle chinese(built, QLocale("zh_CN"));
    const qt::QtBundle neither(built, QLocale("de_AT"));
    EXPECT_EQ(english.localizedString("System"), "System");
    EXPECT_NE(chinese.localizedString("System"), "System");
    const qt::QtBundle singapore(built, QLocale("zh_Hans_SG"));
    const qt::QtBundle taiwan(built, QLocale("zh_TW"));
    EXPECT_EQ(singapore.localizedString("System"), chinese.localizedString("System"));
    EXPECT_EQ(taiwan.localizedString("System"), "System") << "another script";
    EXPECT_EQ(neither.localizedString("tab.types.settings"), english.localizedString("tab.types.settings"));
    EXPECT_NE(english.localizedString("tab.types.settings"), "tab.types.settings");
    EXPECT_EQ(chinese.localizedString("no.such.key"), "no.such.key");
    EXPECT_EQ(chinese.localizedString("no.such.key"), "no.such.key");
}

TEST_F(BundleOfFiles, SaysWhatIsMissingAndLivesOn) {
    const qt::QtBundle bundle("/nowhere", QLocale("en"));
    EXPECT_EQ(log.lines.size(), 2U);
    EXPECT_EQ(bundle.bundleIdentifier(), "");
    EXPECT_EQ(bundle.localizedString("System"), "System");
}

}  // namespace
}  // namespace orlamo
