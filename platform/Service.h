#pragma once

#include <cstdio>
#include <cstdlib>

namespace orlamo {

/// A capability that is reached as `Interface::shared()`.
/// The composition root installs one adapter for the life of the process; a test installs a fake and takes it out
/// again. An Installation restores what was installed before it, so they nest. Main thread only.
template <class Interface>
class Service {
public:
    static Interface& shared() {
        if (installed_ == nullptr) {
            std::fputs("orlamo: a capability was used before an adapter for it was installed\n", stderr);
            std::abort();
        }
        return *installed_;
    }

    static bool isInstalled() { return installed_ != nullptr; }

    /// Makes `adapter` the shared one for as long as the Installation lives; does not own it.
    class Installation {
    public:
        explicit Installation(Interface& adapter) : before_(installed_) { installed_ = &adapter; }
        ~Installation() { installed_ = before_; }
        Installation(const Installation&) = delete;
        Installation& operator=(const Installation&) = delete;

    private:
        Interface* before_;
    };

protected:
    Service() = default;
    ~Service() = default;

private:
    inline static Interface* installed_ = nullptr;
};

}  // namespace orlamo
