#include "platform/xdg/AddressOpener.h"

#include <gtest/gtest.h>

#include "tests/doubles/FakeLog.h"

using namespace std::literals;

namespace orlamo::xdg {
namespace {

TEST(AddressOpener, OpensWebAndMailAddressesOnly) {
    for (const char* const good :
         {"https://orlamo.example/", "http://127.0.0.1:8080/a?b=c&d=%20#e", "HTTPS://Orlamo.Example", "https://[::1]/x",
          "mailto:help@orlamo.example", "mailto:a@b.example?subject=A%20B"}) {
        EXPECT_TRUE(isOpenableAddress(good)) << good;
    }
    for (const char* const bad :
         {"", "orlamo.example", "/etc/passwd", "file:///etc/passwd", "javascript:alert(1)", "--help",
          "-https://orlamo.example/", " https://orlamo.example/", "https://", "https:///path", "https:orlamo.example",
          "https://\xc3\xbc.example/", "mailto:", "mailto://host/x"}) {
        EXPECT_FALSE(isOpenableAddress(bad)) << bad;
    }
    const std::string endless(9000, 'a');
    for (const std::string_view rest : {"/ two"sv, "/\n--help"sv, "/$(id)`id`"sv, "/<b>"sv, "/%zz"sv, ":99999/"sv,
                                        "/\0x"sv, std::string_view(endless)}) {
        EXPECT_FALSE(isOpenableAddress("https://orlamo.example" + std::string(rest))) << rest;
    }
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
