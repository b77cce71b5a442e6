#include "systemlimits.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
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

} // namespace SystemLimits
