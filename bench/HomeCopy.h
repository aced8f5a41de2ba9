#pragma once

#include "data/engine/ServerList.h"

#include <QTemporaryDir>

namespace orvane {

/// The billing database of a home folder: on which server it lies, and the login there.
struct HomeServer {
    explicit HomeServer(const QString& homeFolder);

    ConnectionTarget login;
    ServerEntry entry;
    /// The database (billing when none is named) as the server calls it: the name of a file or of a database.
    QString database(const QString& name = {}) const;
};

/// A copy of a home folder with its databases, which a benchmark may write into; all of it goes away with the object.
class HomeCopy {
public:
    /// Nothing may be writing to the databases of `home`. `name` tells the copies of one run apart.
    HomeCopy(const QString& home, const QString& name);
    ~HomeCopy();
    HomeCopy(const HomeCopy&) = delete;
    HomeCopy& operator=(const HomeCopy&) = delete;

    QString folder() const { return m_folder.path(); }
    Engine engine() const { return m_server.entry.engine; }

private:
    void copyFiles();
    void copyDatabases();
    void dropDatabases();
    void writeIni(const QString& home);

    HomeServer m_server;
    QTemporaryDir m_folder;
    QString m_prefix; ///< of the copied databases on their server
};

} // namespace orvane
