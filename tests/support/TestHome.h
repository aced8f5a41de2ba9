#pragma once

#include "data/rows/Connection.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <ostream>

namespace orvane {

/// The engines that this run tests: the embedded one always, PostgreSQL when ORVANE_TEST_PG="host=... port=..." names a
/// cluster (see scripts/pg-cluster.sh).
QList<Engine> testEngines();
std::string engineName(Engine engine);

/// The program's folder with made.sys, sysdoc.sys, orvane.ini and fresh databases that hold the schema and no rows.
/// All of it goes away with the object.
class TestHome {
public:
    explicit TestHome(Engine engine = Engine::Sqlite);
    ~TestHome();
    /// A copy of another's databases as they stand; nobody may be connected to them.
    TestHome(const TestHome& laid);
    TestHome& operator=(const TestHome&) = delete;

    QString folder() const { return m_folder.path(); }
    Engine engine() const { return m_engine; }
    static QString billing();    ///< the connection string of the billing database, as the program builds it
    static QString accounting(); ///< the same of the Accounting database
    /// Runs PostgreSQL's own statements as the owner of "dunmarch" or "accounting".
    void onServer(const QString& database, const QStringList& statements) const;

private:
    void copy(const QString& fromFolder, const QString& fromPrefix);

    QTemporaryDir m_folder;
    Engine m_engine;
    QString m_prefix; ///< of the databases on the server
};

/// From now on this process opens the databases of a home as a login that has the least rights, which it is given here.
/// On the embedded engine there is no login. The home outlives it.
class LeastRights {
public:
    explicit LeastRights(const TestHome& home);
    ~LeastRights();
    LeastRights(const LeastRights&) = delete;
    LeastRights& operator=(const LeastRights&) = delete;

private:
    const TestHome& m_home;
    QString m_login; ///< empty on the embedded engine
};

/// A test on one workstation's data source, run on each engine.
class EngineTest : public ::testing::TestWithParam<Engine> {
protected:
    TestHome home{GetParam()};
    DataSource data{home.folder()};
    Connection billing = data.open(TestHome::billing());

    /// The first column of the first row; "" without a row.
    QString scalar(const QString& tsql);
};

inline void PrintTo(Engine engine, std::ostream* out) {
    *out << engineName(engine);
}

} // namespace orvane

/// Runs the tests of a suite (a class over EngineTest or any TestWithParam<Engine>) on each engine.
#define ORVANE_ON_EACH_ENGINE(suite)                                                                                   \
    INSTANTIATE_TEST_SUITE_P(On, suite, ::testing::ValuesIn(::orvane::testEngines()),                                  \
                             [](const auto& instance) { return ::orvane::engineName(instance.param); })
