#pragma once

#include "session/Program.h"

#include <QStringList>

namespace orvane {

/// How the databases of a new home folder are reached.
struct HomeOptions {
    QString engine = "sqlite"; ///< as orvane.ini writes it
    QString host = "127.0.0.1";
    int port = 0;   ///< 0: the engine's usual one
    QString prefix; ///< stands in front of the database names on a server that holds several hospitals
};

/// Makes the folder and writes made.sys, orvane.ini, the receipt pictures and the sound where they are missing; files
/// that stand are left alone, but for report templates that nobody has edited, which are brought up to date. Raises
/// DataError when one cannot be written.
void writeHomeFiles(const QString& folder, const HomeOptions& options);
/// Writes sysdoc.sys: the user as whom the program starts.
void writeSysDoc(const QString& folder, const QString& userName);

/// Whether a database that the home folder of the program describes is there, whatever it holds.
bool hasDatabase(Program& program);
/// Makes the databases that the home folder of the program describes, with tables, indexes and views, all empty.
/// Raises DataError, and touches nothing, when one of them is there already.
void createDatabases(Program& program);

} // namespace orvane
