#pragma once

#include "data/Engine.h"

#include <QStringList>

namespace orvane {

/// The login under which the program reaches its servers where nothing else is set.
inline constexpr const char* kProgramLogin = "zorva";

/// The statements, in the engine's own words, that give a login what the program and its checks do in "billing" or
/// "accounting", and no more. None on the embedded engine, where a database is its owner's file, and none for "audit",
/// which on a server is a table of "billing".
QStringList rightsStatements(Engine engine, const QString& database, const QString& login);
/// The same as one script.
QString rightsScript(Engine engine, const QString& database, const QString& login);

} // namespace orvane
