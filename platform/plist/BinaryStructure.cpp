#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/plist/Structure.h"

namespace orlamo::plist {

namespace {

constexpr std::size_t headerBytes = 8;
constexpr std::size_t trailerBytes = 32;
// What the parsed values may cost together: objects may be shared, and the parser copies a shared one per use.
constexpr std::uint64_t maximumCost = 16 * maximumBytes;
constexpr std::uint64_t costPerObject = 16;

struct Object {
    std::uint64_t payloadBytes = 0;
    std::uint64_t references = 0;     // of an array its elements, of a dictionary its keys and then its values
    std::uint64_t contentOffset = 0;  // where in the data the references or the text start
};

// The objects of a binary property list and what they refer to, with every offset checked.
class ObjectTable {
public:
    explicit ObjectTable(std::span<const std::uint8_t> data) : data_(data) {
        const auto trailer = data.size() - trailerBytes;
        offsetBytes_ = data[trailer + 6];
        referenceBytes_ = data[trailer + 7];
        count_ = *number(trailer + 8, 8);
        top_ = *number(trailer + 16, 8);
        tableOffset_ = *number(trailer + 24, 8);
    }

    std::string objection() const {
        const auto isWidth = [](std::size_t bytes) { return bytes >= 1 && bytes <= 8; };
        if (!isWidth(offsetBytes_) || !isWidth(referenceBytes_)) return "its trailer is damaged";
        if (count_ == 0 || top_ >= count_ || tableOffset_ < headerBytes) return "its trailer is damaged";
        const auto end = data_.size() - trailerBytes;
        if (tableOffset_ > end || count_ > (end - tableOffset_) / offsetBytes_) return "its object table is cut off";
        return "";
    }

    std::uint64_t count() const { return count_; }
    std::uint64_t top() const { return top_; }

    std::optional<Object> object(std::uint64_t index) const {
        const auto offset = number(tableOffset_ + index * offsetBytes_, offsetBytes_);
        if (!offset || *offset < headerBytes || *offset >= tableOffset_) return std::nullopt;
        const unsigned kind = data_[*offset] >> 4;
        const unsigned detail = data_[*offset] & 0xF;
        switch (kind) {
            case 0x0:
                if (detail != 0 && detail != 8 && detail != 9) return std::nullopt;
                return Object{};
            case 0x1:
            case 0x2:
                return detail > 4 ? std::nullopt : bounded(*offset + 1, std::uint64_t{1} << detail);
            case 0x3:
                return detail != 3 ? std::nullopt : bounded(*offset + 1, 8);
            case 0x8:
                return bounded(*offset + 1, detail + 1);
            case 0x4:
                return sized(*offset, 1, 0);
            case 0x5:
                return withoutZero(sized(*offset, 1, 0), 1);
            case 0x6:
                return withoutZero(sized(*offset, 2, 0), 2);
            case 0xA:
                return sized(*offset, 0, 1);
            case 0xD:
                return sized(*offset, 0, 2);
            default:
                return std::nullopt;
        }
    }

    /// The index of the n-th object that `object` refers to; at least `count()` when it is out of range.
    std::uint64_t reference(const Object& object, std::uint64_t n) const {
        return number(object.contentOffset + n * referenceBytes_, referenceBytes_).value_or(count_);
    }

private:
    std::optional<std::uint64_t> number(std::uint64_t offset, std::size_t bytes) const {
        if (offset > data_.size() || bytes > data_.size() - offset) return std::nullopt;
        std::uint64_t value = 0;
        for (const auto byte : data_.subspan(offset, bytes)) value = value << 8 | byte;
        return value;
    }

    std::optional<Object> bounded(std::uint64_t offset, std::uint64_t bytes) const {
        if (offset > tableOffset_ || bytes > tableOffset_ - offset) return std::nullopt;
        return Object{.payloadBytes = bytes};
    }

    // An object whose marker holds a count, or is followed by an integer object that does.
    std::optional<Object> sized(std::uint64_t offset, unsigned unitBytes, unsigned referencesPerUnit) const {
        std::uint64_t count = data_[offset++] & 0xF;
        if (count == 0xF) {
            const auto marker = number(offset, 1);
            if (!marker || *marker >> 4 != 0x1 || (*marker & 0xF) > 3) return std::nullopt;
            const std::size_t bytes = std::size_t{1} << (*marker & 0xF);
            const auto written = number(offset + 1, bytes);
            if (!written || *written > data_.size()) return std::nullopt;
            count = *written;
            offset += 1 + bytes;
        }
        auto object = bounded(offset, count * (unitBytes + referencesPerUnit * referenceBytes_));
        if (object) object->references = count * referencesPerUnit;
        if (object) object->contentOffset = offset;
        return object;
    }

    // The parser ends the program at a text that holds a NUL.
    std::optional<Object> withoutZero(const std::optional<Object>& text, std::size_t unitBytes) const {
        if (!text) return std::nullopt;
        for (std::uint64_t at = 0; at < text->payloadBytes; at += unitBytes) {
            if (number(text->contentOffset + at, unitBytes) == std::uint64_t{0}) return std::nullopt;
        }
        return text;
    }

    std::span<const std::uint8_t> data_;
    std::size_t offsetBytes_ = 0;
    std::size_t referenceBytes_ = 0;
    std::uint64_t count_ = 0;
    std::uint64_t top_ = 0;
    std::uint64_t tableOffset_ = 0;
};

// Visits what the top object reaches, each object once, children before parents.
class Walk {
public:
    explicit Walk(const ObjectTable& table) : table_(table), cost_(table.count(), unvisited) {}

    std::string objection() {
        if (!enter(table_.top())) return why_;
        while (!path_.empty()) {
            auto& step = path_.back();
            if (step.next == step.object.references) {
                leave();
                if (!path_.empty() && !add(path_.back(), left_)) return "it unfolds to more than 16 MiB";
                continue;
            }
            const auto child = table_.reference(step.object, step.next++);
            if (child >= table_.count()) return "a reference leads nowhere";
            if (cost_[child] == onPath) return "it contains itself";
            if (cost_[child] != unvisited) {
                if (!add(step, child)) return "it unfolds to more than 16 MiB";
                if (path_.size() + levels_[child] > maximumDepth) return "more than 64 levels";
            } else if (!enter(child)) {
                return why_;
            }
        }
        return "";
    }

private:
    static constexpr std::uint64_t unvisited = ~std::uint64_t{0};
    static constexpr std::uint64_t onPath = unvisited - 1;

    struct Step {
        std::uint64_t index;
        Object object;
        std::uint64_t next = 0;
        std::uint64_t cost = 0;
        std::size_t levels = 1;  // of this object with all below it
    };

    bool enter(std::uint64_t index) {
        const auto object = table_.object(index);
        if (!object) why_ = "an object is damaged or of an unknown kind";
        if (path_.size() == maximumDepth) why_ = "more than 64 levels";
        if (!why_.empty()) return false;
        if (levels_.empty()) levels_.resize(table_.count(), 0);
        cost_[index] = onPath;
        path_.push_back({.index = index, .object = *object, .cost = costPerObject + object->payloadBytes});
        return true;
    }

    void leave() {
        left_ = path_.back().index;
        cost_[left_] = path_.back().cost;
        levels_[left_] = path_.back().levels;
        path_.pop_back();
    }

    bool add(Step& parent, std::uint64_t child) {
        parent.cost += cost_[child];
        parent.levels = std::max(parent.levels, levels_[child] + 1);
        return parent.cost <= maximumCost;
    }

    const ObjectTable& table_;
    std::vector<std::uint64_t> cost_;
    std::vector<std::size_t> levels_;
    std::vector<Step> path_;
    std::uint64_t left_ = 0;
    std::string why_;
};

}  // namespace

bool isBinary(std::span<const std::uint8_t> data) {
    constexpr std::string_view magic = "bplist";
    return data.size() >= magic.size() && std::equal(magic.begin(), magic.end(), data.begin());
}

std::string objectionToBinary(std::span<const std::uint8_t> data) {
    if (data.size() < headerBytes + trailerBytes) return "it is cut off";
    const ObjectTable table(data);
    if (auto why = table.objection(); !why.empty()) return why;
    return Walk(table).objection();
}

}  // namespace orlamo::plist
