#pragma once

#include "data/Engine.h"
#include "data/dialect/Lexer.h"

namespace orvane {

/// Whether the statement is "create table ..." or "create [unique] index ...".
bool isDefinition(const Tokens& tokens);

/// A table or index definition in the words of `engine`. An identity column becomes SQLite's autoincrement primary key,
/// so that a number is never given twice; another primary key beside it becomes unique.
QString translateDefinition(const Tokens& tokens, Engine engine);

} // namespace orvane
