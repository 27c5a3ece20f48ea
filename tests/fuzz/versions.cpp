// Three versions, one a line: their order is an order.
#include "platform/appcast/Version.h"

#include "tests/fuzz/FuzzInput.h"

using orlamo::appcast::Version;
using orlamo::fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    orlamo::fuzz::FuzzInput input(data, size);
    const auto a = Version::parse(input.line());
    const auto b = Version::parse(input.line());
    const auto c = Version::parse(input.line());
    if (!a || !b) return 0;
    require(*a == *a, "a version is itself");
    require((*a < *b) == (*b > *a) && (*a == *b) == (*b == *a), "the order has two sides");
    require(!c || !(*a <= *b && *b <= *c) || *a <= *c, "the order goes on");
    require(!c || *a != *b || (*a < *c) == (*b < *c), "equal ones stand at one place");
    return 0;
}
