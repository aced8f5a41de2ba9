#pragma once

#include "data/Catalog.h"
#include "data/Lexer.h"

#include <QStringList>

namespace orvane {

/// The names of a result's columns as the statement's select list writes them, then as its views and tables do.
QStringList properHeads(const QStringList& names, const Tokens& statement, const QStringList& sources);

/// The one table of a "select ... from T ..." on that database whose rows can be written; null for anything else.
const Table* writableTable(const Tokens& statement, const QString& database);

} // namespace orvane
