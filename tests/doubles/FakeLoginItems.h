#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/LoginItems.h"

namespace orlamo {

class FakeLoginItems : public LoginItems {
public:
    bool SMLoginItemSetEnabled(std::string_view identifier, bool enabled) override {
        requests.emplace_back(identifier, enabled);
        return succeeds;
    }

    std::vector<std::pair<std::string, bool>> requests;
    bool succeeds = true;

private:
    Installation installation_{*this};
};

}  // namespace orlamo
