// Settings while system calls fail, writers are killed and others write too.
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <random>
#include <utility>

#include "platform/qt/JsonUserDefaults.h"
#include "platform/xdg/Autostart.h"
#include "tests/doubles/FakeLog.h"
#include "tests/doubles/TemporaryFolder.h"
#include "tests/faults/SystemCalls.h"

namespace orlamo {
namespace {

namespace fs = std::filesystem;
using Value = UserDefaults::Value;
using Answer = SystemCalls::Answer;

constexpr std::int64_t old = 1, next = 2;
constexpr auto stored = R"({"keep": 7, "n": 1})";

void replaceFromOutside(const fs::path& path, const std::string& text) {
    const fs::path beside = path.string() + ".tool";
    std::ofstream(beside) << text;
    fs::rename(beside, path);
}

/// What a process does that ends with _exit or a signal; its status.
template <class Task>
int inAnotherProcess(Task task) {
    const pid_t child = fork();
    if (child == 0) {
        task();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

/// What stands there before the write under test.
struct Start {
    const char* name;
    const char* text;  // null: no file, and no folder
    bool isLink = false;
};
constexpr Start starts[] = {{"present", stored}, {"absent", nullptr}, {"damaged", "{\"n\": "}, {"link", stored, true}};

class SettingsFaults : public ::testing::Test {
protected:
    void prepare(const Start& start) {
        fs::remove_all(folder / "config");
        fs::remove_all(folder / "elsewhere");
        log.lines.clear();
        if (start.text == nullptr) return;
        fs::create_directories(file.parent_path());
        fs::create_directories(folder / "elsewhere");
        if (start.isLink) fs::create_symlink("../elsewhere/real.json", file);
        std::ofstream(file) << start.text;
    }

    /// What must hold after any write that was disturbed: one content or the other, and both the keys of before.
    void expectOldOrNew(const Start& start, const std::string& where) {
        const std::string text = contentOf(file);
        if (text == (start.text != nullptr ? start.text : "")) return;
        qt::JsonUserDefaults defaults(file);
        EXPECT_EQ(defaults.integerForKey("n"), next) << where << text;
        expectKept(start, where);
    }
    void expectKept(const Start& start, const std::string& where) {
        if (start.text == stored) {
            EXPECT_EQ(qt::JsonUserDefaults(file).integerForKey("keep"), 7) << where;
        }
        if (std::strcmp(start.name, "damaged") == 0) {
            EXPECT_EQ(contentOf(file.string() + ".damaged"), start.text) << where;
        }
        EXPECT_EQ(fs::is_symlink(file), start.isLink) << where;
    }
    void expectNoLitter(const std::string& where) {
        for (const auto& entry : fs::recursive_directory_iterator(folder)) {
            EXPECT_NE(entry.path().extension(), ".new") << where << entry.path();
        }
    }
    void expectSaved(const Start& start, const std::string& where) {
        EXPECT_EQ(qt::JsonUserDefaults(file).integerForKey("n"), next) << where << contentOf(file);
        expectKept(start, where);
        expectNoLitter(where);
    }

    FakeLog log;
    // In memory no call takes longer than the others: kills come at all of them.
    const TemporaryFolder temporary;
    const fs::path folder = temporary.path, file = folder / "config" / "settings.json";
};

// Each row: one call of one write fails in one way.
TEST_F(SettingsFaults, AnErrorAtAnyCallLeavesOldOrNewContentAndIsNeverReportedAsSaved) {
    const std::pair<const char*, Answer> kinds[] = {
        {"ENOSPC", {ENOSPC}}, {"EDQUOT", {EDQUOT}}, {"EIO", {EIO}},       {"EROFS", {EROFS}},   {"EACCES", {EACCES}},
        {"EINTR", {EINTR}},   {"EMFILE", {EMFILE}}, {"short", {0, true}}, {"EINVAL", {EINVAL}}, {"ENOSYS", {ENOSYS}}};
    int rows = 0;
    for (const Start& start : starts) {
        for (const auto& [kind, answer] : kinds) {
            for (auto [number, isReached] = std::pair(1, true); isReached; ++number, ++rows) {
                prepare(start);
                std::string where = std::string(start.name) + ", " + kind + " at call " + std::to_string(number);
                qt::JsonUserDefaults defaults(file);
                defaults.objectForKey("n");
                {
                    SystemCalls calls([&](int each, std::string_view call) {
                        if (each == number) (where += ", ").append(call) += ": ";
                        return each == number ? answer : Answer{};
                    });
                    defaults.setObject("n", next);
                    isReached = calls.made() >= number;
                }
                EXPECT_EQ(defaults.integerForKey("n"), next) << where;
                const bool isSaved = std::ranges::none_of(
                    log.lines, [](const auto& line) { return line.find("kept until") != std::string::npos; });
                if (isSaved) {
                    EXPECT_EQ(qt::JsonUserDefaults(file).integerForKey("n"), next) << where;
                }
                expectOldOrNew(start, where);
                EXPECT_TRUE(defaults.synchronize()) << where;
                // What could not be removed goes with the next write.
                if (where.find("unlink") != std::string::npos) defaults.setObject("other", next);
                expectSaved(start, where);
            }
        }
    }
    std::printf("%d rows\n", rows);
    EXPECT_GT(rows, 500);
}

TEST_F(SettingsFaults, AWriterThatIsKilledAtAnyCallLeavesOldOrNewContent) {
    for (const Start& start : starts) {
        for (int number = 1, status = SIGKILL; WIFSIGNALED(status); ++number) {
            prepare(start);
            const std::string where = std::string(start.name) + ", killed at call " + std::to_string(number) + ": ";
            status = inAnotherProcess([&] {
                const SystemCalls calls([&](int each, std::string_view) {
                    if (each == number) raise(SIGKILL);
                    return Answer{};
                });
                qt::JsonUserDefaults(file).setObject("n", next);
            });
            // A damaged file may have been moved aside, or have two names.
            expectOldOrNew(start, where);
            qt::JsonUserDefaults(file).setObject("n", next);
            qt::JsonUserDefaults(file).setObject("other", next);
            expectSaved(start, where);
        }
    }
}

TEST_F(SettingsFaults, AThousandKillsLeaveWhatWasSavedLast) {
    struct Shared {
        volatile std::int64_t begun, saved;
    };
    void* const memory = mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    auto& shared = *new (memory) Shared{old, old};
    prepare(starts[0]);
    std::mt19937 chance(4);
    int unreported = 0;
    int halfWritten = 0;
    for (int kill = 0; kill < 1000; ++kill) {
        const std::int64_t before = shared.begun;
        const pid_t child = fork();
        if (child == 0) {
            qt::JsonUserDefaults defaults(file);
            for (;;) {
                shared.begun = shared.begun + 1;
                defaults.setObject("n", shared.begun);
                if (defaults.synchronize()) shared.saved = shared.begun;
            }
        }
        while (shared.begun == before) usleep(20);
        usleep(chance() % 1000);
        ::kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        qt::JsonUserDefaults defaults(file);
        const std::int64_t n = defaults.integerForKey("n");
        unreported += n != shared.saved ? 1 : 0;
        halfWritten += fs::exists(file.string() + ".new") ? 1 : 0;
        ASSERT_TRUE(n == shared.saved || n == shared.begun) << kill << ": " << contentOf(file);
        ASSERT_EQ(defaults.integerForKey("keep"), 7) << kill;
        ASSERT_LE(std::distance(fs::directory_iterator(file.parent_path()), {}), 3) << kill;
        shared.saved = n;
    }
    std::printf("killed with a half written file beside: %d; replaced, but not yet reported: %d\n", halfWritten,
                unreported);
    EXPECT_GT(halfWritten, 50);
    qt::JsonUserDefaults(file).setObject("n", next);
    expectSaved(starts[0], "after all ");
    munmap(memory, sizeof(Shared));
}

TEST_F(SettingsFaults, TwoProcessesThatWriteAtOnceLoseNoKey) {
    prepare(starts[0]);
    constexpr int keys = 100;
    pid_t children[2];
    for (int writer = 0; writer < 2; ++writer) {
        children[writer] = fork();
        if (children[writer] != 0) continue;
        qt::JsonUserDefaults defaults(file);
        for (int i = 0; i < keys; ++i) defaults.setObject(std::to_string(writer) + "-" + std::to_string(i), next);
        _exit(defaults.synchronize() ? 0 : 1);
    }
    for (const pid_t child : children) {
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    qt::JsonUserDefaults defaults(file);
    for (int i = 0; i < 2 * keys; ++i) {
        const std::string key = std::to_string(i / keys) + "-" + std::to_string(i % keys);
        EXPECT_EQ(defaults.integerForKey(key), next) << key;
    }
    EXPECT_EQ(defaults.integerForKey("keep"), 7);
}

// Such a tool takes no lock. It adds a key to what stands there, once or several times in a row.
TEST_F(SettingsFaults, AToolThatReplacesTheFileBeforeAnyCallLosesNothingAndTakesNothing) {
    for (const int times : {1, 3}) {
        for (auto [number, isReached] = std::pair(1, true); isReached; ++number) {
            prepare(starts[0]);
            qt::JsonUserDefaults defaults(file);
            EXPECT_EQ(defaults.integerForKey("n"), old);
            std::string where = std::to_string(times) + " times from call " + std::to_string(number) + ": ";
            std::int64_t count = 0;
            {
                SystemCalls calls([&](int each, std::string_view call) {
                    if (each < number || each >= number + times) return Answer{};
                    (where += call) += " ";
                    auto settings = qt::SettingsJson::parse(contentOf(file));
                    settings->setValue("tool", ++count);
                    replaceFromOutside(file, settings->text());
                    return Answer{};
                });
                defaults.setObject("n", next);
                isReached = calls.made() >= number;
            }
            EXPECT_EQ(qt::JsonUserDefaults(file).integerForKey("tool"), count) << where;
            EXPECT_EQ(defaults.integerForKey("tool"), count) << where;
            expectSaved(starts[0], where);
        }
    }
}

// The first values are written when nothing seems to be stored.
TEST_F(SettingsFaults, AFileThatCannotBeReadAtFirstIsNotOverwrittenLater) {
    for (const char* failing : {"open", "fstat", "read"}) {
        prepare(starts[0]);
        qt::JsonUserDefaults defaults(file);
        {
            const SystemCalls calls([&](int, std::string_view call) { return Answer{call == failing ? EIO : 0}; });
            EXPECT_EQ(defaults.objectForKey("n"), Value{}) << failing;
            defaults.setObject("n", next);
            defaults.setObject("new", next);
        }
        EXPECT_EQ(defaults.integerForKey("n"), old) << failing;
        EXPECT_TRUE(defaults.synchronize());
        EXPECT_EQ(qt::JsonUserDefaults(file).integerForKey("n"), old) << failing;
        EXPECT_EQ(qt::JsonUserDefaults(file).integerForKey("new"), next) << failing;
    }
}

TEST_F(SettingsFaults, WhatWasReadStaysWhenTheFileCannotBeReadForAWhile) {
    prepare(starts[0]);
    qt::JsonUserDefaults defaults(file);
    EXPECT_EQ(defaults.integerForKey("keep"), 7);
    replaceFromOutside(file, R"({"keep": 8})");
    {
        const SystemCalls calls([&](int, std::string_view call) { return Answer{call == "read" ? EIO : 0}; });
        EXPECT_EQ(defaults.integerForKey("keep"), 7);
    }
    EXPECT_EQ(defaults.integerForKey("keep"), 8);
}

TEST_F(SettingsFaults, AnEntryOfTheSessionsStartIsWholeOrNotThereAndSaysSo) {
    const std::string id = "app.orlamo.OrlamoHelper";
    const fs::path entry = folder / "autostart" / (id + ".desktop");
    xdg::Autostart items({.executable = "/usr/bin/orlamo"}, folder);
    for (const int error : {ENOSPC, EIO, EROFS, EACCES, EINTR}) {
        for (auto [number, isReached] = std::pair(1, true); isReached; ++number) {
            fs::remove_all(entry.parent_path());
            log.lines.clear();
            bool isDone = false;
            {
                SystemCalls calls([&](int each, std::string_view) { return Answer{each == number ? error : 0}; });
                isDone = items.SMLoginItemSetEnabled(id, true);
                isReached = calls.made() >= number;
            }
            const std::string where = std::strerror(error) + (" at call " + std::to_string(number));
            const std::string whole = xdg::desktopEntry({.executable = "/usr/bin/orlamo"});
            EXPECT_TRUE(fs::exists(entry) ? contentOf(entry) == whole : !isDone) << where;
            EXPECT_EQ(log.lines.empty(), isDone) << where;
            EXPECT_TRUE(items.SMLoginItemSetEnabled(id, true)) << where;
            EXPECT_EQ(std::distance(fs::directory_iterator(entry.parent_path()), {}), 1) << where;
        }
    }
}

}  // namespace
}  // namespace orlamo
