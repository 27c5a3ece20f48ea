// Where libFuzzer comes in.
#include <cstdint>
#include <string_view>

namespace orlamo::fuzz {
void ORLAMO_FUZZ_TARGET(std::string_view bytes);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    orlamo::fuzz::ORLAMO_FUZZ_TARGET({reinterpret_cast<const char*>(data), size});
    return 0;
}
