#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/doubles/FakeAccessibility.h"
#include "tests/doubles/FakeApplication.h"
#include "tests/doubles/FakeBundle.h"
#include "tests/doubles/FakeClock.h"
#include "tests/doubles/FakeEventMonitors.h"
#include "tests/doubles/FakeEventPoster.h"
#include "tests/doubles/FakeKeyboard.h"
#include "tests/doubles/FakeLog.h"
#include "tests/doubles/FakeLoginItems.h"
#include "tests/doubles/FakePropertyListParser.h"
#include "tests/doubles/FakeRunLoop.h"
#include "tests/doubles/FakeSystemPreferences.h"
#include "tests/doubles/FakeTextMetrics.h"
#include "tests/doubles/FakeUserDefaults.h"
#include "tests/doubles/FakeWindowSystem.h"
#include "tests/doubles/FakeWorkspace.h"

namespace orlamo {

/// Every fake at once, for tests of what uses most of them.
struct FakeDesktop {
    FakeLog log;
    FakeClock clock;
    FakeRunLoop runLoop;
    FakeAccessibility accessibility;
    FakeApplication application;
    FakeBundle bundle;
    FakeEventMonitors monitors;
    FakeEventPoster poster;
    FakeKeyboard keyboard;
    FakeLoginItems loginItems;
    FakePropertyListParser parser;
    FakeSystemPreferences preferences;
    FakeTextMetrics metrics;
    FakeUserDefaults defaults;
    FakeWindowSystem windows;
    FakeWorkspace workspace;

    static constexpr int editorProcess = 42;

    /// An editor in front with one menu of these items; the program's own shortcuts are shown untrimmed.
    void openEditor(std::vector<FakeElementPtr> items) {
        const RunningApplication editor{editorProcess, "org.example.editor", "Editor"};
        workspace.frontmost = editor;
        workspace.running = {editor};
        accessibility.setMenuBar(editorProcess, {FakeAccessibility::element(), FakeAccessibility::titled("Editor"),
                                                 FakeAccessibility::menu("File", std::move(items))});
        defaults.values["isContainsAppleMenu"] = true;
    }
};

}  // namespace orlamo
