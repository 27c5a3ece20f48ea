#include "Peer.h"

#include <poll.h>
#include <sys/epoll.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "Wire.h"

namespace orlamo::hostile {
namespace {

constexpr const char* registry = "org.a11y.atspi.Registry";

/// For a machine that cannot play the game at all; the test sees a peer that ended.
void need(int result, const char* what) {
    if (result >= 0) return;
    std::fprintf(stderr, "hostile peer: %s: %s\n", what, std::strerror(-result));
    _exit(3);
}

}  // namespace

void Peer::buildHonestTree() {
    constexpr const char* menus[] = {"File", "Edit", "View"};
    constexpr const char* names[] = {"New",   "Open",   "Save",    "Quit",     "Copy",   "Cut",
                                     "Paste", "Delete", "Zoom In", "Zoom Out", "Reload", "Outline"};
    constexpr std::string_view keys = "nosqcxvdiorl";
    objects[root] = {"hostile", 75, {{"", "/window"}}};
    objects["/window"] = {"Window", 23, {{"", "/bar"}}};
    objects["/window"].states[0] |= 1U << 1;
    objects["/bar"] = {"", 34};
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const std::string menu = "/menu" + std::to_string(i / 4), item = menu + "/item" + std::to_string(i % 4);
        if (i % 4 == 0) objects["/bar"].children.push_back({"", menu});
        objects[menu].name = menus[i / 4];
        objects[menu].role = 33;
        objects[menu].children.push_back({"", item});
        objects[item] = {names[i], 35, {}, std::string(";;<Primary>") + keys[i]};
    }
}

Peer::Peer(const Behaviour& behaviour, Presses& presses, const std::string& busAddress)
    : behaviour_(behaviour), presses_(presses) {
    need(sd_event_new(&event_), "event loop");
    buildHonestTree();
    application_ = connect(busAddress);
    const char* name = nullptr;
    need(sd_bus_get_unique_name(application_, &name), "unique name");
    uniqueName_ = name;
    registered = {{uniqueName_, root}};
    if (behaviour_.arrange) behaviour_.arrange(*this);
}

void Peer::playServices(const std::string& busAddress) {
    desk_ = connect(busAddress);
    need(sd_bus_request_name(desk_, "org.a11y.Bus", 0), "name of the launcher");
    need(sd_bus_request_name(desk_, registry, 0), "name of the registry");
}

void Peer::embed() {
    need(sd_bus_call_method(application_, registry, root, "org.a11y.atspi.Socket", "Embed", nullptr, nullptr, "(so)",
                            uniqueName_.c_str(), root),
         "Embed");
}

sd_bus* Peer::connect(const std::string& address) {
    sd_bus* bus = nullptr;
    need(sd_bus_new(&bus), "bus");
    need(sd_bus_set_address(bus, address.c_str()), "address");
    sd_bus_set_bus_client(bus, 1);
    start(bus);
    return bus;
}

void Peer::start(sd_bus* bus) {
    sd_bus_add_filter(bus, nullptr, receive, this);
    need(sd_bus_start(bus), "start");
    need(sd_bus_attach_event(bus, event_, 0), "attach");
}

std::string Peer::listen() {
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    sockaddr_un name{};
    name.sun_family = AF_UNIX;
    auto length = static_cast<socklen_t>(sizeof(sa_family_t));  // the system finds a name
    need(bind(descriptor, reinterpret_cast<const sockaddr*>(&name), length), "bind");
    need(::listen(descriptor, 5), "listen");
    length = sizeof name;
    getsockname(descriptor, reinterpret_cast<sockaddr*>(&name), &length);
    const auto accept = [](sd_event_source*, int listening, std::uint32_t, void* data) {
        const int connection = accept4(listening, nullptr, nullptr, SOCK_CLOEXEC);
        sd_id128_t id{};
        sd_id128_randomize(&id);
        sd_bus* bus = nullptr;
        need(sd_bus_new(&bus), "bus");
        sd_bus_set_fd(bus, connection, connection);
        sd_bus_set_server(bus, 1, id);
        static_cast<Peer*>(data)->start(bus);
        return 0;
    };
    need(sd_event_add_io(event_, nullptr, descriptor, EPOLLIN, accept, this), "watch");
    return "unix:abstract=" + std::string(name.sun_path + 1, length - offsetof(sockaddr_un, sun_path) - 1);
}

std::vector<std::string> Peer::startStranger() {
    std::array<int, 2> ends{};
    need(socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends.data()), "socket pair");
    if (fork() == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        Behaviour behaviour{"stranger"};
        behaviour.intercept = [](Peer& peer, const Ask& ask) {
            if (ask.what == "DoAction") peer.pressed("a stranger's");
            return ask.what == "DoAction";
        };
        Peer peer(behaviour, presses_, std::getenv("DBUS_SESSION_BUS_ADDRESS"));
        for (const std::string& text : {peer.uniqueName(), peer.listen()}) {
            need(write(ends[1], text.data(), text.size()) > 0 ? 0 : -errno, "stranger");
        }
        peer.serve(ends[1]);
    }
    std::vector<std::string> texts(2, std::string(200, '\0'));
    for (std::string& text : texts) {
        const ssize_t size = read(ends[0], text.data(), text.size());
        need(size > 0 ? 0 : -errno, "stranger");
        text.resize(static_cast<std::size_t>(size));
    }
    return texts;
}

void Peer::serve(int commands) {
    const auto obey = [](sd_event_source*, int descriptor, std::uint32_t, void* data) {
        auto& self = *static_cast<Peer*>(data);
        char byte = 0;
        if (read(descriptor, &byte, 1) != 1) _exit(0);
        if (self.behaviour_.change) self.behaviour_.change(self);
        if (write(descriptor, &byte, 1) != 1) _exit(0);
        return 0;
    };
    need(sd_event_add_io(event_, nullptr, commands, EPOLLIN, obey, this), "commands");
    if (write(commands, "r", 1) == 1) sd_event_loop(event_);
    _exit(0);
}

int Peer::receive(sd_bus_message* message, void* data, sd_bus_error*) {
    if (sd_bus_message_is_method_call(message, nullptr, nullptr) <= 0) return 0;
    auto& self = *static_cast<Peer*>(data);
    Ask ask{message, sd_bus_message_get_path(message), sd_bus_message_get_member(message)};
    const char *interface = nullptr, *property = nullptr;
    if (ask.what == "Get" && sd_bus_message_read(message, "ss", &interface, &property) > 0) ask.what = property;
    const bool isService = sd_bus_message_get_bus(message) == self.desk_;
    if (isService) ask.what = "desk " + ask.what;
    if (self.behaviour_.intercept && self.behaviour_.intercept(self, ask)) return 1;
    isService ? self.answerService(ask) : self.answer(ask);
    return 1;
}

void Peer::answerService(const Ask& ask) {
    if (ask.what == "desk GetChildren") return reply(ask, children(registered));
    if (ask.what == "desk IsEnabled") {
        sd_bus_reply_method_return(ask.call, "v", "b", 1);
    } else if (ask.what == "desk GetAddress") {
        sd_bus_reply_method_return(ask.call, "s", std::getenv("DBUS_SESSION_BUS_ADDRESS"));
    } else {
        sd_bus_reply_method_return(ask.call, nullptr);
    }
}

void Peer::answer(const Ask& ask) {
    const auto found = objects.find(ask.path);
    if (const auto ready = prepared.find(ask.path + " " + ask.what); ready != prepared.end()) {
        reply(ask, ready->second);
    } else if (ask.what == "GetApplicationBusAddress" && !ownAddress.empty()) {
        sd_bus_reply_method_return(ask.call, "s", ownAddress.c_str());
    } else if (found == objects.end()) {
        sd_bus_reply_method_errorf(ask.call, SD_BUS_ERROR_UNKNOWN_OBJECT, "no such thing");
    } else if (const Object& object = found->second; ask.what == "GetChildren") {
        reply(ask, children(object.children));
    } else if (ask.what == "Name") {
        sd_bus_reply_method_return(ask.call, "v", "s", object.name.c_str());
    } else if (ask.what == "GetRole") {
        sd_bus_reply_method_return(ask.call, "u", object.role);
    } else if (ask.what == "GetKeyBinding") {
        sd_bus_reply_method_return(ask.call, "s", object.keyBinding.c_str());
    } else if (ask.what == "DoAction") {
        pressed(object.name);
        sd_bus_reply_method_return(ask.call, "b", 1);
    } else if (ask.what == "GetState") {
        Wire states;
        states.array(4, [&] {
            for (const std::uint32_t word : object.states) states.number(word);
        });
        reply(ask, {"au", states.bytes()});
    } else {
        sd_bus_reply_method_errorf(ask.call, SD_BUS_ERROR_UNKNOWN_METHOD, "no such thing");
    }
}

Prepared children(const std::vector<Ref>& refs) {
    Wire wire;
    wire.array(8, [&] {
        for (const Ref& ref : refs) wire.object(ref.path, ref.bus);
    });
    return {"a(so)", wire.bytes()};
}

void Peer::reply(const Ask& ask, const Prepared& answer) {
    std::uint64_t cookie = 0;
    sd_bus_message_get_cookie(ask.call, &cookie);
    const char* const to = sd_bus_message_get_sender(ask.call);
    Wire header;
    const auto field = [&header](char code, char type) -> Wire& {
        return header.align(8).raw(std::string{code, 1, type, 0});
    };
    header.raw(std::string{'l', 2, 1, 1}).number(static_cast<std::uint32_t>(answer.body.size())).number(0x70000000);
    header.array(8, [&] {
        field(5, 'u').number(static_cast<std::uint32_t>(cookie));
        if (to != nullptr) field(6, 's').text(to);
        field(8, 'g').raw(static_cast<char>(answer.types.size()) + answer.types + '\0');
    });
    send(ask, header.align(8).bytes());
    send(ask, answer.body);
}

void Peer::send(const Ask& ask, std::string_view bytes, useconds_t pause) {
    sd_bus* const bus = sd_bus_message_get_bus(ask.call);
    sd_bus_flush(bus);
    while (!bytes.empty()) {
        pollfd ready{sd_bus_get_fd(bus), POLLOUT, 0};
        poll(&ready, 1, -1);
        const ssize_t sent = ::send(ready.fd, bytes.data(), pause > 0 ? 1 : bytes.size(), MSG_NOSIGNAL);
        if (sent <= 0) return;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
        if (pause > 0) usleep(pause);
    }
}

void Peer::pressed(std::string_view name) {
    const std::size_t length = name.copy(presses_.last, sizeof presses_.last - 1);
    presses_.last[length] = 0;
    ++presses_.count;
}

void Peer::later(std::uint64_t milliseconds, std::function<void()> task) {
    using Task = std::function<void()>;
    const auto run = [](sd_event_source* source, std::uint64_t, void* data) {
        const std::unique_ptr<Task> owned(static_cast<Task*>(data));
        (*owned)();
        sd_event_source_disable_unref(source);
        return 0;
    };
    auto owned = std::make_unique<Task>(std::move(task));
    sd_event_source* source = nullptr;
    need(sd_event_add_time_relative(event_, &source, CLOCK_MONOTONIC, milliseconds * 1000, 1, run, owned.release()),
         "timer");
}

void Peer::swapContents(const std::string& one, const std::string& other) {
    Object &a = objects.at(one), &b = objects.at(other);
    std::swap(a.name, b.name);
    std::swap(a.keyBinding, b.keyBinding);
    std::swap(a.states, b.states);
}

}  // namespace orlamo::hostile
