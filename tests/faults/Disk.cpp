#include "Disk.h"

#include <cerrno>
#include <dlfcn.h>
#include <unistd.h>

namespace orvane {

namespace {

int writeError = 0;

} // namespace

void failWrites(int error) {
    writeError = error;
}

} // namespace orvane

/// The engine's library finds it in front of the system's: this program exports its symbols.
extern "C" ssize_t pwrite64(int file, const void* data, size_t size, off64_t at) {
    static const auto call = reinterpret_cast<decltype(&pwrite64)>(dlsym(RTLD_NEXT, "pwrite64"));
    errno = orvane::writeError;
    return orvane::writeError ? -1 : call(file, data, size, at);
}
