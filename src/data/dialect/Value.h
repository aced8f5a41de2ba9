#pragma once

#include "data/dialect/Catalog.h"

#include <QVariant>

namespace orvane {

/// A value as text, the same on every engine: null as "", dates yyyy-MM-dd, date-times yyyy-MM-dd HH:mm:ss, times
/// HH:mm:ss, numbers in plain decimals (with an exponent only beyond 15 digits), flags 0 or 1.
QString valueText(const QVariant& value);

/// A value as a column of that kind holds it: null, QString, double, qlonglong, QDate or QDateTime. Raises DataError
/// naming the column for what it may not hold, such as a text of more than `longest` characters (0: any number).
QVariant valueForColumn(const QVariant& value, const QString& column, ColumnKind kind, int longest = 0);

/// As much of a text as the column takes, no character of it half.
QString cutTo(const QString& text, const Column& column);

/// A value as it is bound into a statement: dates as ISO text.
QVariant valueForBinding(const QVariant& value);

/// A value as a literal of SQL: null, a quoted text or a plain number.
QString valueLiteral(const QVariant& value);

/// A text that a statement gave for a date or date-time; the text itself when it is none.
QVariant dateFromText(const QString& text);
QVariant dateTimeFromText(const QString& text);

} // namespace orvane
