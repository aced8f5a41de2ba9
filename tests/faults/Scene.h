#pragma once

#include "Network.h"
#include "support/MoneyActions.h"

#include <QSqlDatabase>

namespace orvane {

/// A session on one of a test's databases beside the program, in the engine's own words.
class Beside {
public:
    explicit Beside(const QString& homeFolder, const QString& database = "Dunmarch");
    ~Beside();
    Beside(const Beside&) = delete;
    Beside& operator=(const Beside&) = delete;

    QString run(const QString& statement); ///< gives the first column of the first row
    QString databaseName() const { return m_database.databaseName(); }

private:
    QString m_name;
    QSqlDatabase m_database;
};

/// A program before the last press of an action, on databases of its own; on PostgreSQL over a network that breaks.
class Scene {
public:
    Scene(Engine engine, const MoneyAction& action);

    /// What the user was shown after a press.
    struct Told {
        QStringList boxes;
        bool reported = false; ///< as saved
        QString text() const { return boxes.join('\n'); }
    };
    Told press();

    /// The program's waits are short from now on, on connections that it opens anew.
    void hurry() { ws->program.data().setWaits(150, 10); }
    QString figures();                                         ///< seen by another workstation
    QStringList findings();                                    ///< of the check
    QString folder() const { return m_watcherHome->folder(); } ///< of a home that reaches the server over a sound one
    /// Returns when the server has ended every transaction whose program is gone.
    void waitForServer();

    const Engine engine;
    const MoneyAction& action;

private:
    TestHome m_home;

public:
    std::unique_ptr<Network> network; ///< PostgreSQL

private:
    std::unique_ptr<SecondHome> m_watcherHome;

public:
    std::unique_ptr<Workstation> ws;
    std::unique_ptr<Beside> beside; ///< opened by the faults that need it
};

/// What the figures of an action are after it, by a program that nothing disturbs.
QString figuresAfter(const MoneyAction& action);

} // namespace orvane
