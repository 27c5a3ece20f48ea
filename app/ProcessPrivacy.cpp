#include "app/ProcessPrivacy.h"

#include <sys/prctl.h>
#include <sys/resource.h>

#include <cstdlib>

namespace orlamo {

bool keepProcessPrivate() {
    if (std::getenv("ORLAMO_DEBUGGABLE") != nullptr) return false;
    // The hard limit stays, so that a browser started from here can have core files again.
    rlimit limit{};
    const bool isLimited = getrlimit(RLIMIT_CORE, &limit) == 0;
    limit.rlim_cur = 0;
    return isLimited && setrlimit(RLIMIT_CORE, &limit) == 0 && prctl(PR_SET_DUMPABLE, 0, 0, 0, 0) == 0;
}

}  // namespace orlamo
