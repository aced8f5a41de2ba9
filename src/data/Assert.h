#pragma once

namespace orvane {

/// Writes the broken condition with its place to standard error and aborts. Never returns.
[[noreturn]] void assertionFailed(const char* condition, const char* file, int line);

} // namespace orvane

/// A programmer's error: holds in release builds too, because going on could lose money.
#define ORVANE_ASSERT(condition) ((condition) ? void(0) : ::orvane::assertionFailed(#condition, __FILE__, __LINE__))
