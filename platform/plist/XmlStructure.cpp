#include <string_view>
#include <vector>

#include "platform/plist/Structure.h"

namespace orlamo::plist {

namespace {

constexpr std::string_view whitespace = " \t\r\n";

// Walks the tags of an XML text. Stricter than libplist: every element must be closed by its own name, so that the
// depth counted here is never less than the depth that the parser will see.
class TagWalk {
public:
    explicit TagWalk(std::string_view text) : rest_(text) {}

    std::string objection() {
        while (skipTo('<')) {
            const std::string why = startsWithAny() ? skipped() : tag();
            if (!why.empty()) return why;
        }
        if (!open_.empty()) return "the text ends inside <" + std::string(open_.back()) + ">";
        return seenElement_ ? "" : "neither XML nor binary";
    }

private:
    bool skipTo(char wanted) {
        const auto at = rest_.find(wanted);
        rest_.remove_prefix(at == std::string_view::npos ? rest_.size() : at);
        return !rest_.empty();
    }

    bool startsWithAny() const { return rest_.starts_with("<!") || rest_.starts_with("<?"); }

    std::string skipped() {
        std::string_view end = ">";
        if (rest_.starts_with("<!--")) {
            end = "-->";
        } else if (rest_.starts_with("<![CDATA[")) {
            end = "]]>";
        } else if (rest_.starts_with("<?")) {
            end = "?>";
        }
        const auto at = rest_.find(end, end == "-->" ? 4 : 2);
        if (at == std::string_view::npos) return "the text ends before " + std::string(end);
        if (end == ">" && rest_.substr(0, at).find('[') != std::string_view::npos) return "it declares entities";
        rest_.remove_prefix(at + end.size());
        return "";
    }

    std::string tag() {
        const auto end = rest_.find('>');
        if (end == std::string_view::npos) return "the text ends inside a tag";
        std::string_view inside = rest_.substr(1, end - 1);
        rest_.remove_prefix(end + 1);
        if (inside.find('<') != std::string_view::npos) return "a tag is not closed";
        seenElement_ = true;
        if (inside.starts_with('/')) return close(inside.substr(1));
        if (open_.size() == maximumDepth) return "more than 64 levels";
        if (!inside.ends_with('/')) open_.push_back(inside.substr(0, inside.find_first_of(whitespace)));
        return "";
    }

    std::string close(std::string_view name) {
        name = name.substr(0, name.find_first_of(whitespace));
        if (open_.empty() || open_.back() != name) return "</" + std::string(name) + "> closes nothing";
        open_.pop_back();
        return "";
    }

    std::string_view rest_;
    std::vector<std::string_view> open_;
    bool seenElement_ = false;
};

// As a byte or as an entity such as &#x00; the parser ends the program at a text that holds a NUL.
bool holdsZero(std::string_view text) {
    if (text.find('\0') != std::string_view::npos) return true;
    for (auto at = text.find("&#"); at != std::string_view::npos; at = text.find("&#", at + 2)) {
        const auto end = text.find_first_not_of("xX0", at + 2);
        if (end == std::string_view::npos || text[end] == ';') return true;
    }
    return false;
}

}  // namespace

std::string objectionToXml(std::span<const std::uint8_t> data) {
    std::string_view text(reinterpret_cast<const char*>(data.data()), data.size());
    if (holdsZero(text)) return "a text holds a NUL";
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    const auto start = text.find_first_not_of(whitespace);
    if (start == std::string_view::npos) return "it is empty";
    if (text[start] != '<') return "neither XML nor binary";
    return TagWalk(text).objection();
}

}  // namespace orlamo::plist
