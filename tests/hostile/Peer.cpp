#include "Peer.h"

#include <poll.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>

#include "Wire.h"

namespace orlamo::hostile {
namespace {

constexpr const char* root = "/org/a11y/atspi/accessible/root";
constexpr const char* registry = "org.a11y.atspi.Registry";

/// For a machine that cannot play the game at all; the test sees a peer that ended.
void need(int result, const char* what) {
    if (result >= 0) return;
    std::fprintf(stderr, "hostile peer: %s: %s\n", what, std::strerror(-result));
    _exit(3);
}

int connectTo(std::string address) {
    sockaddr_un name{};
    name.sun_family = AF_UNIX;
    const bool isAbstract = address.starts_with("unix:abstract=");
    address = address.substr(address.find('=') + 1);
    address = address.substr(0, address.find(','));
    address.copy(name.sun_path + (isAbstract ? 1 : 0), sizeof name.sun_path - 2);
    const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + address.size() + 1);
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    need(::connect(descriptor, reinterpret_cast<const sockaddr*>(&name), length) == 0 ? 0 : -errno, "connect");
    return descriptor;
}

/// The accessibility bus of the session, for a peer that plays no services itself.
std::string accessibilityAddress() {
    sd_bus *session = nullptr, *none = nullptr;
    sd_bus_message* answer = nullptr;
    const char* address = nullptr;
    need(sd_bus_open_user(&session), "session bus");
    need(sd_bus_call_method(session, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", nullptr, &answer,
                            ""),
         "GetAddress");
    need(sd_bus_message_read(answer, "s", &address), "address");
    std::string text = address;
    sd_bus_message_unref(answer);
    sd_bus_flush_close_unref(std::exchange(session, none));
    return text;
}

}  // namespace

std::string Peer::itemPath(int menu, int place) {
    return "/menu" + std::to_string(menu) + "/item" + std::to_string(place);
}

void Peer::buildHonestTree() {
    constexpr const char* menus[] = {"File", "Edit", "View"};
    constexpr const char* names[][4] = {{"New", "Open", "Save", "Quit"},
                                        {"Copy", "Cut", "Paste", "Delete"},
                                        {"Zoom In", "Zoom Out", "Reload", "Outline"}};
    constexpr const char* keys = "nosqcxvdiorl";
    objects[root] = {"hostile", 75, {{"", "/window"}}};
    objects["/window"] = {"Window", 23, {{"", "/bar"}}};
    objects["/window"].states[0] |= 1U << 1;
    objects["/bar"] = {"", 34};
    for (int menu = 0; menu < 3; ++menu) {
        const std::string path = "/menu" + std::to_string(menu);
        objects["/bar"].children.push_back({"", path});
        objects[path] = {menus[menu], 33};
        for (int place = 0; place < 4; ++place) {
            objects[path].children.push_back({"", itemPath(menu, place)});
            const std::string key(1, keys[menu * 4 + place]);
            objects[itemPath(menu, place)] = {names[menu][place], 35, {}, ";;<Primary>" + key};
        }
    }
}

Peer::Peer(const Behaviour& behaviour, Presses& presses, Services services) : behaviour_(behaviour), presses_(presses) {
    buildHonestTree();
    const bool isPlayed = services == Services::played;
    const std::string address =
        services == Services::real ? accessibilityAddress() : std::getenv("DBUS_SESSION_BUS_ADDRESS");
    connect(address, behaviour_.isRelayed);
    application_ = connections_.front();
    const char* name = nullptr;
    need(sd_bus_get_unique_name(application_, &name), "unique name");
    uniqueName_ = name;
    if (behaviour_.arrange) behaviour_.arrange(*this);
    if (isPlayed) {
        connect(address, false);
        desk_ = connections_.back();
        need(sd_bus_request_name(desk_, "org.a11y.Bus", 0), "name of the launcher");
        need(sd_bus_request_name(desk_, registry, 0), "name of the registry");
    } else if (services == Services::real) {
        need(sd_bus_call_method(application_, registry, root, "org.a11y.atspi.Socket", "Embed", nullptr, nullptr,
                                "(so)", uniqueName().c_str(), root),
             "Embed");
    }
}

void Peer::connect(const std::string& address, bool isRelayed) {
    int descriptor = connectTo(address);
    if (isRelayed) {
        if (!relay) relay = std::make_unique<Relay>();
        descriptor = relay->carry(descriptor);
    }
    sd_bus*& bus = connections_.emplace_back();
    need(sd_bus_new(&bus), "bus");
    sd_bus_set_fd(bus, descriptor, descriptor);
    sd_bus_set_bus_client(bus, 1);
    sd_bus_add_filter(bus, nullptr, receive, this);
    need(sd_bus_start(bus), "start");
}

std::string Peer::listen(bool accepts) {
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    sockaddr_un name{};
    name.sun_family = AF_UNIX;
    auto length = static_cast<socklen_t>(sizeof(sa_family_t));  // the system finds a name
    need(bind(descriptor, reinterpret_cast<const sockaddr*>(&name), length), "bind");
    need(::listen(descriptor, 5), "listen");
    length = sizeof name;
    getsockname(descriptor, reinterpret_cast<sockaddr*>(&name), &length);
    if (accepts) listening_ = descriptor;
    return "unix:abstract=" + std::string(name.sun_path + 1, length - offsetof(sockaddr_un, sun_path) - 1);
}

void Peer::accept() {
    const int descriptor = ownRelay.carry(accept4(listening_, nullptr, nullptr, SOCK_CLOEXEC));
    sd_id128_t id{};
    sd_id128_randomize(&id);
    sd_bus*& bus = connections_.emplace_back();
    need(sd_bus_new(&bus), "bus");
    sd_bus_set_fd(bus, descriptor, descriptor);
    sd_bus_set_server(bus, 1, id);
    sd_bus_add_filter(bus, nullptr, receive, this);
    need(sd_bus_start(bus), "start");
}

std::pair<std::string, std::string> Peer::startStranger(const std::string& prefix) {
    std::array<int, 2> ends{};
    need(socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends.data()), "socket pair");
    if (fork() == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        Behaviour behaviour{"stranger"};
        behaviour.arrange = [&](Peer& peer) {
            peer.ownAddress = peer.listen();
            for (auto& [path, object] : peer.objects) object.name = prefix + object.name;
        };
        behaviour.intercept = [](Peer& peer, const Ask& ask) {
            if (ask.what == "DoAction") peer.pressed("a stranger's");
            return ask.what == "DoAction";
        };
        Peer peer(behaviour, presses_, Services::none);
        for (const std::string& text : {peer.uniqueName(), peer.ownAddress}) {
            need(static_cast<int>(write(ends[1], text.data(), text.size())), "write");
        }
        peer.serve(ends[1]);
    }
    const auto text = [&ends] {
        std::array<char, 200> bytes{};
        const ssize_t size = read(ends[0], bytes.data(), bytes.size());
        need(static_cast<int>(size), "stranger");
        return std::string(bytes.data(), static_cast<std::size_t>(size));
    };
    std::string name = text();
    return {std::move(name), text()};
}

void Peer::serve(int commands) {
    char byte = 'r';
    if (write(commands, &byte, 1) != 1) _exit(0);
    while (true) {
        bool isBusy = false;
        for (std::size_t i = 0; i < connections_.size(); ++i) isBusy |= sd_bus_process(connections_[i], nullptr) > 0;
        using Clock = std::chrono::steady_clock;
        while (!tasks_.empty() && tasks_.begin()->first <= Clock::now()) {
            auto task = tasks_.extract(tasks_.begin());
            task.mapped()();
        }
        std::vector<pollfd> polled{{commands, POLLIN, 0}, {listening_, POLLIN, 0}};
        for (sd_bus* const bus : connections_) {
            const int events = sd_bus_get_events(bus);
            polled.push_back({sd_bus_get_fd(bus), static_cast<short>(std::max(events, 0)), 0});
        }
        timespec wait{10, 0};
        if (isBusy) wait = {};
        if (!isBusy && !tasks_.empty()) {
            const auto left = std::max(tasks_.begin()->first - Clock::now(), Clock::duration::zero());
            wait = {left.count() / 1'000'000'000, left.count() % 1'000'000'000};
        }
        ppoll(polled.data(), polled.size(), &wait, nullptr);
        if (polled[1].revents != 0) accept();
        if (polled[0].revents == 0) continue;
        if (read(commands, &byte, 1) != 1) _exit(0);
        if (behaviour_.change) behaviour_.change(*this);
        if (write(commands, &byte, 1) != 1) _exit(0);
    }
}

int Peer::receive(sd_bus_message* message, void* data, sd_bus_error*) {
    if (sd_bus_message_is_method_call(message, nullptr, nullptr) <= 0) return 0;
    auto& self = *static_cast<Peer*>(data);
    Ask ask{message, sd_bus_message_get_path(message), sd_bus_message_get_member(message)};
    ask.isService = self.desk_ != nullptr && sd_bus_message_get_bus(message) == self.desk_;
    const char *interface = nullptr, *property = nullptr;
    if (ask.what == "Get" && sd_bus_message_read(message, "ss", &interface, &property) > 0) ask.what = property;
    if (self.behaviour_.intercept && self.behaviour_.intercept(self, ask)) return 1;
    ask.isService ? self.answerService(ask) : self.answer(ask);
    return 1;
}

void Peer::answerService(const Ask& ask) {
    if (ask.what == "IsEnabled") return reply(ask.call, "v", "b", 1);
    if (ask.what == "GetAddress") return reply(ask.call, "s", std::getenv("DBUS_SESSION_BUS_ADDRESS"));
    if (ask.what == "RegisterEvent") return reply(ask.call, "");
    if (ask.what == "GetChildren") return replyChildren(ask.call, {{uniqueName(), root}});
    refuse(ask.call);
}

void Peer::answer(const Ask& ask) {
    if (ask.what == "GetApplicationBusAddress" && !ownAddress.empty()) return reply(ask.call, "s", ownAddress.c_str());
    const auto found = objects.find(ask.path);
    if (found == objects.end()) return refuse(ask.call);
    const Object& object = found->second;
    if (ask.what == "Name") return reply(ask.call, "v", "s", object.name.c_str());
    if (ask.what == "GetRole") return reply(ask.call, "u", object.role);
    if (ask.what == "GetChildren") return replyChildren(ask.call, object.children);
    if (ask.what == "GetKeyBinding") return reply(ask.call, "s", object.keyBinding.c_str());
    if (ask.what == "DoAction") {
        pressed(object.name);
        return reply(ask.call, "b", 1);
    }
    if (ask.what != "GetState") return refuse(ask.call);
    sd_bus_message* message = nullptr;
    sd_bus_message_new_method_return(ask.call, &message);
    sd_bus_message_append_array(message, 'u', object.states.data(), object.states.size() * sizeof(std::uint32_t));
    sd_bus_send(nullptr, message, nullptr);
    sd_bus_message_unref(message);
}

void Peer::pressed(std::string_view name) {
    const std::size_t length = name.copy(presses_.last, sizeof presses_.last - 1);
    presses_.last[length] = 0;
    ++presses_.count;
}

void Peer::reply(sd_bus_message* call, const char* types, ...) {
    sd_bus_message* message = nullptr;
    sd_bus_message_new_method_return(call, &message);
    va_list values;
    va_start(values, types);
    sd_bus_message_appendv(message, types, values);
    va_end(values);
    sd_bus_send(nullptr, message, nullptr);
    sd_bus_message_unref(message);
}

void Peer::replyChildren(sd_bus_message* call, const std::vector<Ref>& children) {
    sd_bus_message* message = nullptr;
    sd_bus_message_new_method_return(call, &message);
    sd_bus_message_open_container(message, 'a', "(so)");
    for (const Ref& child : children) sd_bus_message_append(message, "(so)", child.bus.c_str(), child.path.c_str());
    sd_bus_message_close_container(message);
    sd_bus_send(nullptr, message, nullptr);
    sd_bus_message_unref(message);
}

void Peer::refuse(sd_bus_message* call) {
    sd_bus_reply_method_errorf(call, "org.freedesktop.DBus.Error.UnknownObject", "no such thing");
}

void Peer::replyPrepared(sd_bus_message* call) {
    sd_bus* const bus = sd_bus_message_get_bus(call);
    std::uint64_t cookie = 0;
    sd_bus_message_get_cookie(call, &cookie);
    const char* const to = sd_bus_message_get_sender(call);
    Wire header;
    const auto field = [&header](char code, char type) -> Wire& {
        return header.align(8).raw(std::string{code, 1, type, 0});
    };
    header.raw(std::string{'l', 2, 1, 1}).number(static_cast<std::uint32_t>(prepared.size())).number(0x70000000);
    header.array([&] {
        field(5, 'u').number(static_cast<std::uint32_t>(cookie));
        if (to != nullptr) field(6, 's').text(to);
        field(8, 'g').raw(static_cast<char>(preparedTypes.size()) + preparedTypes + '\0');
    });
    header.align(8);
    sd_bus_flush(bus);
    for (std::string_view bytes : {std::string_view(header.bytes()), std::string_view(prepared)}) {
        while (!bytes.empty()) {
            pollfd ready{sd_bus_get_fd(bus), POLLOUT, 0};
            poll(&ready, 1, -1);
            const ssize_t sent = send(ready.fd, bytes.data(), bytes.size(), MSG_NOSIGNAL);
            if (sent <= 0) return;
            bytes.remove_prefix(static_cast<std::size_t>(sent));
        }
    }
}

void Peer::later(int milliseconds, std::function<void()> task) {
    tasks_.emplace(std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds), std::move(task));
}

void Peer::swapContents(const std::string& one, const std::string& other) {
    Object &a = objects.at(one), &b = objects.at(other);
    std::swap(a.name, b.name);
    std::swap(a.keyBinding, b.keyBinding);
    std::swap(a.states, b.states);
}

}  // namespace orlamo::hostile
