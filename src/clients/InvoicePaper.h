#pragma once

#include "data/rows/Connection.h"

#include <QHash>

namespace orvane {

/// What the templates of invoices ask for of the client that they are sent to, by his code: {ToName} and, a line each
/// in {ToLines}, to whose attention, the address, telephone and mail, as far as they are known.
QHash<QString, QString> sentToClient(Connection& connection, const QString& name, const QString& code);

/// The same of a patient who pays himself, by his number.
QHash<QString, QString> sentToPatient(Connection& connection, const QString& name, const QString& pno);

} // namespace orvane
