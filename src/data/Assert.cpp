#include "data/Assert.h"

#include <cstdio>
#include <cstdlib>

namespace orvane {

void assertionFailed(const char* condition, const char* file, int line) {
    std::fprintf(stderr, "assertion failed: %s (%s:%d)\n", condition, file, line);
    std::abort();
}

} // namespace orvane
