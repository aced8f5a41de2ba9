#pragma once

#include "session/Program.h"

#include <QStringList>
#include <functional>

namespace orvane {

/// What an action costs on an engine, in milliseconds. On the embedded engine, where nothing waits: the time that this
/// process has had a processor, which a busy machine does not change much. On a server: the time that went by.
double milliseconds(Engine engine, const std::function<void()>& action);
double median(QVector<double> values);

/// A stretch of a workstation's work: what it sent, and how long a measured one took.
struct Stretch {
    QString name;           ///< empty: what lay between two measured ones
    QStringList statements; ///< in T-SQL, with "begin transaction", "commit transaction" and "rollback transaction"
    double milliseconds = 0;
};

/// Keeps every statement that a program sends from now on, in order, so that a copy of its databases can be brought to
/// the same state.
class Recorder {
public:
    Recorder(Program& program, Engine engine);
    ~Recorder();
    Recorder(const Recorder&) = delete;
    Recorder& operator=(const Recorder&) = delete;

    void measure(const QString& name, const std::function<void()>& action);
    /// The stretches since the last call.
    QList<Stretch> take();

private:
    void note(const QString& tsql);
    void noteRollback();

    Program& m_program;
    Engine m_engine;
    QList<Stretch> m_done;
    Stretch m_now;
    bool m_open = false; ///< a transaction
};

} // namespace orvane
