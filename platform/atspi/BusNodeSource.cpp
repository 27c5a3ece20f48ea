#include "platform/atspi/BusNodeSource.h"

#include <systemd/sd-bus.h>

#include <array>
#include <utility>

namespace orlamo::atspi {
namespace {

constexpr const char* accessible = "org.a11y.atspi.Accessible";
constexpr const char* action = "org.a11y.atspi.Action";
constexpr const char* properties = "org.freedesktop.DBus.Properties";
// More than is ever reported: the reader sees that there were too many.
constexpr std::size_t mostChildren = 10'001;
constexpr std::size_t longestPath = 512;
constexpr std::size_t longestText = 64 * 1024;

std::string boundedText(const char* text) {
    return std::string(text, strnlen(text, longestText));
}

Answer readChildren(sd_bus_message* reply, const std::string& bus) {
    if (sd_bus_message_enter_container(reply, 'a', "(so)") < 0) return {};
    std::vector<ObjectRef> children;
    const char *name = nullptr, *path = nullptr;
    while (children.size() < mostChildren && sd_bus_message_read(reply, "(so)", &name, &path) > 0) {
        const std::string_view pathView(path);
        if (pathView.size() > longestPath || pathView == "/org/a11y/atspi/null") continue;
        children.push_back({*name == '\0' ? bus : std::string(name), std::string(pathView)});
    }
    return children;
}

Answer readTextVariant(sd_bus_message* reply) {
    const char* text = nullptr;
    if (sd_bus_message_read(reply, "v", "s", &text) < 0) return {};
    return boundedText(text);
}

Answer readStates(sd_bus_message* reply) {
    if (sd_bus_message_enter_container(reply, 'a', "u") < 0) return {};
    std::uint64_t states = 0;
    std::uint32_t word = 0;
    for (int shift = 0; shift < 64 && sd_bus_message_read_basic(reply, 'u', &word) > 0; shift += 32) {
        states |= static_cast<std::uint64_t>(word) << shift;
    }
    return states;
}

}  // namespace

BusNodeSource::BusNodeSource(Connection& connection, Deadline deadline)
    : connection_(connection), deadline_(deadline) {}

BusNodeSource::~BusNodeSource() {
    connection_.cancel(this);
}

Call BusNodeSource::callFor(const ObjectRef& object, Question question) {
    switch (question) {
        case Question::children:
            return {object.bus, object.path, accessible, "GetChildren"};
        case Question::name:
            return {object.bus, object.path, properties, "Get", {accessible, "Name"}};
        case Question::role:
            return {object.bus, object.path, accessible, "GetRole"};
        case Question::states:
            return {object.bus, object.path, accessible, "GetState"};
        case Question::keyBinding:
            break;
    }
    return {object.bus, object.path, action, "GetKeyBinding", {std::int32_t{0}}};
}

Answer BusNodeSource::answerFrom(sd_bus_message* reply, Question question, const std::string& bus) {
    if (reply == nullptr || sd_bus_message_is_method_error(reply, nullptr) > 0) return {};
    switch (question) {
        case Question::children:
            return readChildren(reply, bus);
        case Question::name:
            return readTextVariant(reply);
        case Question::role: {
            std::uint32_t role = 0;
            return sd_bus_message_read(reply, "u", &role) < 0 ? Answer{} : Answer{std::uint64_t{role}};
        }
        case Question::states:
            return readStates(reply);
        case Question::keyBinding:
            break;
    }
    const char* text = nullptr;
    return sd_bus_message_read(reply, "s", &text) < 0 ? Answer{} : Answer{boundedText(text)};
}

void BusNodeSource::ask(const ObjectRef& object, Question question, Receive receive) {
    ++calls_;
    connection_.call(
        callFor(object, question),
        [question, bus = object.bus, receive = std::move(receive)](sd_bus_message* reply) {
            receive(answerFrom(reply, question, bus));
        },
        this);
}

bool BusNodeSource::wait() {
    const std::array<Connection*, 1> connections{&connection_};
    return waitForAnswers(connections, deadline_);
}

}  // namespace orlamo::atspi
