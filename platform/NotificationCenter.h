#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace orlamo {

/// Named notifications within the process, delivered at once to every observer in order of registration.
class NotificationCenter {
public:
    using Handler = std::function<void()>;

    /// Ends the observation when it is destroyed. Must not outlive the centre.
    class Observation {
    public:
        Observation(NotificationCenter& center, std::uint64_t id) : center_(center), id_(id) {}
        ~Observation() { center_.remove(id_); }
        Observation(const Observation&) = delete;
        Observation& operator=(const Observation&) = delete;

    private:
        NotificationCenter& center_;
        std::uint64_t id_;
    };

    static NotificationCenter& defaultCenter();

    [[nodiscard]] std::unique_ptr<Observation> addObserver(std::string name, Handler handler);
    void post(std::string_view name);

private:
    struct Observer {
        std::uint64_t id;
        std::string name;
        Handler handler;
    };
    void remove(std::uint64_t id);

    std::vector<Observer> observers_;
    std::uint64_t lastId_ = 0;
};

}  // namespace orlamo
