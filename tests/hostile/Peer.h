#pragma once

#include <systemd/sd-bus.h>
#include <systemd/sd-event.h>
#include <unistd.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace orlamo::hostile {

struct Behaviour;

constexpr const char* root = "/org/a11y/atspi/accessible/root";

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
    std::string what;  // the member, or the property that is asked for; after "desk " when a service is asked
    /// Whether it came to the application's own address.
    bool isDirect() const { return sd_bus_message_get_sender(call) == nullptr; }
};

/// An answer as it goes over the wire.
struct Prepared {
    std::string types, body;
};
Prepared children(const std::vector<Ref>& refs);

/// Plays an application with a menu bar on a bus, and the accessibility services there; a behaviour changes its
/// answers.
class Peer {
public:
    Peer(const Behaviour& behaviour, Presses& presses, const std::string& busAddress);
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;

    /// Plays the launcher of the accessibility bus and its registry, too.
    void playServices(const std::string& busAddress);
    /// Tells the real registry.
    void embed();
    /// Serves for ever. A byte read from `commands` asks for the change between reading and pressing; one goes back.
    [[noreturn]] void serve(int commands);

    std::map<std::string, Object> objects;
    std::vector<Ref> registered;               // what the registry lists
    std::map<std::string, Prepared> prepared;  // by "path member"
    /// Where GetApplicationBusAddress sends others; empty: the application has no address of its own.
    std::string ownAddress;
    std::minstd_rand random{7};
    std::int64_t counter = 0;

    void answer(const Ask& ask);
    static void reply(const Ask& ask, const Prepared& answer);
    /// Sends bytes as they are, with a pause after each where there is one, in microseconds.
    static void send(const Ask& ask, std::string_view bytes, useconds_t pause = 0);
    void pressed(std::string_view name);
    void later(std::uint64_t milliseconds, std::function<void()> task);
    /// Opens a socket of its own to be asked at; its address.
    std::string listen();
    /// Another application with the same menus, in a process of its own; a press there is recorded as a stranger's.
    /// Returns its name on the bus and its own address.
    std::vector<std::string> startStranger();
    const std::string& uniqueName() const { return uniqueName_; }
    /// Gives two objects each other's name, key binding and states.
    void swapContents(const std::string& one, const std::string& other);

private:
    static int receive(sd_bus_message* message, void* data, sd_bus_error*);
    void answerService(const Ask& ask);
    void buildHonestTree();
    sd_bus* connect(const std::string& address);
    void start(sd_bus* bus);

    const Behaviour& behaviour_;
    Presses& presses_;
    sd_event* event_ = nullptr;
    sd_bus* application_ = nullptr;
    sd_bus* desk_ = nullptr;  // the services, where they are played
    std::string uniqueName_;
};

/// `any`: how far it comes depends on the machine. What is pressed still has to be the right item.
enum class Read { whole, part, none, any };
enum class Press { done, refused, any };

struct Behaviour {
    const char* name;
    Read read = Read::whole;
    Press press = Press::done;
    std::function<bool(Peer&, const Ask&)> intercept = {};  // true: it has dealt with the question
    std::function<void(Peer&)> arrange = {};                // before anyone asks
    std::function<void(Peer&)> change = {};                 // between reading and pressing
};

const std::vector<Behaviour>& behaviours();
/// Trees that keep changing. Where paths are places, another item may stand at each with the next question.
enum class Restless { placesBeforeQuestions, itemsByClock, placesByClock };
Behaviour restless(Restless way);

}  // namespace orlamo::hostile
