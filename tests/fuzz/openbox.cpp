// A configuration of Openbox.
#include "platform/desktops/OpenboxConfiguration.h"

#include "platform/desktops/OpenboxHotKeys.h"
#include "tests/doubles/FakeLog.h"
#include "tests/doubles/FakeSettingsSource.h"
#include "tests/fuzz/FuzzInput.h"

using namespace orlamo;
using fuzz::require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FakeLog log;
    const std::string_view xml = fuzz::textOf(data, size);
    std::string error;
    const auto bindings = desktops::openboxBindings(xml, error);
    require(bindings.has_value() == error.empty(), "there are bindings or an error");

    FakeSettingsSource source;
    source.files["openbox/rc.xml"] = xml;
    const PropertyList hotKeys = desktops::openboxHotKeys("", source);
    require(bindings.has_value() || hotKeys == PropertyList(), "what cannot be read has no hot keys");
    hotKeys.description();
    return 0;
}
