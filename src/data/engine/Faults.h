#pragma once

#include "data/Engine.h"

#include <QSqlError>
#include <QString>

namespace orvane {

/// What a fault of the engine means to the user and what there is to do about it, with the engine's own words behind.
/// `lost`: the connection is gone. `saving`: it hit a transaction, of which therefore nothing is saved.
QString faultText(Engine engine, const QSqlError& error, bool lost, bool saving);

/// The engine's own words, without the marks that its client library puts around them.
QString engineWords(const QSqlError& error);

/// Whether the database may not be written to.
bool isReadOnly(Engine engine, const QSqlError& error);

/// Whether the server ended the connection with this fault.
bool endsConnection(const QSqlError& error);

/// What the engine itself has undone, so that sending it once more writes it once.
bool mayBeSentAgain(const QSqlError& error);

} // namespace orvane
