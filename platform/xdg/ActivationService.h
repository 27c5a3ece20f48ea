#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/RunLoop.h"
#include "platform/xdg/ActivationTicket.h"

struct sd_bus;
struct sd_bus_message;

namespace orlamo::xdg {

/// How a launch found the session.
enum class LaunchOutcome {
    first,       // no other one runs in this session; this one can now be activated
    handedOver,  // the running one has taken the launch over
    noAnswer,    // one is running, but did not answer in time or refused
    noBus,       // there is no session bus to ask; one log line says why
};

/// One wish of the desktop or of a second launch.
struct Activation {
    std::string action;  // empty: the program itself
    ActivationTicket ticket;
};

/// One running program per session bus: owns the program's name there, and lets the desktop and a second launch
/// activate it through org.freedesktop.Application. To open files, an unknown action, and an action with parameters are
/// an error to the caller and a line in the log. Main thread only.
class ActivationService {
public:
    using Handler = std::function<void(const Activation&)>;

    /// The name on the bus, and the actions that it knows; none of them takes parameters.
    ActivationService(std::string name, std::vector<std::string> actions);
    ~ActivationService();
    ActivationService(const ActivationService&) = delete;
    ActivationService& operator=(const ActivationService&) = delete;

    /// Before anything else of the program starts; needs no run loop. Waits at most 1 s for the bus and 1 s for the
    /// running program, which gets this launch's ticket.
    LaunchOutcome launch(const ActivationTicket& ticket);
    /// From now on, with the run loop: called for each activation, also for those that came in since launch(). Only
    /// after an outcome `first`; otherwise it is never called.
    void setHandler(Handler handler);
    /// Called when the bus was lost and answers again, under the same address; it is looked for twice a second as long
    /// as it is gone. This program then has its name back. After setHandler().
    void onReturn(std::function<void()> listener) { returned_ = std::move(listener); }
    /// Answers what has come in so far, without the run loop: for a launch that takes its time. The handler hears of it
    /// once it is set and the loop runs.
    void answerWaiting();

private:
    /// None, or the error that there is no bus.
    int connect();
    void watch();
    void lost();
    void lookForBus();
    int handOver(const ActivationTicket& ticket);
    int answerActivate(sd_bus_message* message);
    int answerActivateAction(sd_bus_message* message);
    int answerOpen(sd_bus_message* message);
    int accept(sd_bus_message* message, Activation activation);
    void close();

    std::string name_;
    std::string path_;  // the name as an object path
    std::vector<std::string> actions_;
    sd_bus* bus_ = nullptr;
    Handler handler_;
    std::function<void()> returned_;
    std::unique_ptr<RunLoop::Handle> watch_;
    std::unique_ptr<RunLoop::Handle> search_;                       // while the bus is gone
    std::shared_ptr<bool> isAlive_ = std::make_shared<bool>(true);  // for the first look at what came in
};

}  // namespace orlamo::xdg
