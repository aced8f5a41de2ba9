#pragma once

#include "data/Engine.h"
#include "data/Lexer.h"

namespace orvane {

/// Whether the statement is "create table ..." or "create [unique] index ...".
bool isDefinition(const Tokens& tokens);

/// A table or index definition in the words of `engine`. An identity column becomes SQLite's autoincrement primary key,
/// so that a number is never given twice; another primary key beside it becomes unique. On PostgreSQL an index whose
/// name ends in "Prefix" serves the prefix search that the translator writes for "like 'ab%'".
QString translateDefinition(const Tokens& tokens, Engine engine);

} // namespace orvane
