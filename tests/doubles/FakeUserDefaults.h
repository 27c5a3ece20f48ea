#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "platform/UserDefaults.h"

namespace orlamo {

class FakeUserDefaults : public UserDefaults {
public:
    Value objectForKey(std::string_view key) override {
        const auto found = values.find(key);
        return found == values.end() ? Value() : found->second;
    }
    void setObject(std::string_view key, Value value) override {
        values.insert_or_assign(std::string(key), std::move(value));
        ++writes;
        didChangeValueForKey(key);
    }
    void removeObject(std::string_view key) override {
        const auto found = values.find(key);
        if (found != values.end()) values.erase(found);
        didChangeValueForKey(key);
    }
    bool synchronize() override {
        ++synchronizations;
        return true;
    }

    std::map<std::string, Value, std::less<>> values;
    int writes = 0;
    int synchronizations = 0;

private:
    Installation installation_{*this};
};

}  // namespace orlamo
