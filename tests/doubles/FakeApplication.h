#pragma once

#include <vector>

#include "platform/Application.h"

namespace orlamo {

class FakeApplication : public Application {
public:
    void activate(IgnoringOtherApps ignoring) override { activations.push_back(ignoring); }
    void setActivationPolicy(ActivationPolicy policy) override { policies.push_back(policy); }
    void terminate() override { ++terminations; }

    std::vector<IgnoringOtherApps> activations;
    std::vector<ActivationPolicy> policies;
    int terminations = 0;

private:
    Installation installation_{*this};
};

}  // namespace orlamo
