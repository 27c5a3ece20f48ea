#pragma once

#include "platform/Service.h"

namespace orlamo {

/// Hears of the program's life. The program has one.
class ApplicationDelegate {
public:
    virtual ~ApplicationDelegate() = default;
    virtual void applicationWillFinishLaunching() {}
    virtual void applicationDidFinishLaunching() {}
    /// The user launched the running program again. True: the toolkit may do what it usually does.
    virtual bool applicationShouldHandleReopen(bool /*hasVisibleWindows*/) { return true; }
    virtual void applicationWillTerminate() {}
    virtual bool applicationSupportsSecureRestorableState() { return true; }
};

/// This program as the desktop sees it.
class Application : public Service<Application> {
public:
    enum class IgnoringOtherApps { no, yes };
    /// Regular: its windows appear in the taskbar and the switcher. Accessory, as at launch: they do not.
    enum class ActivationPolicy { regular = 0, accessory = 1 };

    virtual ~Application() = default;

    /// Gives the program the input focus: the window that it orders to the front next, else its frontmost one.
    virtual void activate(IgnoringOtherApps ignoring) = 0;
    virtual void setActivationPolicy(ActivationPolicy policy) = 0;
    /// Tells the delegate, then ends the main loop.
    virtual void terminate() = 0;

    /// Not owned; null before it is set.
    ApplicationDelegate* delegate = nullptr;
};

}  // namespace orlamo
