#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/PropertyList.h"

namespace orlamo {

/// Answers `result` whatever the bytes say, and keeps the bytes.
class FakePropertyListParser : public PropertyListParser {
public:
    Result propertyListWithData(std::span<const std::uint8_t> data) override {
        parsed.emplace_back(data.begin(), data.end());
        return result;
    }

    Result result;
    std::vector<std::string> parsed;

private:
    Installation installation_{*this};
};

}  // namespace orlamo
