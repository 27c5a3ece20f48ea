#include <unistd.h>
#include <algorithm>
#include <array>
#include <cstdlib>

#include "Peer.h"
#include "Wire.h"

namespace orlamo::hostile {
namespace {

using Action = std::function<void(Peer&, const Ask&)>;
using Intercept = std::function<bool(Peer&, const Ask&)>;
using Arrange = std::function<void(Peer&)>;

constexpr const char* copy = "/menu1/item0";
constexpr const char* cut = "/menu1/item1";
constexpr const char* root = "/org/a11y/atspi/accessible/root";

const Action silence = [](Peer&, const Ask&) {};
const Action error = [](Peer& peer, const Ask& ask) { peer.refuse(ask.call); };
const Action nothing = [](Peer& peer, const Ask& ask) { peer.reply(ask.call, ""); };
const Action aNumber = [](Peer& peer, const Ask& ask) { peer.reply(ask.call, "i", -1); };
const Action aText = [](Peer& peer, const Ask& ask) { peer.reply(ask.call, "s", "text"); };
const Action quit = [](Peer&, const Ask&) { _exit(0); };

/// The application's answers to that question, or to all.
Intercept on(std::string what, Action action) {
    return [=](Peer& peer, const Ask& ask) {
        if (ask.isService || (!what.empty() && ask.what != what)) return false;
        action(peer, ask);
        return true;
    };
}

Intercept onService(std::string what, Action action) {
    return [=](Peer& peer, const Ask& ask) {
        if (!ask.isService || ask.what != what) return false;
        action(peer, ask);
        return true;
    };
}

/// Before the honest answer.
Intercept before(std::string what, Action action) {
    return [=](Peer& peer, const Ask& ask) {
        if (!ask.isService && ask.what == what) action(peer, ask);
        return false;
    };
}

Action late(int milliseconds) {
    return [=](Peer& peer, Ask ask) {
        sd_bus_message_ref(ask.call);
        peer.later(milliseconds, [&peer, ask] {
            peer.answer(ask);
            sd_bus_message_unref(ask.call);
        });
    };
}

Action children(std::vector<Ref> refs) {
    return [=](Peer& peer, const Ask& ask) { peer.replyChildren(ask.call, refs); };
}

std::vector<Ref> manyChildren(std::size_t count, const std::string& prefix = "/n/") {
    std::vector<Ref> refs(count);
    for (std::size_t i = 0; i < count; ++i) refs[i].path = prefix + std::to_string(i);
    return refs;
}

/// The children of that object.
Intercept childrenOf(std::string path, Action action) {
    return [=](Peer& peer, const Ask& ask) {
        if (ask.isService || ask.path != path || ask.what != "GetChildren") return false;
        action(peer, ask);
        return true;
    };
}

/// Objects without end: each has so many new ones below it.
Intercept endless(std::string from, std::size_t children, std::uint32_t role, std::string filling = "") {
    return [=](Peer& peer, const Ask& ask) {
        if (!ask.path.starts_with("/n") && (ask.path != from || ask.what != "GetChildren")) return false;
        if (ask.what == "GetChildren") {
            const std::string prefix = "/n" + filling + std::to_string(++peer.counter) + "/";
            peer.replyChildren(ask.call, manyChildren(children, prefix));
        } else if (ask.what == "GetRole") {
            peer.reply(ask.call, "u", role);
        } else if (ask.what == "GetKeyBinding") {
            peer.reply(ask.call, "s", ";;<Primary>a");
        } else {
            peer.reply(ask.call, "v", "s", "Copy that");
        }
        return true;
    };
}

Arrange withOwnAddress(std::function<void(Peer&)> then = [](Peer&) {}) {
    return [=](Peer& peer) {
        peer.ownAddress = peer.listen();
        then(peer);
    };
}

Arrange withAddress(std::string address) {
    return [=](Peer& peer) { peer.ownAddress = address; };
}

/// Names for all items but the one that is pressed.
Arrange named(std::string name) {
    return [=](Peer& peer) {
        for (auto& [path, object] : peer.objects) {
            if (path.find("/item") != std::string::npos && path != copy) object.name = name;
        }
    };
}

Arrange bound(std::vector<std::string> keyBindings) {
    return [=](Peer& peer) {
        std::size_t next = 0;
        for (auto& [path, object] : peer.objects) {
            if (path.find("/item") != std::string::npos && path != copy) {
                object.keyBinding = keyBindings[next++ % keyBindings.size()];
            }
        }
    };
}

Arrange withStates(std::vector<std::uint32_t> states) {
    return [=](Peer& peer) {
        for (auto& [path, object] : peer.objects) {
            if (path != copy && path != "/window") object.states = states;
        }
    };
}

struct CacheRow {
    std::string path, parent;
    int place, childCount;
    std::string name;
    std::uint32_t role;
};

void replyCache(const Ask& ask, const std::vector<CacheRow>& rows) {
    sd_bus_message* message = nullptr;
    sd_bus_message_new_method_return(ask.call, &message);
    sd_bus_message_open_container(message, 'a', "((so)(so)(so)iiassusau)");
    for (const CacheRow& row : rows) {
        sd_bus_message_append(message, "((so)(so)(so)iiassusau)", "", row.path.c_str(), "", root, "",
                              row.parent.c_str(), row.place, row.childCount, 0, row.name.c_str(), row.role, "", 1,
                              1U << 8 | 1U << 24 | 1U << 25 | 1U << 30);
    }
    sd_bus_message_close_container(message);
    sd_bus_send(nullptr, message, nullptr);
    sd_bus_message_unref(message);
}

/// The truth about the tree, as rows of the cache, with a lie about each.
Action cache(std::function<void(CacheRow&)> lie) {
    return [=](Peer& peer, const Ask& ask) {
        std::vector<CacheRow> rows;
        for (const auto& [parent, object] : peer.objects) {
            int place = 0;
            for (const Ref& child : object.children) {
                const Object& one = peer.objects.at(child.path);
                rows.push_back(
                    {child.path, parent, place++, static_cast<int>(one.children.size()), one.name, one.role});
                lie(rows.back());
            }
        }
        replyCache(ask, rows);
    };
}

const Action preparedAnswer = [](Peer& peer, const Ask& ask) { peer.replyPrepared(ask.call); };

/// Prepares so many children.
Arrange prepareChildren(std::size_t count) {
    return [=](Peer& peer) {
        Wire wire;
        wire.array([&] {
            for (std::size_t i = 0; i < count; ++i) wire.object("/n/" + std::to_string(i));
        });
        peer.preparedTypes = "a(so)";
        peer.prepared = wire.bytes();
    };
}

/// Prepares a cache of so many rows, each with a path and a name of such lengths, and its own place as its parent.
Arrange prepareCache(std::size_t rows, std::size_t pathLength, std::size_t nameLength) {
    return withOwnAddress([=](Peer& peer) {
        Wire wire;
        wire.array([&] {
            for (std::size_t i = 0; i < rows; ++i) {
                const std::string path = "/n" + std::string(pathLength, 'p') + std::to_string(i);
                wire.object(path).object("/").object(path).number(0).number(0).number(0);
                wire.text(std::string(nameLength, 'n')).number(35).text("").number(0).align(8);
            }
        });
        peer.preparedTypes = "a((so)(so)(so)iiassusau)";
        peer.prepared = wire.bytes();
    });
}

/// The older form of the cache, whose rows list their children.
Arrange prepareListedCache(std::size_t rows, std::size_t childrenOfEach) {
    return withOwnAddress([=](Peer& peer) {
        Wire wire;
        const auto children = [&] {
            for (std::size_t i = 0; i < childrenOfEach; ++i) wire.object("/n");
        };
        wire.array([&] {
            for (std::size_t i = 0; i < rows; ++i) {
                wire.object("/n/" + std::to_string(i)).object("/").object("/").array(children);
                wire.number(0).text("").number(35).text("").number(0).align(8);
            }
        });
        peer.preparedTypes = "a((so)(so)(so)a(so)assusau)";
        peer.prepared = wire.bytes();
    });
}

/// Sends so many signals or calls to whoever asked, with so many bytes in each.
Action flood(int messages, std::size_t bytes, bool isCall) {
    return [=](Peer& peer, const Ask& ask) {
        const std::string text(bytes, 'x');
        for (int i = 0; i < messages; ++i) {
            sd_bus_message* message = nullptr;
            const char* const to = sd_bus_message_get_sender(ask.call);
            if (isCall) {
                sd_bus_message_new_method_call(peer.application(), &message, to, "/x", "x.y", "Z");
            } else {
                sd_bus_message_new_signal(peer.application(), &message, "/x", "x.y", "Z");
                sd_bus_message_set_destination(message, to);
            }
            sd_bus_message_append(message, "s", text.c_str());
            sd_bus_send(nullptr, message, nullptr);
            sd_bus_message_unref(message);
        }
    };
}

void rename(Peer& peer) {
    peer.objects.at(copy).name = "Delete Everything";
}

void disable(Peer& peer) {
    peer.objects.at(copy).states = {1U << 25 | 1U << 30, 0};
}

void stranger(Peer& peer) {
    const auto [name, address] = peer.startStranger("");
    peer.objects["/menu1"].children[0] = {name, copy};
}

/// One change of a tree that keeps changing: two places swap their items, one is renamed, goes or comes back.
void shake(Peer& peer, bool placesKeepTheirItems) {
    const auto any = [&peer] {
        return Peer::itemPath(static_cast<int>(peer.random() % 3), static_cast<int>(peer.random() % 4));
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

const Action anything = [](Peer& peer, const Ask& ask) { (peer.counter++ % 2 == 0 ? aNumber : aText)(peer, ask); };
const std::string megabyte(1 << 20, 'x');
const std::string controls = "A\x01\x1B[2J\n\t\xC2\x85 \xE2\x80\xAEtxt\xE2\x81\xA6\xE2\x80\xA8 b";

std::vector<Behaviour> make() {
    constexpr Read whole = Read::whole, part = Read::part, none = Read::none, unsure = Read::any;
    constexpr Press done = Press::done, refused = Press::refused, any = Press::any;
    return {
        {"is honest"},
        // Time.
        {"never answers", none, refused, {}, on("", silence)},
        {"never says its children", none, refused, {}, on("GetChildren", silence)},
        {"never says its key bindings", none, refused, {}, on("GetKeyBinding", silence)},
        {"never says its names", none, refused, {}, on("Name", silence)},
        {"answers each question 30 ms late", whole, done, {}, on("", late(30))},
        {"answers each question 650 ms late", none, refused, {}, on("", late(650))},
        {"answers after the time is over", none, refused, {}, on("", late(900))},
        {"stalls inside an answer, on the bus",
         none,
         refused,
         {},
         before("GetKeyBinding",
                [](Peer& peer, const Ask&) {
                    if (++peer.counter == 5) peer.relay->allowance = 50;
                }),
         {},
         true},
        {"breaks off inside an answer, on the bus",
         none,
         refused,
         [](Peer& peer) { peer.relay->closesWhenSpent = true; },
         before("GetKeyBinding",
                [](Peer& peer, const Ask&) {
                    if (++peer.counter == 5) peer.relay->allowance = 50;
                }),
         {},
         true},
        {"drips its answers byte by byte, on the bus",
         none,
         refused,
         [](Peer& peer) { peer.relay->dripMicroseconds = 5000; },
         {},
         {},
         true},
        // Its own address.
        {"is honest at its own address", whole, done, withOwnAddress()},
        {"stalls inside an answer, at its own address", whole, done,
         withOwnAddress([](Peer& peer) { peer.ownRelay.allowance = 100; })},
        {"stalls late inside an answer, at its own address", unsure, any,
         withOwnAddress([](Peer& peer) { peer.ownRelay.allowance = 2000; })},
        {"breaks off inside an answer, at its own address", whole, done, withOwnAddress([](Peer& peer) {
             peer.ownRelay.closesWhenSpent = true;
             peer.ownRelay.allowance = 100;
         })},
        {"breaks off late inside an answer, at its own address", unsure, any, withOwnAddress([](Peer& peer) {
             peer.ownRelay.closesWhenSpent = true;
             peer.ownRelay.allowance = 2000;
         })},
        {"drips its answers byte by byte, at its own address", whole, done,
         withOwnAddress([](Peer& peer) { peer.ownRelay.dripMicroseconds = 5000; })},
        {"talks rubbish at its own address", whole, done,
         withOwnAddress([](Peer& peer) { peer.ownRelay.isRubbish = true; })},
        {"gives an address that leads nowhere", whole, done, withAddress("unix:path=/nowhere/at/all")},
        {"gives an address without form", whole, done, withAddress("\x01:;;=%zz,")},
        {"gives an address of 1 MB", whole, done, withAddress("unix:path=/" + megabyte)},
        {"gives the address of a silent socket", whole, done, [](Peer& peer) { peer.ownAddress = peer.listen(false); }},
        {"gives somebody else's address", whole, done,
         [](Peer& peer) { peer.ownAddress = peer.startStranger("Stranger ").second; }},
        {"gives the bus's own address", whole, done,
         [](Peer& peer) { peer.ownAddress = std::getenv("DBUS_SESSION_BUS_ADDRESS"); }},
        {"gives a command to run as its address", whole, done,
         [](Peer& peer) {
             peer.ownAddress = std::string("unixexec:path=/bin/sh,argv1=-c,argv2=kill -ABRT ") + "$PPID";
         }},
        {"gives an address whose host must be looked up", whole, done, withAddress("tcp:host=nowhere.invalid,port=1")},
        // The shape of the tree.
        {"lists an item as its own child", whole, done, {}, childrenOf(cut, children({{"", cut}}))},
        {"lists a parent as its child", whole, done, {}, childrenOf(cut, children({{"", "/bar"}, {"", "/menu1"}}))},
        {"lists the menu bar as its own child", none, refused, {}, childrenOf("/bar", children({{"", "/bar"}}))},
        {"goes round in a circle", part, done,
         [](Peer& peer) {
             peer.objects["/menu2/item3"].children = {{"", "/menu0"}, {"", "/window"}, {"", root}};
         }},
        {"lists each item three times",
         whole,
         done,
         {},
         childrenOf("/menu1",
                    [](Peer& peer, const Ask& ask) {
                        auto items = peer.objects["/menu1"].children;
                        for (int i = 0; i < 8; ++i) items.push_back(items[static_cast<std::size_t>(i)]);
                        peer.replyChildren(ask.call, items);
                    })},
        {"has 10^6 items", none, refused, prepareChildren(1'000'000), childrenOf("/menu2", preparedAnswer)},
        {"has 10^6 items, at its own address", none, any, withOwnAddress(prepareChildren(1'000'000)),
         childrenOf("/menu2", preparedAnswer)},
        {"has 200,000 items", unsure, any, prepareChildren(200'000), childrenOf("/menu2", preparedAnswer)},
        {"has 200,000 windows", none, refused, prepareChildren(200'000), childrenOf(root, preparedAnswer)},
        {"has panels without end around its menu bar", none, refused, {}, endless("/window", 900, 39)},
        {"has panels without end, with long paths, at its own address", none, refused, withOwnAddress(),
         endless("/window", 1000, 39, std::string(400, 'p'))},
        {"is 10^4 deep", whole, done, {}, endless("/menu2/item3", 1, 33)},
        {"has items without end", unsure, any, {}, endless("/menu2", 100, 35)},
        {"has items without end, with long paths, at its own address", unsure, any, withOwnAddress(),
         endless("/menu2", 100, 35, std::string(480, 'p'))},
        // Texts.
        {"has names of 1 MB", whole, done,
         [](Peer& peer) {
             for (int place = 0; place < 4; ++place) peer.item(2, place).name = megabyte;
         }},
        {"has names of control and direction characters", whole, done, named(controls)},
        {"has empty names", part, done, named("")},
        {"has key bindings of 1 MB", part, done,
         bound({megabyte, ";;<Primary>" + megabyte, ";;F1", ";;F2", ";;F3", ";;F4"})},
        {"has odd key bindings", part, done,
         bound({";;<", ";;>", ";;<>", ";;<<<>", "++++", "Ctrl+", "Ctrl++", ", , ,", ";;;;;;", "F99999999999999999999",
                "\xE2\x80\xAE"
                "Ctrl+A",
                "Ctrl+K, Ctrl+"})},
        {"has a name with NUL, on the bus",
         none,
         refused,
         [](Peer& peer) {
             peer.relay->marker = "Outline";
             peer.relay->replacement = std::string("Out\0ine", 7);
         },
         {},
         {},
         true},
        {"has a name that is no UTF-8, on the bus",
         none,
         refused,
         [](Peer& peer) {
             peer.relay->marker = "Outline";
             peer.relay->replacement = "Out\xFF\xC0\xAFi";
         },
         {},
         {},
         true},
        {"has names that are no UTF-8, at its own address", part, done, withOwnAddress([](Peer& peer) {
             peer.ownRelay.marker = "Outline";
             peer.ownRelay.replacement = std::string("O\0\xFF\xC0\xAF i", 7);
         })},
        // Types and numbers.
        {"answers with wrong types", none, refused, {}, on("", anything)},
        {"answers names with numbers", none, refused, {}, on("Name", aNumber)},
        {"answers key bindings with numbers", none, refused, {}, on("GetKeyBinding", aNumber)},
        {"answers with nothing in it", none, refused, {}, on("", nothing)},
        {"answers every question with an error", none, refused, {}, on("", error)},
        {"answers for states with errors", whole, done, {}, on("GetState", error)},
        {"answers twice",
         whole,
         done,
         {},
         [](Peer& peer, const Ask& ask) {
             if (!ask.isService && ask.what != "DoAction") peer.answer(ask);
             return false;
         }},
        {"has no states", whole, done, withStates({})},
        {"has 1000 words of states", whole, done, withStates(std::vector<std::uint32_t>(1000, ~0U))},
        {"has roles out of range", whole, done,
         [](Peer& peer) {
             std::uint32_t role = ~0U;
             for (auto& [path, object] : peer.objects) {
                 if (path.find("/item") != std::string::npos && path != copy) object.role = role--;
             }
         }},
        {"calls every object a menu bar", whole, any,
         [](Peer& peer) {
             for (auto& [path, object] : peer.objects) object.role = 34;
         }},
        // References.
        {"lists objects that are gone", part, done,
         [](Peer& peer) {
             for (int menu : {0, 2}) {
                 for (int place = 0; place < 4; ++place) peer.objects.erase(Peer::itemPath(menu, place));
             }
         }},
        {"lists objects of another application", part, refused, stranger},
        {"lists another application's window as its own", none, refused,
         [](Peer& peer) {
             peer.objects[root].children = {{peer.startStranger("").first, "/window"}};
         }},
        {"lists objects on connections that do not exist", whole, done,
         [](Peer& peer) {
             for (const char* name : {":9.999", "no.such.name", "not a name", "..", ":"}) {
                 peer.objects["/menu2"].children.push_back({name, "/x"});
             }
             peer.objects["/menu2"].children.push_back({megabyte, "/x"});
         }},
        {"lists the services of the bus as its items", whole, done,
         [](Peer& peer) {
             peer.objects["/menu2"].children.push_back({"org.freedesktop.DBus", "/org/freedesktop/DBus"});
             peer.objects["/menu2"].children.push_back({"org.a11y.atspi.Registry", root});
         }},
        {"lists objects under paths of 60 kB, and under /", whole, done,
         [](Peer& peer) {
             peer.objects["/menu2"].children.push_back({"", "/" + std::string(60'000, 'x')});
             peer.objects["/menu2"].children.push_back({"", "/"});
         }},
        // The cache.
        {"has an honest cache", whole, done, withOwnAddress(), on("GetItems", cache([](CacheRow&) {}))},
        {"never gives its cache", whole, done, withOwnAddress(), on("GetItems", silence)},
        {"gives its cache in a wrong type", whole, done, withOwnAddress(), on("GetItems", aText)},
        {"counts too many children in its cache", whole, done, withOwnAddress(),
         on("GetItems", cache([](CacheRow& row) { row.childCount += 3; }))},
        {"counts too few children in its cache", whole, done, withOwnAddress(),
         on("GetItems", cache([](CacheRow& row) { row.childCount = 0; }))},
        {"counts a negative number of children in its cache", whole, done, withOwnAddress(),
         on("GetItems", cache([](CacheRow& row) { row.childCount = -2'000'000'000; }))},
        {"counts places from -2^31 in its cache", whole, done, withOwnAddress(),
         on("GetItems", cache([](CacheRow& row) { row.place += INT32_MIN; }))},
        {"names itself its parent in its cache", none, refused, withOwnAddress(),
         on("GetItems", cache([](CacheRow& row) { row.parent = row.path; }))},
        {"names all items alike in its cache", whole, refused, withOwnAddress(),
         on("GetItems", cache([](CacheRow& row) { row.name = row.path == cut ? "Copy" : "Other"; }))},
        {"has a cache of 20 MB", unsure, any, prepareCache(150'000, 0, 0), on("GetItems", preparedAnswer)},
        {"has 55,000 rows in its cache", unsure, any, prepareCache(55'000, 0, 0), on("GetItems", preparedAnswer)},
        {"has 20,000 rows with long paths in its cache", unsure, any, prepareCache(20'000, 120, 60),
         on("GetItems", preparedAnswer)},
        {"lists 450,000 children in its cache", unsure, any, prepareListedCache(10, 45'000),
         on("GetItems", preparedAnswer)},
        // The services around it.
        {"comes with a registry that answers 300 ms late",
         whole,
         done,
         {},
         onService("GetChildren",
                   [](Peer& peer, const Ask& ask) {
                       sd_bus_message_ref(ask.call);
                       peer.later(300, [&peer, call = ask.call] {
                           peer.replyChildren(call, {{peer.uniqueName(), root}});
                       });
                   })},
        {"comes with a registry that never answers", none, refused, {}, onService("GetChildren", silence)},
        {"comes with a registry that answers with a number", none, refused, {}, onService("GetChildren", aNumber)},
        {"comes with a registry that lists it 5000 times",
         unsure,
         any,
         {},
         onService("GetChildren",
                   [](Peer& peer, const Ask& ask) {
                       peer.replyChildren(ask.call, std::vector<Ref>(5000, {peer.uniqueName(), root}));
                   })},
        {"is known to the registry by 200,000 objects",
         none,
         refused,
         {},
         onService("GetChildren",
                   [](Peer& peer, const Ask& ask) {
                       std::vector<Ref> all = manyChildren(200'000);
                       for (Ref& one : all) one.bus = peer.uniqueName();
                       peer.replyChildren(ask.call, all);
                   })},
        {"comes with a registry that lists 10^5 applications",
         none,
         refused,
         {},
         onService("GetChildren",
                   [](Peer& peer, const Ask& ask) {
                       std::vector<Ref> all = manyChildren(100'000);
                       for (std::size_t i = 0; i < all.size(); ++i) all[i].bus = ":7." + std::to_string(i);
                       peer.replyChildren(ask.call, all);
                   })},
        {"comes with a launcher that never answers", none, refused, {}, onService("GetAddress", silence)},
        {"comes with a launcher that gives a command to run",
         none,
         refused,
         {},
         onService("GetAddress",
                   [](Peer& peer, const Ask& ask) {
                       peer.reply(ask.call, "s", "unixexec:path=/bin/sh,argv1=-c,argv2=kill -ABRT $PPID");
                   })},
        {"comes with a launcher that does not say whether it is on", none, refused, {}, onService("IsEnabled", aText)},
        // Floods.
        {"floods the reader with signals", unsure, any, {}, before("GetChildren", flood(2000, 2000, false))},
        {"floods the reader with calls", unsure, any, {}, before("GetChildren", flood(2000, 100, true))},
        {"sends signals of 15 MB", unsure, any, {}, before("GetChildren", flood(1, 15 << 20, false))},
        {"floods the one who presses with signals", whole, any, {}, before("DoAction", flood(20'000, 1000, false))},
        // Pressing.
        {"swaps the places of two items before the press",
         whole,
         done,
         {},
         {},
         [](Peer& peer) {
             auto& items = peer.objects["/menu1"].children;
             std::swap(items[0], items[1]);
         }},
        {"swaps two items between two paths before the press",
         whole,
         refused,
         {},
         {},
         [](Peer& peer) { peer.swapContents(copy, cut); }},
        {"swaps two items between the questions before the press",
         whole,
         refused,
         {},
         [](Peer& peer, const Ask& ask) {
             if (peer.counter == 1 && ask.path == copy && ask.what == "GetRole") {
                 peer.swapContents(copy, cut);
                 peer.counter = 2;
             }
             return false;
         },
         [](Peer& peer) { peer.counter = 1; }},
        {"swaps two items between the answers for key and name",
         whole,
         done,
         {},
         [](Peer& peer, const Ask& ask) {
             const bool isRight = peer.objects[copy].name == "Copy";
             const bool turns = ask.what == "GetKeyBinding" ? isRight : ask.what == "Name" && !isRight;
             if (ask.path == copy && turns) peer.swapContents(copy, cut);
             return false;
         }},
        {"renames the item before the press", whole, refused, {}, {}, rename},
        {"turns the item into a push button before the press",
         whole,
         refused,
         {},
         {},
         [](Peer& peer) { peer.objects[copy].role = 43; }},
        {"gives the item another key before the press",
         whole,
         refused,
         {},
         {},
         [](Peer& peer) { peer.objects[copy].keyBinding = ";;<Primary>v"; }},
        {"puts a namesake with another key in its place",
         whole,
         refused,
         {},
         {},
         [](Peer& peer) {
             peer.objects[copy] = {"Copy", 35, {}, ";;<Primary><Shift>c"};
         }},
        {"takes the item away before the press", whole, refused, {}, {}, [](Peer& peer) { peer.objects.erase(copy); }},
        {"disables the item before the press", whole, refused, {}, {}, disable},
        {"quits before the press", whole, refused, {}, {}, [](Peer& peer) { peer.later(0, [] { _exit(0); }); }},
        {"quits on the press", whole, refused, {}, on("DoAction", quit)},
        {"never answers the press", whole, any, {}, on("DoAction", silence)},
        {"answers the press late",
         whole,
         done,
         {},
         before("DoAction",
                [](Peer& peer, const Ask& ask) {
                    peer.pressed(peer.objects[ask.path].name);
                    sleep(1);
                    _exit(0);
                })},
        {"answers the press with an error", whole, refused, {}, on("DoAction", error)},
        {"answers the press with a text", whole, refused, {}, on("DoAction", aText)},
        {"stalls after the reading", whole, refused, {}, {}, [](Peer& peer) { peer.later(0, [] { sleep(5); }); }},
        {"answers the questions before the press 300 ms late",
         whole,
         any,
         {},
         [](Peer& peer, const Ask& ask) { return peer.counter == 1 && on("", late(300))(peer, ask); },
         [](Peer& peer) { peer.counter = 1; }},
        {"enables and disables the item with every question",
         whole,
         any,
         {},
         [](Peer& peer, const Ask& ask) {
             if (ask.what == "GetState" && ask.path == copy && peer.counter > 0 && ++peer.counter % 2 == 0)
                 disable(peer);
             return false;
         },
         [](Peer& peer) { peer.counter = 1; }},
    };
}

}  // namespace

const std::vector<Behaviour>& behaviours() {
    static const std::vector<Behaviour> all = make();
    return all;
}

const Behaviour& places() {
    static const Behaviour behaviour{"places", Read::whole, Press::any, {}, [](Peer& peer, const Ask& ask) {
                                         if (ask.what != "DoAction" && peer.random() % 16 == 0) shake(peer, false);
                                         return false;
                                     }};
    return behaviour;
}

const Behaviour& restless() {
    static const Behaviour behaviour{"restless", Read::whole, Press::any, [](Peer& peer) { shakeByClock(peer, true); }};
    return behaviour;
}

const Behaviour& restlessPlaces() {
    static const Behaviour behaviour{"restless places", Read::whole, Press::any,
                                     [](Peer& peer) { shakeByClock(peer, false); }};
    return behaviour;
}

}  // namespace orlamo::hostile
