#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/NotificationCenter.h"
#include "platform/Service.h"

namespace orlamo {

/// The program's settings: typed values by key, in the file that the user's configuration folder holds for it.
/// Reads see what is stored now, also what another program wrote there meanwhile.
class UserDefaults : public Service<UserDefaults> {
public:
    using Data = std::vector<std::uint8_t>;
    using Value = std::variant<std::monostate, bool, std::int64_t, double, std::string, Data>;

    virtual ~UserDefaults() = default;
    static UserDefaults& standardUserDefaults() { return shared(); }

    /// The stored value; std::monostate when the key is absent.
    virtual Value objectForKey(std::string_view key) = 0;
    /// Stores at once. When the file cannot be written this process keeps the value, the log says so, and the next
    /// write or synchronize tries again.
    virtual void setObject(std::string_view key, Value value) = 0;
    virtual void removeObject(std::string_view key) = 0;
    /// True when everything that was set is on the disk.
    virtual bool synchronize() = 0;

    using Observation = NotificationCenter::Observation;
    /// Called at every write of the key in this process, also of the value it had, and once when another program
    /// changed it in the file. No initial call.
    [[nodiscard]] std::unique_ptr<Observation> addObserver(std::string keyPath, std::function<void()> handler);

    // Typed reads. A value that cannot be converted reads like an absent one.
    /// Numbers other than 0 are true, and texts that start with a digit 1-9, Y, y, T or t, after blanks, a sign and
    /// zeros; absent is false.
    bool boolForKey(std::string_view key);
    /// Numbers toward zero, booleans as 0 or 1, the number a text starts with; absent is 0.
    std::int64_t integerForKey(std::string_view key);
    /// Texts, and numbers in decimal.
    std::optional<std::string> stringForKey(std::string_view key);
    std::optional<Data> dataForKey(std::string_view key);

protected:
    /// For the adapter: the key was written or changed.
    void didChangeValueForKey(std::string_view key);
    /// For the adapter: somebody is about to observe the key.
    virtual void willObserveKey(const std::string& /*key*/) {}

private:
    NotificationCenter changes_;
};

}  // namespace orlamo
