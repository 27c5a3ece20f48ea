#include "platform/desktops/OpenboxConfiguration.h"

#include <gtest/gtest.h>

namespace orlamo::desktops {
namespace {

std::string configuration(const std::string& keyboard) {
    return "<?xml version=\"1.0\"?><!-- mine --><openbox_config xmlns=\"http://openbox.org/3.4/rc\"><keyboard>" +
           keyboard + "</keyboard></openbox_config>";
}

// "C-A-Left W-Left: GoToDesktop{to=left}", one line for each binding.
std::string told(const std::string& xml) {
    std::string error;
    const auto bindings = openboxBindings(xml, error);
    if (!bindings) return error.empty() ? "no reason" : "unreadable";
    std::string lines;
    for (const auto& binding : *bindings) {
        for (const auto& key : binding.keys) lines += key + " ";
        for (const auto& action : binding.actions) {
            lines += action.name + "{";
            for (const auto& [name, value] : action.options) lines += name + "=" + value + ";";
            lines += "}";
        }
        lines += "\n";
    }
    return lines;
}

TEST(OpenboxConfiguration, GivesKeysActionsAndTheirOptions) {
    EXPECT_EQ(told(configuration("<chainQuitKey>C-g</chainQuitKey>"
                                 "<keybind key=\"C-A-Left  W-Left\"><action name=\"GoToDesktop\"><to> left\n</to>"
                                 "<to>right</to><wrap>no</wrap></action></keybind>"
                                 "<keybind key=\"W-d\"><action name=\"ToggleShowDesktop\"/></keybind>"
                                 "<keybind key=\"W-e\"/>")),
              "C-A-Left W-Left GoToDesktop{to=left;wrap=no;}\nW-d ToggleShowDesktop{}\n");
}

TEST(OpenboxConfiguration, TakesActionsInsideAnActionForNoneOfTheKeys) {
    EXPECT_EQ(told(configuration("<keybind key=\"A-Tab\"><action name=\"NextWindow\"><finalactions>"
                                 "<action name=\"Focus\"><to>1</to></action></finalactions></action></keybind>")),
              "A-Tab NextWindow{finalactions=;}\n");
}

TEST(OpenboxConfiguration, LeavesOutTheKeysInsideAChain) {
    EXPECT_EQ(told(configuration("<keybind key=\"W-x\"><keybind key=\"a\"><action name=\"Lower\"/></keybind>"
                                 "<action name=\"Raise\"/></keybind>")),
              "W-x \n");
}

TEST(OpenboxConfiguration, ReadsTheLastKeyboardSectionAndNoMouse) {
    EXPECT_EQ(told("<openbox_config><keyboard><keybind key=\"a\"><action name=\"Lower\"/></keybind></keyboard>"
                   "<mouse><keybind key=\"b\"><action name=\"Lower\"/></keybind></mouse>"
                   "<keyboard><keybind key=\"c\"><action name=\"Execute\"><command><![CDATA[a && b]]></command>"
                   "</action></keybind></keyboard></openbox_config>"),
              "c Execute{command=a && b;}\n");
}

TEST(OpenboxConfiguration, ThatIsNoneHasAReasonAndNoBindings) {
    std::string deep;
    for (int i = 0; i < 100000; ++i) deep += "<a>";
    const std::string tooLarge(maximumConfigurationSize + 1, ' ');
    const auto whole = configuration("<keybind key=\"a\"><action name=\"Lower\"/></keybind>");
    for (const auto& xml : {std::string(), std::string("garbage"), std::string("\0\1\xff", 3), deep, tooLarge,
                            whole.substr(0, whole.size() - 20), configuration("<keybind key=\"a\">"),
                            configuration("&unknown;"), std::string("<html><keyboard/></html>")}) {
        EXPECT_EQ(told(xml), "unreadable") << xml.substr(0, 80);
    }
}

}  // namespace
}  // namespace orlamo::desktops
