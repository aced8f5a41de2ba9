#include "session/Scramble.h"

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

QString scramblePassword(Program& program, const QString& text) {
    QString scrambled;
    for (const QChar character : text) {
        const std::optional<QChar> stored = scrambledCharacter(character);
        if (!stored)
            program.box("Invalid character detected!");
        else
            scrambled += *stored;
    }
    return scrambled;
}

} // namespace orvane
