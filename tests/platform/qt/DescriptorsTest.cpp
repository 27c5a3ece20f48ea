#include <unistd.h>

#include <chrono>

#include "platform/qt/QtRunLoop.h"
#include "platform/qt/StandardOutputLog.h"
#include "tests/platform/qt/QtFixture.h"

namespace orlamo {
namespace {

class Loop : public QtFixture {
protected:
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
    turnEventLoopFor(0.02);
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
    turnEventLoopFor(0.01);
    EXPECT_EQ(heard, 2);
    close(ends[0]);
    close(ends[1]);
}

TEST(StandardOutputLog, ALineIsOneLineOfReadableText) {
    EXPECT_EQ(qt::logLineBytes("双击\nx\r\x1b[31m\ty"), "双击 x  [31m\ty\n");
    EXPECT_EQ(qt::logLineBytes("a\xff z"), "a\xef\xbf\xbd z\n");
    EXPECT_EQ(qt::logLineBytes(""), "\n");
}

TEST(StandardOutputLog, AReaderThatIsGoneOrAsleepDoesNotHoldTheProgramUp) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    qt::StandardOutputLog log(ends[1]);
    const std::string line(1000, 'x');
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 500; ++i) log.write(line);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));

    std::string buffer(1 << 20, 0);
    const ssize_t waiting = read(ends[0], buffer.data(), buffer.size());
    ASSERT_GT(waiting, 30'000);
    EXPECT_EQ(buffer[static_cast<std::size_t>(waiting) - 1], '\n') << "lines are dropped as a whole";
    log.write("again");
    buffer.resize(static_cast<std::size_t>(read(ends[0], buffer.data(), 100)));
    EXPECT_EQ(buffer, "again\n");

    close(ends[0]);
    log.write("nobody listens");
    close(ends[1]);
}

}  // namespace
}  // namespace orlamo
