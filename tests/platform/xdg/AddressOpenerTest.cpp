#include "platform/xdg/AddressOpener.h"

#include <gtest/gtest.h>

#include "tests/doubles/FakeLog.h"

namespace orlamo::xdg {
namespace {

TEST(AddressOpener, OpensWebAndMailAddressesOnly) {
    const std::string_view good[] = {
        "https://orlamo.example/", "http://127.0.0.1:8080/a?b=c&d=%20#e", "HTTPS://Orlamo.Example",
        "https://[::1]/x",         "mailto:help@orlamo.example",          "mailto:a@b.example?subject=A%20B",
    };
    for (const auto address : good) EXPECT_TRUE(isOpenableAddress(address)) << address;

    const std::string_view bad[] = {
        "",
        "orlamo.example",
        "/etc/passwd",
        "file:///etc/passwd",
        "javascript:alert(1)",
        "x-apple.systempreferences:com.apple.preference.security?Privacy_ScreenCapture",
        "--help",
        "-https://orlamo.example/",
        "https://",
        "https:///path",
        "https:orlamo.example",
        "mailto:",
        "mailto://host/x",
        "https://orlamo.example/ two",
        "https://orlamo.example/\n--help",
        "https://orlamo.example/$(id)`id`",
        "https://orlamo.example/<b>",
        "https://orlamo.example/%zz",
        "https://orlamo.example:99999/",
        "https://\xc3\xbc.example/",
        std::string_view("https://orlamo.example/\0x", 25),
        " https://orlamo.example/",
    };
    for (const auto address : bad) EXPECT_FALSE(isOpenableAddress(address)) << address;
    EXPECT_FALSE(isOpenableAddress("https://orlamo.example/" + std::string(9000, 'a')));
}

TEST(AddressOpener, SaysWhyAnAddressIsNotOpened) {
    FakeLog log;
    ::setenv("BROWSER", "true", 1);
    EXPECT_FALSE(AddressOpener("/no/such/command").open("https://orlamo.example/"));
    EXPECT_FALSE(AddressOpener("true").open("file:///etc/passwd"));
    EXPECT_TRUE(AddressOpener("true").open("https://orlamo.example/"));
    ::unsetenv("BROWSER");
    ASSERT_EQ(log.lines.size(), 2U);
    EXPECT_NE(log.lines[0].find("/no/such/command: No such file"), std::string::npos);
    EXPECT_NE(log.lines[1].find("not a web or mail address"), std::string::npos);
}

}  // namespace
}  // namespace orlamo::xdg
