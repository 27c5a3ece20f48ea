#include "platform/desktops/Command.h"

#include <glib.h>

#include <algorithm>
#include <memory>

namespace orlamo::desktops {

namespace {

struct LongOption {
    std::string_view name;
    char letter;
};
constexpr LongOption longOptions[] = {
    {"--fullscreen", 'f'}, {"--window", 'w'},      {"--region", 'r'},     {"--clipboard", 'c'},
    {"--collapsed", 'c'},  {"--area", 'a'},        {"--select", 's'},     {"--focused", 'u'},
    {"--focussed", 'u'},   {"--interactive", 'i'}, {"--autoselect", 'a'},
};

void addOption(std::string_view word, std::string& letters) {
    if (!word.starts_with("--")) {
        letters += word.substr(1);
        return;
    }
    const auto* const found = std::ranges::find(longOptions, word.substr(0, word.find('=')), &LongOption::name);
    if (found != std::end(longOptions)) letters += found->letter;
}

}  // namespace

std::vector<std::string> argumentsOf(std::string_view text) {
    int count = 0;
    char** parsed = nullptr;
    if (g_shell_parse_argv(std::string(text).c_str(), &count, &parsed, nullptr) == FALSE) return {};
    const std::unique_ptr<char*, decltype(&g_strfreev)> owner(parsed, g_strfreev);
    std::vector<std::string> words(parsed, parsed + count);
    words[0].erase(0, words[0].rfind('/') + 1);
    return words;
}

Command commandOf(std::string_view text) {
    const auto arguments = argumentsOf(text);
    if (arguments.empty()) return {};
    Command command;
    command.program = arguments[0];
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        const std::string& word = arguments[i];
        if (word.starts_with('-')) {
            addOption(word, command.options);
        } else {
            command.words.push_back(word);
        }
    }
    return command;
}

bool runs(const Command& command, const CommandRow& row) {
    const auto given = [&command](char option) { return command.options.find(option) != std::string::npos; };
    return command.program == row.program && std::ranges::all_of(row.options, given) &&
           std::ranges::none_of(row.unwanted, given) &&
           (row.word.empty() || std::ranges::find(command.words, row.word) != command.words.end());
}

}  // namespace orlamo::desktops
