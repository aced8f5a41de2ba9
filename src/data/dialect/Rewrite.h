#pragma once

#include "data/dialect/Lexer.h"

#include <QStringList>

namespace orvane {

/// Names of the tables and views that a statement reads or writes, in order of appearance.
QStringList sourcesOf(const Tokens& tokens);

/// The start of the operand that ends at `last`: a name with its qualifiers, a literal, a call, or a parenthesised
/// part.
qsizetype operandStart(const Tokens& tokens, qsizetype last);
/// The end (one behind) of the operand that starts at `first`.
qsizetype operandEnd(const Tokens& tokens, qsizetype first);

/// "x not in (select k from t ...)" as "(x is not null and not exists (select 1 from (select k as orvane_key from t
/// ...) orvane_in where orvane_in.orvane_key = x))": a null among the keys hides no row, and an index on k serves it.
/// "x in (select distinct k from t ...)" likewise: the engine would read all of t to make its keys distinct.
void rewriteIn(Tokens& tokens);

/// "+" between texts as "||". A chain of "+" joins texts when one of its operands is a text: a literal, a text function
/// or a column that the schema declares as text.
void rewriteTextJoins(Tokens& tokens);

/// "x like 'ab%'" as "(x >= 'ab' and x < 'ab...')" for PostgreSQL, whose columns compare without regard to case: the
/// index of x serves the search and its order. What the range does not settle is "lower(x) like 'ab_c%'"; a backslash
/// is no escape in T-SQL and is doubled there.
void rewriteLikeForPostgresql(Tokens& tokens);

/// Literals that stand beside a column or a comparison, as T-SQL understands them: trailing blanks of a compared text
/// do not count; an empty text is 0 for a number column and null for a date column; a date column takes the date part
/// only, a date-time column the full form; a number beside a text column is its text.
void rewriteLiterals(Tokens& tokens);

} // namespace orvane
