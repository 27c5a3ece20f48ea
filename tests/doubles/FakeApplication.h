#pragma once

#include <vector>

#include "platform/Application.h"

namespace orlamo {

class FakeApplication : public Application {
public:
    void activate(IgnoringOtherApps ignoring) override { activations.push_back(ignoring); }

    std::vector<IgnoringOtherApps> activations;

private:
    Installation installation_{*this};
};

}  // namespace orlamo
