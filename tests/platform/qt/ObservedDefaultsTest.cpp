#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "platform/qt/JsonUserDefaults.h"
#include "platform/qt/QtRunLoop.h"
#include "tests/platform/qt/QtFixture.h"

namespace orlamo {
namespace {

namespace fs = std::filesystem;

class ObservedDefaults : public QtFixture {
protected:
    ObservedDefaults() { fs::remove_all(folder); }
    ~ObservedDefaults() override { fs::remove_all(folder); }

    /// How often the observer was called meanwhile; long enough for every pending change to be heard.
    int calls(const std::function<void()>& change) {
        heard = 0;
        change();
        bool isOver = false;
        loop.asyncAfter(0.2, [&] { isOver = true; });
        turnEventLoopUntil([&] { return isOver; });
        return heard;
    }

    qt::QtRunLoop loop;
    Service<RunLoop>::Installation installation{loop};
    fs::path folder = fs::temp_directory_path() / ("orlamo-observed-" + std::to_string(::getpid()));
    fs::path file = folder / "deep" / "settings.json";
    int heard = 0;
};

TEST_F(ObservedDefaults, EveryWriteAndEveryChangeFromOutsideArriveOnce) {
    qt::JsonUserDefaults defaults(file);
    qt::JsonUserDefaults outside(file);
    const auto observation = defaults.addObserver("watched", [this] { ++heard; });
    EXPECT_EQ(calls([&] { defaults.setObject("watched", true); }), 1) << "the folder is created by this write";
    EXPECT_EQ(calls([&] { defaults.setObject("watched", true); }), 1) << "also the value it had";
    EXPECT_EQ(calls([&] { defaults.setObject("other", true); }), 0);
    EXPECT_EQ(calls([&] { outside.setObject("watched", false); }), 1);
    EXPECT_FALSE(defaults.boolForKey("watched"));
    EXPECT_EQ(calls([&] { outside.setObject("other", false); }), 0);
    EXPECT_EQ(calls([&] { std::ofstream(file) << R"({"watched": true})"; }), 1) << "written in place";
    EXPECT_EQ(calls([&] { fs::remove_all(folder); }), 1) << "absent is a change";
    EXPECT_EQ(calls([&] { defaults.setObject("watched", true); }), 1);
    EXPECT_EQ(calls([&] { outside.setObject("watched", false); }), 1) << "the new folder is watched";
}

TEST_F(ObservedDefaults, ALinkedFileIsFollowedAndAnEndedObservationIsSilent) {
    fs::create_directories(file.parent_path());
    fs::create_directories(folder / "elsewhere");
    const fs::path target = folder / "elsewhere" / "real.json";
    std::ofstream(target) << "{}";
    fs::create_symlink(target, file);
    qt::JsonUserDefaults defaults(file);
    auto observation = defaults.addObserver("watched", [this] { ++heard; });
    EXPECT_EQ(calls([&] { std::ofstream(target) << R"({"watched": 1})"; }), 1);
    observation.reset();
    EXPECT_EQ(calls([&] { std::ofstream(target) << R"({"watched": 2})"; }), 0);
}

}  // namespace
}  // namespace orlamo
