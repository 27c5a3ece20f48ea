#include "platform/appcast/Version.h"

#include <algorithm>

namespace orlamo::appcast {

namespace {

constexpr std::size_t longestText = 64;

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

bool isLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

char lowerCase(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

/// Takes the run at the front that the test holds for.
std::string takeRun(std::string_view& text, bool (*belongs)(char)) {
    const auto end = std::ranges::find_if_not(text, belongs);
    std::string run(text.begin(), end);
    text.remove_prefix(run.size());
    return run;
}

std::string takeNumber(std::string_view& text) {
    const std::string digits = takeRun(text, isDigit);
    return digits.substr(std::min(digits.find_first_not_of('0'), digits.size()));
}

std::weak_ordering compareNumbers(const std::string& left, const std::string& right) {
    if (left.size() != right.size()) return left.size() <=> right.size();
    return left <=> right;
}

/// Numbers come before words; an empty run is the number 0.
std::weak_ordering compareRuns(const std::string& left, const std::string& right) {
    const bool leftIsWord = !left.empty() && isLetter(left.front());
    const bool rightIsWord = !right.empty() && isLetter(right.front());
    if (leftIsWord != rightIsWord) return leftIsWord <=> rightIsWord;
    return leftIsWord ? std::weak_ordering(left <=> right) : compareNumbers(left, right);
}

}  // namespace

std::optional<Version> Version::parse(std::string_view text) {
    if (text.size() > longestText) return std::nullopt;
    if (text.size() > 1 && lowerCase(text.front()) == 'v') text.remove_prefix(1);
    if (text.empty() || !isDigit(text.front())) return std::nullopt;

    Version version;
    version.numbers_.push_back(takeNumber(text));
    while (text.size() > 1 && text[0] == '.' && isDigit(text[1])) {
        text.remove_prefix(1);
        version.numbers_.push_back(takeNumber(text));
    }
    text = text.substr(0, text.find('+'));
    while (!text.empty()) {
        if (isDigit(text.front())) {
            version.preRelease_.push_back(takeNumber(text));
        } else if (isLetter(text.front())) {
            std::string word = takeRun(text, isLetter);
            std::ranges::transform(word, word.begin(), lowerCase);
            version.preRelease_.push_back(std::move(word));
        } else {
            text.remove_prefix(1);
        }
    }
    return version;
}

std::weak_ordering Version::operator<=>(const Version& other) const {
    static const std::string zero;
    for (std::size_t at = 0; at < std::max(numbers_.size(), other.numbers_.size()); ++at) {
        const auto order = compareNumbers(at < numbers_.size() ? numbers_[at] : zero,
                                          at < other.numbers_.size() ? other.numbers_[at] : zero);
        if (order != 0) return order;
    }
    if (preRelease_.empty() != other.preRelease_.empty()) return preRelease_.empty() <=> other.preRelease_.empty();
    return std::lexicographical_compare_three_way(preRelease_.begin(), preRelease_.end(), other.preRelease_.begin(),
                                                  other.preRelease_.end(), compareRuns);
}

}  // namespace orlamo::appcast
