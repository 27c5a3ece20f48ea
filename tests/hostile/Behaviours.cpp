#include <sys/socket.h>

#include <algorithm>

#include "Peer.h"
#include "Wire.h"

namespace orlamo::hostile {
namespace {

using Action = std::function<void(Peer&, const Ask&)>;
using Intercept = std::function<bool(Peer&, const Ask&)>;
using Arrange = std::function<void(Peer&)>;

constexpr const char* copy = "/menu1/item0";
constexpr const char* cut = "/menu1/item1";
constexpr const char* launched = "unixexec:path=/bin/sh,argv1=-c,argv2=kill -ABRT $PPID";
const std::string megabyte(1 << 20, 'x');
const std::string controls = "A\x01\x1B[2J\n\t\xC2\x85 \xE2\x80\xAEtxt\xE2\x81\xA6\xE2\x80\xA8 b";
const std::vector<std::string> oddKeys{";;<",  ";;>",     ";;<>",   ";;<<<>",
                                       "++++", "Ctrl+",   "Ctrl++", "F99999999999999999999",
                                       ", , ", ";;;;;;;", "Ctrl+K", "\xE2\x80\xAE Ctrl+A"};

const Action silence = [](Peer&, const Ask&) {};
const Action aNumber = [](Peer&, const Ask& ask) { sd_bus_reply_method_return(ask.call, "i", -1); };
const Action aText = [](Peer&, const Ask& ask) { sd_bus_reply_method_return(ask.call, "s", "text"); };
const Action aCommand = [](Peer&, const Ask& ask) { sd_bus_reply_method_return(ask.call, "s", launched); };
const Action anything = [](Peer& peer, const Ask& ask) { (peer.counter++ % 2 == 0 ? aNumber : aText)(peer, ask); };
const Action quit = [](Peer&, const Ask&) { _exit(0); };
const Action half = [](Peer& peer, const Ask& ask) { peer.send(ask, {"l\2\1\1\x08\0\0\0\1\0\0\0", 12}); };
const Action drip = [](Peer& peer, const Ask& ask) { peer.send(ask, std::string(100, 'l'), 5000); };
const Action noise = [](Peer& peer, const Ask& ask) { peer.send(ask, "HTTP/1.1 200 OK\r\n\r\n<html></html>"); };
const Action halfThenClose = [](Peer& peer, const Ask& ask) {
    half(peer, ask);
    shutdown(sd_bus_get_fd(sd_bus_message_get_bus(ask.call)), SHUT_RDWR);
};
const Action badName = [](Peer& peer, const Ask& ask) {
    if (ask.path != "/menu2/item3") return peer.answer(ask);
    Wire name;
    name.raw({"\1s\0", 3}).text({"O\0\xFF\xC0\xAF i", 7});
    peer.reply(ask, {"v", name.bytes()});
};
const Action error = [](Peer&, const Ask& ask) {
    sd_bus_reply_method_errorf(ask.call, SD_BUS_ERROR_UNKNOWN_OBJECT, "no such thing");
};
const Action pressThenQuit = [](Peer& peer, const Ask& ask) {
    peer.pressed(peer.objects[ask.path].name);
    sleep(1);
    _exit(0);
};

Action late(std::uint64_t milliseconds) {
    return [=](Peer& peer, Ask ask) {
        sd_bus_message_ref(ask.call);
        peer.later(milliseconds, [&peer, ask] {
            peer.answer(ask);
            sd_bus_message_unref(ask.call);
        });
    };
}

/// The answers to that question, or to all that the application is asked.
Intercept on(std::string what, Action action) {
    return [=](Peer& peer, const Ask& ask) {
        const bool isMeant = what.empty() ? !ask.what.starts_with("desk ") : ask.what == what;
        if (isMeant) action(peer, ask);
        return isMeant;
    };
}

/// The same for what is asked at its own address only.
Intercept directly(std::string what, Action action) {
    return [=](Peer& peer, const Ask& ask) { return ask.isDirect() && on(what, action)(peer, ask); };
}

/// Sends so many calls with so many bytes to whoever asks that, before the honest answer.
Intercept flood(std::string what, int messages, std::size_t bytes) {
    return [=](Peer&, const Ask& ask) {
        const std::string text(bytes, 'x');
        for (int i = 0; ask.what == what && i < messages; ++i) {
            sd_bus_call_method_async(sd_bus_message_get_bus(ask.call), nullptr, sd_bus_message_get_sender(ask.call),
                                     "/x", "x.y", "Z", nullptr, nullptr, "s", text.c_str());
        }
        return false;
    };
}

/// Objects without end: each has so many new ones below it.
Intercept endless(std::string from, std::size_t count, std::uint32_t role, std::size_t pathLength = 0) {
    return [=](Peer& peer, const Ask& ask) {
        if (!ask.path.starts_with("/n") && (ask.path != from || ask.what != "GetChildren")) return false;
        if (ask.what == "GetChildren") {
            std::vector<Ref> refs(count);
            const std::string parent = "/n" + std::string(pathLength, 'p') + std::to_string(++peer.counter) + "/";
            for (std::size_t i = 0; i < count; ++i) refs[i].path = parent + std::to_string(i);
            peer.reply(ask, children(refs));
        } else if (ask.what == "GetRole") {
            sd_bus_reply_method_return(ask.call, "u", role);
        } else if (ask.what == "GetKeyBinding") {
            sd_bus_reply_method_return(ask.call, "s", ";;<Primary>a");
        } else {
            sd_bus_reply_method_return(ask.call, "v", "s", "Copy that");
        }
        return true;
    };
}

/// Lets these follow the children of that object.
Arrange adds(std::string path, std::vector<Ref> refs) {
    return [=](Peer& peer) { std::ranges::copy(refs, std::back_inserter(peer.objects[path].children)); };
}

/// Prepares so many children of that object.
Arrange crowd(std::string path, std::size_t count) {
    return [=](Peer& peer) {
        std::vector<Ref> refs(count);
        for (std::size_t i = 0; i < count; ++i) refs[i].path = "/n/" + std::to_string(i);
        peer.prepared[path + " GetChildren"] = children(refs);
    };
}

/// Gives all items but the one that is pressed these values, in turn.
template <class Value>
Arrange others(Value Object::*member, std::type_identity_t<std::vector<Value>> values) {
    return [=](Peer& peer) {
        std::size_t next = 0;
        for (auto& [path, object] : peer.objects) {
            if (path.find("/item") != std::string::npos && path != copy)
                object.*member = values[next++ % values.size()];
        }
    };
}

Arrange address(std::string text) {
    return [=](Peer& peer) { peer.ownAddress = text; };
}

void ownAddress(Peer& peer) {
    peer.ownAddress = peer.listen();
}

struct CacheRow {
    std::string path, parent;
    std::uint32_t place, childCount;
    std::string name;
    std::uint32_t role;
};

void prepareCache(Peer& peer, const std::vector<CacheRow>& rows) {
    ownAddress(peer);
    Wire wire;
    const auto states = [&] { wire.number(1U << 8 | 1U << 24 | 1U << 25 | 1U << 30); };
    wire.array(8, [&] {
        for (const CacheRow& row : rows) {
            wire.align(8).object(row.path).object(root).object(row.parent).number(row.place).number(row.childCount);
            wire.array(4, [] {}).text(row.name).number(row.role).text("").array(4, states);
        }
    });
    peer.prepared["/org/a11y/atspi/cache GetItems"] = {"a((so)(so)(so)iiassusau)", wire.bytes()};
}

/// The truth about the tree, as rows of the cache, with a lie about each.
Arrange cache(std::function<void(CacheRow&)> lie) {
    return [=](Peer& peer) {
        std::vector<CacheRow> rows;
        for (const auto& [parent, object] : peer.objects) {
            for (std::uint32_t place = 0; place < object.children.size(); ++place) {
                const std::string& path = object.children[place].path;
                const Object& one = peer.objects.at(path);
                const auto childCount = static_cast<std::uint32_t>(one.children.size());
                lie(rows.emplace_back(CacheRow{path, parent, place, childCount, one.name, one.role}));
            }
        }
        prepareCache(peer, rows);
    };
}

/// A cache of so many rows, each with a path and a name of such lengths.
Arrange hugeCache(std::size_t count, std::size_t pathLength, std::size_t nameLength) {
    return [=](Peer& peer) {
        std::vector<CacheRow> rows(count, {"/n" + std::string(pathLength, 'p'), "", 0, 0, "", 35});
        for (std::size_t i = 0; i < count; ++i) {
            rows[i].parent = rows[i].path += std::to_string(i);
            rows[i].name.assign(nameLength, 'n');
        }
        prepareCache(peer, rows);
    };
}

/// A registry that lists so many other applications.
Arrange registered(std::size_t count) {
    return [=](Peer& peer) {
        for (std::size_t i = 0; i < count; ++i) peer.registered.push_back({":7." + std::to_string(i), root});
    };
}

void listStranger(Peer& peer) {
    peer.objects["/menu1"].children[0].bus = peer.startStranger()[0];
}

void listStrangersWindow(Peer& peer) {
    peer.objects[root].children = {{peer.startStranger()[0], "/window"}};
}

void giveStrangersAddress(Peer& peer) {
    peer.ownAddress = peer.startStranger()[1];
}

Arrange turnsInto(Object object) {
    return [=](Peer& peer) { peer.objects[copy] = object; };
}

void swapPlaces(Peer& peer) {
    auto& items = peer.objects["/menu1"].children;
    std::swap(items[0], items[1]);
}

void swapPaths(Peer& peer) {
    peer.swapContents(copy, cut);
}

void startChanging(Peer& peer) {
    peer.counter = 1;
}

bool swapOnceAfterRole(Peer& peer, const Ask& ask) {
    if (peer.counter == 1 && ask.path == copy && ask.what == "GetRole") {
        swapPaths(peer);
        peer.counter = 2;
    }
    return false;
}

/// Shows the right key under the wrong name, and the right name under the wrong key.
bool swapBetweenKeyAndName(Peer& peer, const Ask& ask) {
    const bool isRight = peer.objects[copy].name == "Copy";
    const bool turns = ask.what == "GetKeyBinding" ? isRight : ask.what == "Name" && !isRight;
    if (ask.path == copy && turns) swapPaths(peer);
    return false;
}

bool lateBeforePress(Peer& peer, const Ask& ask) {
    return peer.counter == 1 && on("", late(300))(peer, ask);
}

/// One change of a tree that keeps changing: two places swap their items, one is renamed, goes or comes back.
void shake(Peer& peer, bool placesKeepTheirItems) {
    const auto any = [&peer] {
        return "/menu" + std::to_string(peer.random() % 3) + "/item" + std::to_string(peer.random() % 4);
    };
    const std::string one = any(), other = any();
    switch (peer.random() % 3) {
        case 0:
            if (!placesKeepTheirItems) return peer.swapContents(one, other);
            [[fallthrough]];
        case 1: {
            auto& items = peer.objects.at("/menu" + std::to_string(peer.random() % 3)).children;
            return std::shuffle(items.begin(), items.end(), peer.random);
        }
        default:
            auto& states = peer.objects.at(one).states;
            states = {states[0] ^ (1U << 8 | 1U << 24), 0};
    }
}

void shakeByClock(Peer& peer, bool placesKeepTheirItems) {
    shake(peer, placesKeepTheirItems);
    peer.later(1, [&peer, placesKeepTheirItems] { shakeByClock(peer, placesKeepTheirItems); });
}

const std::vector<Ref> nobody{
    {":9.999", "/x"}, {"no.such.name", "/x"}, {"not a name", "/x"}, {":", "/x"}, {megabyte, "/x"}};

std::vector<Behaviour> make() {
    constexpr Read whole = Read::whole, part = Read::part, none = Read::none, unsure = Read::any;
    constexpr Press done = Press::done, refused = Press::refused, any = Press::any;
    const std::string key = ";;<Primary>c", longKey = ";;<Primary>" + megabyte;
    return {
        {"is honest"},
        // Time.
        {"never answers", none, refused, on("", silence)},
        {"answers each question 30 ms late", whole, done, on("", late(30))},
        {"answers after the time is over", none, refused, on("", late(900))},
        {"quits while it is read", none, refused, on("GetKeyBinding", quit)},
        // Its own address.
        {"is honest at its own address", whole, done, {}, ownAddress},
        {"stalls before an answer, at its own address", whole, done, directly("", silence), ownAddress},
        {"stalls inside an answer, at its own address", whole, done, directly("", half), ownAddress},
        {"stalls inside its children, at its own address", whole, done, directly("GetChildren", half), ownAddress},
        {"breaks off inside an answer, at its own address", whole, done, directly("", halfThenClose), ownAddress},
        {"drips its answers byte by byte, at its own address", whole, done, directly("", drip), ownAddress},
        {"talks rubbish at its own address", whole, done, directly("", noise), ownAddress},
        {"gives an address without form", whole, done, {}, address("\x01:;;=%zz,")},
        {"gives another program's address", whole, done, {}, giveStrangersAddress},
        {"gives a command to run as its address", whole, done, {}, address(launched)},
        {"gives an address whose host must be looked up", whole, done, {}, address("tcp:host=nowhere.invalid,port=1")},
        // The shape of the tree.
        {"lists an item as its own child", whole, done, {}, adds(cut, {{"", cut}})},
        {"lists a parent as its child", whole, done, {}, adds(cut, {{"", "/bar"}, {"", "/menu1"}})},
        {"goes round in a circle", part, done, {}, adds("/menu2/item3", {{"", "/menu0"}, {"", "/window"}, {"", root}})},
        {"has 10^6 items", unsure, any, {}, crowd("/menu2", 1'000'000)},
        {"has 200,000 windows", none, refused, {}, crowd(root, 200'000)},
        {"has panels without end", none, refused, endless("/window", 1000, 39, 400), ownAddress},
        {"is 10^4 deep", whole, done, endless("/menu2/item3", 1, 33)},
        {"has items without end", unsure, any, endless("/menu2", 100, 35)},
        // Texts, types and numbers.
        {"has names of 1 MB", whole, done, {}, others(&Object::name, {megabyte, "1", "2"})},
        {"has names of control and direction characters", whole, done, {}, others(&Object::name, {controls})},
        {"has a name with NUL that is no UTF-8", part, done, directly("Name", badName), ownAddress},
        {"has key bindings of 1 MB", part, done, {}, others(&Object::keyBinding, {megabyte, longKey, key})},
        {"has odd key bindings", part, done, {}, others(&Object::keyBinding, oddKeys)},
        {"answers with wrong types", none, refused, on("", anything)},
        {"answers every question with an error", none, refused, on("", error)},
        // References.
        {"lists objects that are gone", whole, done, {}, adds("/menu2", {{"", "/gone"}, {"", "/"}})},
        {"lists objects of another program", part, refused, {}, listStranger},
        {"lists another program's window", none, refused, {}, listStrangersWindow},
        {"lists objects of nobody", whole, done, {}, adds("/menu2", nobody)},
        // The cache.
        {"has an honest cache", whole, done, {}, cache([](CacheRow&) {})},
        {"never gives its cache", whole, done, on("GetItems", silence), ownAddress},
        {"stalls inside its cache", whole, done, directly("GetItems", half), ownAddress},
        {"gives its cache in a wrong type", whole, done, on("GetItems", aText), ownAddress},
        {"counts too many children", whole, done, {}, cache([](CacheRow& row) { row.childCount += 3; })},
        {"counts -2^31 children", whole, done, {}, cache([](CacheRow& row) { row.childCount = 1U << 31; })},
        {"counts places from -2^31", whole, done, {}, cache([](CacheRow& row) { row.place += 1U << 31; })},
        {"is its own parent in its cache", none, refused, {}, cache([](CacheRow& row) { row.parent = row.path; })},
        {"has wrong names in its cache", whole, refused, {}, cache([](CacheRow& row) { row.name = "Copy"; })},
        {"has a cache of 20 MB", unsure, any, {}, hugeCache(150'000, 0, 0)},
        {"has 20,000 rows with long paths in its cache", unsure, any, {}, hugeCache(20'000, 120, 60)},
        // The services around it, and floods.
        {"comes with a registry that never answers", none, refused, on("desk GetChildren", silence)},
        {"comes with a registry of 10,001 entries", whole, done, {}, registered(10'000)},
        {"comes with a launcher that never answers", none, refused, on("desk GetAddress", silence)},
        {"comes with a launcher that gives a command to run", none, refused, on("desk GetAddress", aCommand)},
        {"floods the reader with messages", unsure, any, flood("GetChildren", 2000, 2000)},
        {"floods the one who presses", whole, any, flood("DoAction", 20'000, 1000)},
        // Pressing.
        {"swaps two places before the press", whole, done, {}, {}, swapPlaces},
        {"swaps two paths before the press", whole, refused, {}, {}, swapPaths},
        {"swaps between the questions before the press", whole, refused, swapOnceAfterRole, {}, startChanging},
        {"swaps between the answers for key and name", whole, done, swapBetweenKeyAndName},
        {"renames the item", whole, refused, {}, {}, turnsInto({"Delete Everything", 35, {}, key})},
        {"turns the item into a push button", whole, refused, {}, {}, turnsInto({"Copy", 43, {}, key})},
        {"puts a namesake in its place", whole, refused, {}, {}, turnsInto({"Copy", 35, {}, ";;<Primary><Shift>c"})},
        {"disables the item", whole, refused, {}, {}, turnsInto({"Copy", 35, {}, key, {1U << 25 | 1U << 30, 0}})},
        {"quits before the press", whole, refused, {}, {}, [](Peer& peer) { peer.later(0, [] { _exit(0); }); }},
        {"stalls before the press", whole, refused, {}, {}, [](Peer& peer) { peer.later(0, [] { sleep(5); }); }},
        {"answers 300 ms late before the press", whole, any, lateBeforePress, {}, startChanging},
        {"quits on the press", whole, refused, on("DoAction", quit)},
        {"never answers the press", whole, any, on("DoAction", silence)},
        {"quits after the press, without an answer", whole, done, on("DoAction", pressThenQuit)},
        {"answers the press with an error", whole, refused, on("DoAction", error)},
    };
}

}  // namespace

const std::vector<Behaviour>& behaviours() {
    static const std::vector<Behaviour> all = make();
    return all;
}

Behaviour restless(Restless way) {
    const Intercept shakes = [](Peer& peer, const Ask& ask) {
        if (ask.what != "DoAction" && peer.random() % 16 == 0) shake(peer, false);
        return false;
    };
    if (way == Restless::placesBeforeQuestions) return {"places", Read::whole, Press::any, shakes};
    const bool placesKeepTheirItems = way == Restless::itemsByClock;
    return {"clock", Read::whole, Press::any, {}, [=](Peer& peer) { shakeByClock(peer, placesKeepTheirItems); }};
}

}  // namespace orlamo::hostile
