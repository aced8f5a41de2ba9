#pragma once

#include <QStringList>

namespace orvane {

/// The statements that screens run on one patient, visit, bill, item or receipt, with sample values, grouped by what
/// the user does. None of them may read a growing table whole.
QStringList screenStatements();

} // namespace orvane
