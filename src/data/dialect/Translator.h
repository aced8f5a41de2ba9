#pragma once

#include "data/Engine.h"

#include <QString>
#include <QStringList>

namespace orvane {

/// One T-SQL statement of the system's own dialect in the words of `engine`. Works on tokens (a lexer), never on
/// patterns, so text inside quotes is never touched except for the trailing blanks of a compared literal. Serves both
/// the statements of the screens and the table, index and view definitions of schema/. Raises DataError for a statement
/// that ends inside quotes, brackets or a comment, is nested too deeply, or holds a mark that is no part of the
/// dialect.
QString translate(const QString& tsql, Engine engine);

/// The statements of a schema script: split at lines that hold only "go", comments and empty ones dropped.
QStringList splitScript(const QString& script);

} // namespace orvane
