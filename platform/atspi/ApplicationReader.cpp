#include "platform/atspi/ApplicationReader.h"

#include <systemd/sd-bus.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <map>
#include <utility>

#include "platform/Log.h"
#include "platform/atspi/BusNodeSource.h"
#include "platform/atspi/Cache.h"
#include "platform/atspi/MenuBarFinder.h"
#include "platform/atspi/MenuReader.h"
#include "platform/atspi/Utf8.h"

namespace orlamo::atspi {
namespace {

const ObjectRef registryRoot{"org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"};

constexpr std::size_t longestApplicationName = 200;
constexpr std::size_t mostRoots = 50;  // of one process
// A healthy program gives a first answer at its own address, and its whole cache, sooner. One that stalls there may
// still answer over the bus, in the time that is left.
constexpr std::chrono::milliseconds longestGreetingTime{150};
constexpr std::chrono::milliseconds longestCacheTime{350};
// With less time for it a program is not to blame.
constexpr std::chrono::milliseconds fairTime{500};

struct Application {
    ObjectRef root;
    std::string name;
    std::vector<ObjectRef> windows;  // the active one first
    /// Where it can be asked without the bus between; none: its toolkit has neither that nor a cache.
    std::optional<std::string> ownAddress;
};

bool isError(sd_bus_message* message) {
    return message == nullptr || sd_bus_message_is_method_error(message, nullptr) > 0;
}

/// Calls of one purpose over the bus. They end with it: declare it after what its replies fill.
class Inquiry {
public:
    Inquiry(Connection& bus, Deadline deadline, std::size_t& calls) : bus_(bus), deadline_(deadline), calls_(calls) {}
    ~Inquiry() { bus_.cancel(this); }
    Inquiry(const Inquiry&) = delete;
    Inquiry& operator=(const Inquiry&) = delete;

    void call(Call call, Connection::Reply reply) {
        ++outstanding_;
        ++calls_;
        bus_.call(
            std::move(call),
            [this, reply = std::move(reply)](sd_bus_message* message) {
                --outstanding_;
                reply(message);
            },
            this);
    }
    void ask(const ObjectRef& object, Question question, NodeSource::Receive receive) {
        call(BusNodeSource::callFor(object, question), [=, bus = object.bus](sd_bus_message* message) {
            receive(BusNodeSource::answerFrom(message, question, bus));
        });
    }
    void waitForAll() {
        const std::array<Connection*, 1> connections{&bus_};
        while (outstanding_ > 0 && waitForAnswers(connections, deadline_)) {
        }
    }

private:
    Connection& bus_;
    Deadline deadline_;
    std::size_t& calls_;
    std::size_t outstanding_ = 0;
};

/// The root objects of the programs whose connection to the bus belongs to the process.
std::vector<ObjectRef> rootsOfProcess(Connection& bus, int processIdentifier, Deadline deadline, std::size_t& calls) {
    std::vector<ObjectRef> roots;
    std::map<std::string, std::uint32_t> processes;
    Inquiry inquiry(bus, deadline, calls);
    inquiry.ask(registryRoot, Question::children, [&roots](const Answer& answer) {
        if (const auto* const all = std::get_if<std::vector<ObjectRef>>(&answer)) roots = *all;
    });
    inquiry.waitForAll();
    for (const ObjectRef& root : roots) {
        if (!processes.emplace(root.bus, 0).second) continue;
        inquiry.call({"org.freedesktop.DBus",
                      "/org/freedesktop/DBus",
                      "org.freedesktop.DBus",
                      "GetConnectionUnixProcessID",
                      {root.bus}},
                     [&process = processes[root.bus]](sd_bus_message* message) {
                         if (!isError(message)) sd_bus_message_read(message, "u", &process);
                     });
    }
    inquiry.waitForAll();
    const auto wanted = static_cast<std::uint32_t>(processIdentifier);
    std::erase_if(roots, [&](const ObjectRef& root) { return processes[root.bus] != wanted; });
    if (roots.size() > mostRoots) roots.resize(mostRoots);
    return roots;
}

Application askApplication(Connection& bus, const ObjectRef& root, Deadline deadline, std::size_t& calls) {
    Application application;
    std::vector<std::uint64_t> windowStates;
    Inquiry inquiry(bus, deadline, calls);
    application.root = root;
    inquiry.ask(root, Question::name, [&application](const Answer& answer) {
        if (const auto* const name = std::get_if<std::string>(&answer))
            application.name = cleanName(*name, longestApplicationName);
    });
    inquiry.ask(root, Question::children, [&application, &root](const Answer& answer) {
        if (const auto* const windows = std::get_if<std::vector<ObjectRef>>(&answer)) application.windows = *windows;
        std::erase_if(application.windows, [&root](const ObjectRef& window) { return window.bus != root.bus; });
    });
    inquiry.call({root.bus, root.path, "org.a11y.atspi.Application", "GetApplicationBusAddress"},
                 [&application](sd_bus_message* message) {
                     const char* address = nullptr;
                     if (!isError(message) && sd_bus_message_read(message, "s", &address) > 0) {
                         application.ownAddress = address;
                     }
                 });
    inquiry.waitForAll();

    constexpr std::size_t mostWindows = 200;
    if (application.windows.size() > mostWindows) application.windows.resize(mostWindows);
    windowStates.resize(application.windows.size());
    for (std::size_t i = 0; i < windowStates.size(); ++i) {
        inquiry.ask(application.windows[i], Question::states, [&windowStates, i](const Answer& answer) {
            if (const auto* const value = std::get_if<std::uint64_t>(&answer)) windowStates[i] = *value;
        });
    }
    inquiry.waitForAll();
    for (std::size_t i = 0; i < windowStates.size(); ++i) {
        if ((windowStates[i] & states::active) == 0) continue;
        const auto window = application.windows.begin() + static_cast<std::ptrdiff_t>(i);
        std::rotate(application.windows.begin(), window, window + 1);
        break;
    }
    return application;
}

bool answersInTime(Connection& own, const ObjectRef& root, Deadline deadline, std::size_t& calls) {
    bool isAnswered = false;
    Inquiry inquiry(own, std::min(deadline, deadlineIn(longestGreetingTime)), calls);
    inquiry.ask(root, Question::role,
                [&isAnswered](const Answer& answer) { isAnswered = std::holds_alternative<std::uint64_t>(answer); });
    inquiry.waitForAll();
    return isAnswered;
}

/// How an application is asked: over a connection of its own, null: the bus; and what its cache told already.
struct Way {
    /// Kept for one reading only: a program sends its events along each such connection, read or not.
    std::unique_ptr<Connection> own;
    KnownNodes known;
};

Way wayTo(Connection& bus, const Application& application, int processIdentifier, Deadline deadline, SlowPrograms& slow,
          std::size_t& calls) {
    Way way;
    if (!application.ownAddress) return way;
    const ObjectRef& root = application.root;
    if (!application.ownAddress->empty() && !slow.addresses.contains(root.bus)) {
        way.own = Connection::toProgram(*application.ownAddress, processIdentifier);
    }
    if (way.own && !answersInTime(*way.own, root, deadline, calls)) way.own.reset();
    if (slow.caches.contains(root.bus)) return way;
    ++calls;
    Connection& asked = way.own ? *way.own : bus;
    const bool isFair = deadlineIn(longestCacheTime) <= deadline;
    if (auto cache = readCache(asked, root.bus, std::min(deadline, deadlineIn(longestCacheTime)))) {
        way.known = std::move(*cache);
    } else {
        if (isFair) slow.caches.insert(root.bus);
        way.own.reset();
    }
    return way;
}

std::string nameForPeople(const Application& application, int processIdentifier, const Options& options) {
    std::string name = options.applicationName
                           ? cleanName(options.applicationName(processIdentifier), longestApplicationName)
                           : std::string{};
    if (!name.empty()) return name;
    name = application.name;
    if (!name.empty()) name[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(name[0])));
    return name;
}

void reportUnfinished(const RawTree& raw, const std::string& name, int processIdentifier, Deadline start) {
    using std::chrono::milliseconds;
    const auto time = std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now() - start);
    logLine("menus of " + name + " (" + std::to_string(processIdentifier) + "): stopped after " +
            std::to_string(time.count()) + " ms with " + std::to_string(raw.readCount()) + " of " +
            std::to_string(raw.nodes.size()) + " elements read");
}

}  // namespace

AXError readMenus(Connection& bus, int processIdentifier, const Options& options, Deadline deadline, SlowPrograms& slow,
                  std::shared_ptr<MenuTree>& tree, ReadStatistics& statistics) {
    const std::vector<ObjectRef> roots = rootsOfProcess(bus, processIdentifier, deadline, statistics.calls);
    // First, so that services which hang take of the time for the program and add none to it.
    SessionMenu session;
    if (options.sessionMenu && !roots.empty()) {
        const auto timeLeft = deadline - std::chrono::steady_clock::now();
        session = options.sessionMenu(std::chrono::floor<std::chrono::milliseconds>(timeLeft));
    }
    const bool isFair = deadlineIn(fairTime) <= deadline;
    const auto isLate = [deadline] { return std::chrono::steady_clock::now() >= deadline; };
    for (const ObjectRef& root : roots) {
        if (isLate()) break;
        const Application application = askApplication(bus, root, deadline, statistics.calls);
        const auto [own, known] = wayTo(bus, application, processIdentifier, deadline, slow, statistics.calls);
        statistics.usedCache = !known.empty();
        BusNodeSource source(own && own->isOpen() ? *own : bus, deadline);
        const auto menuBar = findMenuBar(source, known, application.windows);
        if (!menuBar) {
            statistics.calls += source.calls();
            if (own && isFair && isLate()) slow.addresses.insert(root.bus);
            continue;
        }
        const RawTree raw = MenuReader(source, known, options.baseKeyOfShifted).read(*menuBar);
        const std::string name = nameForPeople(application, processIdentifier, options);
        if (known.size() > 2 * raw.nodes.size()) slow.caches.insert(root.bus);
        if (own && isFair && (isLate() || !own->isOpen())) slow.addresses.insert(root.bus);
        if (!raw.isComplete) reportUnfinished(raw, name, processIdentifier, deadline - options.readTime);
        statistics.calls += source.calls();
        statistics.elements = raw.nodes.size();
        statistics.elementsRead = raw.readCount();
        tree = std::make_shared<MenuTree>(shapeMenus(raw, {root, name}, session));
        return AXError::success;
    }
    if (std::chrono::steady_clock::now() >= deadline) {
        logLine("menus of process " + std::to_string(processIdentifier) + ": no menu bar found within " +
                std::to_string(options.readTime.count()) + " ms");
        return AXError::cannotComplete;
    }
    return roots.empty() ? AXError::cannotComplete : AXError::noValue;
}

}  // namespace orlamo::atspi
