#include <unistd.h>

#include "platform/qt/QtRunLoop.h"
#include "tests/platform/qt/QtFixture.h"

namespace orlamo {
namespace {

class Loop : public QtFixture {
protected:
    void waitFor(double seconds) {
        bool isOver = false;
        loop.asyncAfter(seconds, [&] { isOver = true; });
        turnEventLoopUntil([&] { return isOver; });
    }

    qt::QtRunLoop loop;
};

TEST_F(Loop, ATimerMayBeDestroyedByItsOwnTaskAndFiresNoMore) {
    std::unique_ptr<RunLoop::Handle> handle;
    auto witness = std::make_shared<int>(0);
    handle = loop.scheduleRepeatingTimer(0.001, [&handle, witness] {
        handle.reset();
        ++*witness;
    });
    turnEventLoopUntil([&] { return *witness == 1; });
    waitFor(0.02);
    EXPECT_EQ(*witness, 1);
    EXPECT_EQ(witness.use_count(), 1) << "the task is gone too";
}

TEST_F(Loop, AReadableDescriptorIsHeardUntilItsWatchIsDestroyed) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    int heard = 0;
    std::unique_ptr<RunLoop::Handle> watch;
    watch = loop.watchReadable(ends[0], [&] {
        if (++heard == 2) watch.reset();
    });
    ASSERT_EQ(write(ends[1], "x", 1), 1);
    turnEventLoopUntil([&] { return heard == 2; });
    waitFor(0.01);
    EXPECT_EQ(heard, 2);
    close(ends[0]);
    close(ends[1]);
}

}  // namespace
}  // namespace orlamo
