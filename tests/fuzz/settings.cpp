// The settings file as anybody may have left it: read, changed and written.
#include <array>

#include "platform/qt/JsonUserDefaults.h"
#include "shell/settings/Settings.h"
#include "tests/doubles/FakeLog.h"
#include "tests/doubles/TemporaryFolder.h"
#include "tests/fuzz/FuzzInput.h"

namespace orlamo::fuzz {

namespace fs = std::filesystem;

void settings(std::string_view bytes) {
    const auto parsed = qt::SettingsJson::parse(bytes);
    if (parsed) require(qt::SettingsJson::parse(parsed->text()) == parsed, "settings are read as they were written");
    if (bytes.size() % 4 != 0) return;  // files take their time

    static const TemporaryFolder folder;
    for (const auto& entry : fs::directory_iterator(folder.path)) fs::remove(entry);
    const FakeLog log;
    const fs::path file = folder.path / "settings.json";
    std::ofstream(file, std::ios::binary) << bytes;

    qt::JsonUserDefaults defaults(file);
    writeDefaultValues(defaults);
    std::string ascii(bytes);  // a text that is no UTF-8 is not kept as it is
    for (char& each : ascii) each = static_cast<char>(each & 0x7f);
    const std::string key = ascii.substr(0, 8);
    const std::array<UserDefaults::Value, 4> values{true, std::int64_t{-7}, ascii,
                                                    UserDefaults::Data(bytes.begin(), bytes.end())};
    const UserDefaults::Value value = values[bytes.size() / 4 % values.size()];
    defaults.setObject(key, value);
    require(defaults.objectForKey(key) == value, "a value is what was set");
    require(defaults.synchronize(), "everything is written");

    qt::JsonUserDefaults again(file);
    for (const auto name : defaultsInitializationKeys) {
        require(again.objectForKey(name) == defaults.objectForKey(name), "the file holds what was set");
    }
    const auto after = qt::SettingsJson::parse(contentOf(file));
    require(after.has_value(), "what was written can be read");
    require(after->text() == contentOf(file), "a file is written as it was");
    if (parsed) require(parsed->value("other") == after->value("other") || key == "other", "other settings stay");
    const auto files = std::distance(fs::directory_iterator(folder.path), {});
    require(bytes.empty() || parsed || files >= 2, "a damaged file is kept");
}

}  // namespace orlamo::fuzz
