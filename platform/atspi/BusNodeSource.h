#pragma once

#include <cstddef>

#include "platform/atspi/Connection.h"
#include "platform/atspi/NodeSource.h"

struct sd_bus_message;

namespace orlamo::atspi {

/// Objects asked over a connection: the bus, or the program's own address. Its calls end with it.
class BusNodeSource : public NodeSource {
public:
    BusNodeSource(Connection& connection, Deadline deadline);
    ~BusNodeSource() override;
    BusNodeSource(const BusNodeSource&) = delete;
    BusNodeSource& operator=(const BusNodeSource&) = delete;

    void ask(const ObjectRef& object, Question question, Receive receive) override;
    bool wait() override;
    std::size_t calls() const { return calls_; }

    /// The question as a call, and the answer out of its reply (also one that is null or an error).
    static Call callFor(const ObjectRef& object, Question question);
    static Answer answerFrom(sd_bus_message* reply, Question question, const std::string& bus);

private:
    Connection& connection_;
    Deadline deadline_;
    std::size_t calls_ = 0;
};

}  // namespace orlamo::atspi
