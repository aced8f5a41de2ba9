#pragma once

#include <QStringList>

namespace orvane {

/// The statements on the billing database that read, change or delete rows while the program starts and while every action that moves money is
/// laid, entered and done; each once. Recorded on the first call.
const QStringList& recordedStatements();

} // namespace orvane
