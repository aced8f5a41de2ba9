#include "session/Secrets.h"

#include <sys/resource.h>
#include <sys/stat.h>

namespace orvane {

void keepToOwner() {
    umask(077);
    const rlimit none{};
    setrlimit(RLIMIT_CORE, &none);
}

} // namespace orvane
