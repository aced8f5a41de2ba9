#pragma once

#include <QString>
#include <cstdio>
#include <cstdlib>

namespace orvane {

/// What must hold whatever the input is; the fuzzer keeps an input for which it does not.
inline void demand(bool holds, const char* what, const QString& shown = {}) {
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n%s\n", what, qPrintable(shown));
        std::abort();
    }
}

} // namespace orvane
