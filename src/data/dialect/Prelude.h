#pragma once

#include "data/Engine.h"

#include <QStringList>

namespace orvane {

/// What an engine needs before the schema's own statements: types and functions that T-SQL has and the engine lacks.
QStringList preludeStatements(Engine engine);

} // namespace orvane
