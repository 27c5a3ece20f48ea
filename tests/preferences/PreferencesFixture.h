#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/doubles/FakeDesktop.h"
#include "tests/doubles/FakeInterfaceFiles.h"

namespace orlamo {

/// Every page of the publisher has the address https://<its name>.example/.
class PreferencesTest : public testing::Test {
protected:
    PreferencesTest() {
        static ApplicationDelegate delegate;  // Utility::shared() keeps it
        desktop.application.delegate = &delegate;
        PropertyList::Dictionary pages;
        for (const auto* const page : {"home", "videoTutorial", "questionsAndAnswers", "support", "chatGroup",
                                       "permissionHelp", "applications", "developer"})
            pages[page] = PropertyList("https://" + std::string(page) + ".example/");
        desktop.bundle.info["WebPages"] = PropertyList(pages);
    }

    FakeDesktop desktop;
    FakeInterfaceFiles files;
};

}  // namespace orlamo
