#include "session/Scramble.h"

namespace orvane {

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
