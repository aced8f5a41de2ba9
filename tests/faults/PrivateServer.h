#pragma once

#include <QTemporaryDir>

namespace orvane {

/// A PostgreSQL cluster of this process, named by ORVANE_TEST_PG while it lives.
class PrivateServer {
public:
    PrivateServer();
    ~PrivateServer();
    PrivateServer(const PrivateServer&) = delete;
    PrivateServer& operator=(const PrivateServer&) = delete;

    static void halt();       ///< as its administrator does: what is not committed is gone
    static void start();      ///< again, on the same port
    static void keepCopy();   ///< of all that it holds now
    static void becomeCopy(); ///< it forgets what came after keepCopy, as a standby does that lagged behind

private:
    QTemporaryDir m_folder;
};

} // namespace orvane
