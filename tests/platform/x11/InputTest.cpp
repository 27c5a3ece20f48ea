#include <gtest/gtest.h>

#include <string>

#include "platform/x11/FocusMemory.h"
#include "platform/x11/MonitorList.h"

namespace orlamo::x11 {
namespace {

constexpr FocusMemory::Former editor{0x1234, 42};

TEST(FocusMemory, ThisProgramStaysInFrontWhenItsWindowClosesUntilTheFocusIsElsewhere) {
    FocusMemory memory;
    EXPECT_FALSE(memory.isFrontmost(FocusHolder::nobody));
    memory.taken(FocusHolder::otherProgram, editor);
    EXPECT_TRUE(memory.isFrontmost(FocusHolder::thisProgram));
    EXPECT_TRUE(memory.isFrontmost(FocusHolder::nobody));
    EXPECT_EQ(memory.former(), editor);

    EXPECT_FALSE(memory.isFrontmost(FocusHolder::otherProgram));
    EXPECT_EQ(memory.former(), std::nullopt) << "the user has moved on";
    EXPECT_FALSE(memory.isFrontmost(FocusHolder::nobody));
}

TEST(FocusMemory, AnotherWindowOfOursKeepsTheOneBefore) {
    FocusMemory memory;
    memory.taken(FocusHolder::otherProgram, editor);
    memory.taken(FocusHolder::thisProgram, std::nullopt);
    EXPECT_EQ(memory.former(), editor);
    memory.taken(FocusHolder::nobody, std::nullopt);
    EXPECT_EQ(memory.former(), std::nullopt);
}

TEST(MonitorList, AHandlerMayAddAnother) {
    MonitorList list;
    int later = 0;
    list.add(flagsChangedMask, EventMonitors::GlobalHandler([&](const Event&) {
                 for (int i = 0; i < 50; ++i) {
                     list.add(flagsChangedMask, EventMonitors::GlobalHandler([&later](const Event&) { ++later; }));
                 }
             }));
    list.dispatch({}, Destination::global);
    EXPECT_EQ(later, 0);
    list.dispatch({}, Destination::global);
    EXPECT_EQ(later, 50);
}

}  // namespace
}  // namespace orlamo::x11
