#pragma once

#include <systemd/sd-bus.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "Relay.h"

namespace orlamo::hostile {

struct Behaviour;

/// What is pressed, written by the peer into memory that it shares with the test.
struct Presses {
    std::atomic<int> count{0};
    char last[128] = {};  // the name under which the pressed object stood at that moment
};

struct Ref {
    std::string bus;
    std::string path;
};

/// Roles and states by the numbers of the accessibility bus.
struct Object {
    std::string name;
    std::uint32_t role = 35;
    std::vector<Ref> children = {};
    std::string keyBinding = {};
    std::vector<std::uint32_t> states = {1U << 8 | 1U << 24 | 1U << 25 | 1U << 30, 0};
};

/// A question to the application, or to the services around it.
struct Ask {
    sd_bus_message* call = nullptr;
    std::string path;
    std::string what;  // the member, or the property that is asked for
    bool isService = false;
};

/// Plays an application with a menu bar on a bus, and the accessibility services there; a behaviour changes its
/// answers.
class Peer {
public:
    enum class Services { played, real, none };

    Peer(const Behaviour& behaviour, Presses& presses, Services services);
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;

    /// Serves for ever. A byte read from `commands` asks for the change between reading and pressing; one goes back.
    [[noreturn]] void serve(int commands);

    std::map<std::string, Object> objects;
    /// Where GetApplicationBusAddress sends others; empty: the application has no address of its own.
    std::string ownAddress;
    std::unique_ptr<Relay> relay;  // between the application and the bus, where the behaviour has one
    Relay ownRelay;                // what its own address does to the bytes
    std::minstd_rand random{7};
    std::int64_t counter = 0;
    std::string preparedTypes, prepared;  // an answer too long to be put together while somebody waits

    void answer(const Ask& ask);
    void reply(sd_bus_message* call, const char* types, ...);
    void replyChildren(sd_bus_message* call, const std::vector<Ref>& children);
    void refuse(sd_bus_message* call);
    /// Answers with `prepared`, as it is.
    void replyPrepared(sd_bus_message* call);
    void pressed(std::string_view name);
    void later(int milliseconds, std::function<void()> task);
    /// A socket of its own to be asked at; what its connections say runs through `ownRelay`.
    std::string listen(bool accepts = true);
    const std::string& uniqueName() const { return uniqueName_; }
    /// Another application, in a process of its own: its items are named with that prefix, its presses are recorded as
    /// those of a stranger. Returns its name on the bus and its own address.
    std::pair<std::string, std::string> startStranger(const std::string& prefix);
    sd_bus* application() const { return application_; }
    /// Gives two objects each other's name, key binding and states.
    void swapContents(const std::string& one, const std::string& other);
    Object& item(int menu, int place) { return objects.at(itemPath(menu, place)); }
    static std::string itemPath(int menu, int place);

private:
    static int receive(sd_bus_message* message, void* data, sd_bus_error*);
    void answerService(const Ask& ask);
    void buildHonestTree();
    void connect(const std::string& address, bool isRelayed);
    void accept();

    const Behaviour& behaviour_;
    Presses& presses_;
    sd_bus* desk_ = nullptr;  // the launcher of the accessibility bus, and its registry
    sd_bus* application_ = nullptr;
    std::string uniqueName_;
    std::vector<sd_bus*> connections_;
    std::multimap<std::chrono::steady_clock::time_point, std::function<void()>> tasks_;
    int listening_ = -1;
};

/// `any`: how far it comes depends on the machine. What is pressed still has to be the right item.
enum class Read { whole, part, none, any };
enum class Press { done, refused, any };

struct Behaviour {
    const char* name;
    Read read = Read::whole;
    Press press = Press::done;
    std::function<void(Peer&)> arrange = {};                // before anyone asks
    std::function<bool(Peer&, const Ask&)> intercept = {};  // true: it has dealt with the question
    std::function<void(Peer&)> change = {};                 // between reading and pressing
    bool isRelayed = false;                                 // to the bus through Peer::relay
};

const std::vector<Behaviour>& behaviours();
/// Changes its tree all the time: before questions, but not between the last one before a press and the press. Each
/// path is a place, not an object: another item may stand there with the next question.
const Behaviour& places();
/// Changes its tree by the clock, at any moment; each path stays with its item for good.
const Behaviour& restless();
/// Both at once: places that change by the clock.
const Behaviour& restlessPlaces();

}  // namespace orlamo::hostile
