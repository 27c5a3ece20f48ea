#pragma once

#include <QTranslator>
#include <filesystem>
#include <unordered_map>

#include "platform/Bundle.h"

namespace orlamo::qt {

/// The folder of the program's resources: beside the executable when it was just built, else where an installation has
/// it, seen from the executable's own place.
std::filesystem::path resourcesFolder(const std::filesystem::path& executable);

/// A folder of resources with Info.plist and one Localizable_<language>.qm per language. The PropertyListParser must be
/// installed. A missing or unreadable part is a log line and reads as empty.
class QtBundle final : public Bundle {
public:
    /// The languages as the user prefers them, the first one first ("de-AT", "zh-Hans-CN"): a table for the country,
    /// else one for the language alone, else the next language. English stands behind them.
    QtBundle(std::filesystem::path folder, const QStringList& languages);

    /// The language of the texts, such as "de_AT" or "zh_CN".
    const QString& language() const { return language_; }

    std::string bundleIdentifier() const override;
    PropertyList infoDictionaryValue(std::string_view key) const override;
    std::optional<std::string> pathForResource(std::string_view name, std::string_view type) const override;
    std::string localizedString(std::string_view key) const override;

private:
    void readInformation();
    void loadUserLanguage(const QStringList& languages, const QString& directory);

    std::filesystem::path folder_;
    PropertyList information_;
    QString language_ = "en";
    QTranslator userLanguage_;
    QTranslator english_;
    mutable std::unordered_map<std::string, std::string> texts_;  // by key, once looked up
};

}  // namespace orlamo::qt
