#pragma once

#include "data/Engine.h"

#include <QStringList>
#include <optional>

namespace orvane {

/// A call of a T-SQL function whose arguments are already in the words of `engine`; null when the engine knows the
/// function by the same name and order. `isnull`, `len`, `right`, `month`, `convert` and their like; one table per
/// function.
std::optional<QString> translateCall(const QString& name, const QStringList& arguments, Engine engine);

/// "cast(value as type)"; `type` is the T-SQL type's words.
QString translateCast(const QString& value, const QString& type, Engine engine);

/// A T-SQL column type, with its size, in the words of `engine`.
QString translateType(const QString& type, Engine engine);

} // namespace orvane
