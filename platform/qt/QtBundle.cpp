#include "platform/qt/QtBundle.h"

#include <QLocale>
#include <QStringList>
#include <fstream>
#include <iterator>
#include <vector>

#include "platform/Log.h"

namespace orlamo::qt {

namespace {

constexpr const char* table = "Localizable";
constexpr const char* information = "Info.plist";
constexpr std::size_t largestInformation = 1U << 20;
constexpr std::size_t mostTextsKept = 4096;

std::vector<std::uint8_t> contents(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::vector<std::uint8_t> bytes;
    for (std::istreambuf_iterator<char> at(file), end; at != end && bytes.size() <= largestInformation; ++at) {
        bytes.push_back(static_cast<std::uint8_t>(*at));
    }
    return bytes;
}

// The Chinese table is named after one country; its script is read in others too.
QString nameOfTable(const QLocale& language) {
    const bool readsSimplified =
        language.language() == QLocale::Chinese && language.script() == QLocale::SimplifiedHanScript;
    return readsSimplified ? "zh_CN" : language.name();
}

}  // namespace

std::filesystem::path resourcesFolder(const std::filesystem::path& executable) {
    const std::filesystem::path built = executable.parent_path() / "resources";
    std::error_code error;
    // Other programs' folders of that name do not count.
    if (std::filesystem::is_regular_file(built / information, error)) return built;
    return (executable.parent_path() / ORLAMO_RESOURCES_FROM_PROGRAM).lexically_normal();
}

QtBundle::QtBundle(std::filesystem::path folder, const QStringList& languages) : folder_(std::move(folder)) {
    readInformation();
    const QString directory = QString::fromStdString(folder_.string());
    loadUserLanguage(languages, directory);
    if (!english_.load(QString(table) + "_en", directory)) {
        logLine("bundle: no string table in " + folder_.string() + "; texts are shown as their keys");
    }
}

// One after the other: the toolkit, given all at once, would take a later one's own table before the first one's
// without its country. Where no table fits, the English one speaks alone.
void QtBundle::loadUserLanguage(const QStringList& languages, const QString& directory) {
    for (const QString& name : languages) {
        const QLocale language(name);
        if (language.language() == QLocale::C) continue;  // also what the toolkit makes of one it does not know
        if (!userLanguage_.load(QString("%1_%2").arg(table, nameOfTable(language)), directory)) continue;
        language_ = nameOfTable(language);
        return;
    }
}

void QtBundle::readInformation() {
    const std::filesystem::path path = folder_ / information;
    const std::vector<std::uint8_t> bytes = contents(path);
    if (bytes.empty()) {
        logLine("bundle: cannot read " + path.string());
        return;
    }
    PropertyListParser::Result result = PropertyListParser::shared().propertyListWithData(bytes);
    if (!result.error.empty()) {
        logLine("bundle: " + path.string() + ": " + result.error);
        return;
    }
    information_ = std::move(result.value);
}

std::string QtBundle::bundleIdentifier() const {
    const PropertyList identifier = infoDictionaryValue("CFBundleIdentifier");
    const auto* const text = identifier.get<std::string>();
    return text != nullptr ? *text : std::string();
}

PropertyList QtBundle::infoDictionaryValue(std::string_view key) const {
    const PropertyList* const value = information_.at(key);
    return value != nullptr ? *value : PropertyList();
}

std::optional<std::string> QtBundle::pathForResource(std::string_view name, std::string_view type) const {
    std::string file(name);
    if (!type.empty()) file.append(".").append(type);
    const std::filesystem::path path = folder_ / file;
    std::error_code error;
    if (name.empty() || !std::filesystem::is_regular_file(path, error)) return std::nullopt;
    return path.string();
}

std::string QtBundle::localizedString(std::string_view key) const {
    std::string source(key);
    if (const auto found = texts_.find(source); found != texts_.end()) return found->second;
    if (texts_.size() >= mostTextsKept) texts_.clear();
    QString text = userLanguage_.translate(table, source.c_str());
    if (text.isNull()) text = english_.translate(table, source.c_str());
    std::string result = text.isNull() ? source : text.toStdString();
    return texts_.emplace(std::move(source), std::move(result)).first->second;
}

}  // namespace orlamo::qt
