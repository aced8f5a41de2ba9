#pragma once

#include "data/Engine.h"

#include <QStringList>
#include <optional>

namespace orvane {

/// A statement as an engine's own lexer takes it apart, written without regard to the translator.
struct EngineScan {
    QString skeleton;     ///< the text with '' in place of each literal, national marks left out
    QStringList literals; ///< contents, quotes undoubled
    QString fault;        ///< why the engine would not read it as it is meant; empty when it would
};

/// What `engine` sees in a translated statement: a comment, a quote that is never closed, a literal with a prefix that
/// changes what stands in it, or parentheses that do not match are faults.
EngineScan scanForEngine(const QString& text, Engine engine);

/// A T-SQL text apart by its literals: `between` has one more entry than `literals`. Empty when it ends inside quotes,
/// brackets or a comment.
struct Pieces {
    QStringList between;
    QStringList literals;
};
std::optional<Pieces> splitAtLiterals(const QString& tsql);

} // namespace orvane
