#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "platform/Accessibility.h"
#include "platform/atspi/AccessibilityBus.h"
#include "platform/atspi/ApplicationReader.h"

namespace orlamo::atspi {

/// Other applications' menus over the desktop's accessibility bus. Reading "AXMenuBar" reads the whole menu tree of the
/// process; everything asked of its elements later is answered from what was read then, except "AXPress".
/// The title of an item that has neither shortcut nor children may not have been read: it is noValue then.
class Accessibility : public orlamo::Accessibility {
public:
    explicit Accessibility(Options options = {});

    AXUIElementRef AXUIElementCreateApplication(int processIdentifier) override;
    AXError AXUIElementCopyAttributeValue(const AXUIElementRef& element, std::string_view attribute,
                                          AXValue& value) override;
    AXError AXUIElementGetAttributeValueCount(const AXUIElementRef& element, std::string_view attribute,
                                              std::int64_t& count) override;
    AXError AXUIElementCopyAttributeValues(const AXUIElementRef& element, std::string_view attribute,
                                           std::int64_t first, std::int64_t count,
                                           std::vector<AXUIElementRef>& values) override;
    AXError AXUIElementPerformAction(const AXUIElementRef& element, std::string_view action) override;
    bool hasSessionMenu() const override { return hasSessionMenu_; }
    SessionMenuState sessionMenuState() override;
    bool AXIsProcessTrusted() override;

    /// How the last reading of a menu bar went.
    const ReadStatistics& lastRead() const { return lastRead_; }

private:
    AXError copyMenuBar(int processIdentifier, AXValue& value);

    Options options_;
    AccessibilityBus bus_;
    SlowPrograms slowPrograms_;
    ReadStatistics lastRead_;
    bool hasSessionMenu_ = false;
};

}  // namespace orlamo::atspi
