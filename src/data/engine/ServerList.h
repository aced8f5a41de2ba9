#pragma once

#include "data/Engine.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace orvane {

/// What a connection string says: "Driver={SQL Server};Server=...;Database=...;UID=...;PWD=...".
struct ConnectionTarget {
    QString server;
    QString database;
    QString user;
    QString password;
};

/// Raises DataError when the server or the database is not named.
ConnectionTarget parseConnectionString(const QString& connectionString);
/// The same connection string with another database.
QString withDatabase(const QString& connectionString, const QString& database);

/// How one server is reached.
struct ServerEntry {
    Engine engine = Engine::Sqlite;
    QString folder = "data"; ///< sqlite: absolute, where the database files lie
    QString host = "127.0.0.1";
    int port = 0;   ///< 0: the engine's own
    QString prefix; ///< stands in front of the database names, so that one server can hold several hospitals
    QString driver = "ODBC Driver 18 for SQL Server";
};

/// The servers of orvane.ini in the home folder; without that file, every server is the embedded engine with the folder
/// "data".
class ServerList {
public:
    /// Raises DataError naming file and line when the file is broken.
    explicit ServerList(const QString& homeFolder);
    /// Raises DataError when orvane.ini is there and does not have the server.
    ServerEntry entry(const QString& server) const;

private:
    void set(ServerEntry& entry, const QString& key, const QString& value, const QString& place) const;

    QString m_homeFolder;
    QString m_file;                        ///< orvane.ini; empty where it is not there
    QHash<QString, ServerEntry> m_entries; ///< by lower-cased server name
    QStringList m_names;                   ///< as the file writes them, in its order
};

} // namespace orvane
