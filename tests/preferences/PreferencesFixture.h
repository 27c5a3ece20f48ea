#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "tests/doubles/FakeDesktop.h"
#include "tests/doubles/FakeInterfaceFiles.h"

namespace orlamo {

using Lines = std::vector<std::string>;

class PreferencesTest : public testing::Test {
protected:
    PreferencesTest() {
        PropertyList::Dictionary pages;
        for (const auto* const page : {"home", "videoTutorial", "questionsAndAnswers", "support", "chatGroup",
                                       "permissionHelp", "applications", "developer"})
            pages[page] = PropertyList(std::string(page) + ".example");
        desktop.bundle.info["WebPages"] = PropertyList(pages);
    }

    FakeDesktop desktop;
    FakeInterfaceFiles files;
    FakeButton button;
};

}  // namespace orlamo
