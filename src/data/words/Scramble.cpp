#include "data/words/Scramble.h"

#include <string_view>

namespace orvane {

namespace {

/// The stored form of the characters 33 to 126, in their order. Stored passwords depend on it: it never changes.
constexpr std::string_view table = R"(8(je@Xdrcf/F{yWK^6+,2nl'=CbJg&_q4TAB"s]GED>P%-L)"
                                   R"(uI9YRM.*Vh<\iv)UN1at$0|!zO}xZ`:;w5mo?3QHkp[~S7#)";
static_assert(table.size() == 94);

} // namespace

std::optional<QChar> scrambledCharacter(QChar character) {
    const char16_t code = character.unicode();
    if (code < 33 || code >= 127)
        return std::nullopt;
    return QLatin1Char(table[code - 33u]);
}

} // namespace orvane
