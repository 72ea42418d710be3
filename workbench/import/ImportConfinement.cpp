// SPDX-License-Identifier: MIT
#include "workbench/import/ImportConfinement.h"

#include "workbench/import/MemoryLimit.h"
#include "workbench/modelstream/ImportExit.h"

#include <csignal>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

extern "C" void endOutOfTime(int)
{
    _exit(ImportOutOfTime);
}

bool limit(__rlimit_resource resource, rlim_t soft, rlim_t hard)
{
    const rlimit values{soft, hard};
    return setrlimit(resource, &values) == 0;
}

bool limitTime(int seconds)
{
    // The second limit is for a library that replaces the handler.
    constexpr rlim_t grace = 2;
    const auto soft = static_cast<rlim_t>(seconds);
    return std::signal(SIGXCPU, endOutOfTime) != SIG_ERR && limit(RLIMIT_CPU, soft, soft + grace);
}

bool forbidFiles()
{
    // Ignored, so that a library that tries to write goes on without.
    return std::signal(SIGXFSZ, SIG_IGN) != SIG_ERR && limit(RLIMIT_FSIZE, 0, 0) &&
           limit(RLIMIT_CORE, 0, 0);
}

bool dieWithParent(int answer)
{
    if (std::signal(SIGPIPE, SIG_IGN) == SIG_ERR || prctl(PR_SET_PDEATHSIG, SIGKILL) != 0)
        return false;
    // A parent that died before that sends no signal any more, but nobody holds the other end.
    pollfd state{answer, 0, 0};
    if (poll(&state, 1, 0) < 0)
        return false;
    if (state.revents & POLLERR)
        _exit(ImportUnheard);
    return true;
}

} // namespace

bool ImportConfinement::enter(qint64 memory, int seconds, int answer)
{
    return dieWithParent(answer) && prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && forbidFiles() &&
           limitTime(seconds) && limitMemory(memory);
}
