// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/systemlimits.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#include <time.h>
#endif

namespace SystemLimits {

long raiseOpenFileLimit(long wanted)
{
#ifdef Q_OS_UNIX
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return -1;
    if (limit.rlim_cur < rlim_t(wanted)) {
        limit.rlim_cur = std::min<rlim_t>(rlim_t(wanted), limit.rlim_max);
        setrlimit(RLIMIT_NOFILE, &limit);
        getrlimit(RLIMIT_NOFILE, &limit);
    }
    return long(limit.rlim_cur);
#else
    Q_UNUSED(wanted);
    return -1;
#endif
}

long long threadCpuMicroseconds()
{
#ifdef Q_OS_UNIX
    timespec now{};
    if (clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now) != 0)
        return -1;
    return (long long)now.tv_sec * 1000000 + now.tv_nsec / 1000;
#else
    return -1;
#endif
}

} // namespace SystemLimits
