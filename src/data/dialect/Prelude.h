#pragma once

#include "data/Engine.h"

#include <QStringList>

namespace orvane {

/// What an engine needs before the schema's own statements: types and functions that T-SQL has and the engine lacks.
QStringList preludeStatements(Engine engine);
/// Those of them that are made anew in a database that has them, in their present words.
QStringList preludeFunctions(Engine engine);

} // namespace orvane
