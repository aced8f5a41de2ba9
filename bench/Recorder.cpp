#include "bench/Recorder.h"

#include <algorithm>
#include <ctime>

namespace orvane {

double milliseconds(Engine engine, const std::function<void()>& action) {
    const clockid_t clock = engine == Engine::Sqlite ? CLOCK_PROCESS_CPUTIME_ID : CLOCK_MONOTONIC;
    timespec start, end;
    clock_gettime(clock, &start);
    action();
    clock_gettime(clock, &end);
    return double(end.tv_sec - start.tv_sec) * 1e3 + double(end.tv_nsec - start.tv_nsec) / 1e6;
}

double median(QVector<double> values) {
    std::sort(values.begin(), values.end());
    return values.isEmpty() ? 0 : values.at(values.size() / 2);
}

Recorder::Recorder(Program& program, Engine engine) : m_program(program), m_engine(engine) {
    m_program.data().setStatementHook([this](const QString& tsql) { note(tsql); });
}

Recorder::~Recorder() {
    m_program.data().setStatementHook({});
}

void Recorder::measure(const QString& name, const std::function<void()>& action) {
    noteRollback();
    m_done << std::exchange(m_now, {});
    m_now.name = name;
    const double taken = milliseconds(m_engine, action);
    noteRollback();
    m_now.milliseconds = taken;
    m_done << std::exchange(m_now, {});
}

QList<Stretch> Recorder::take() {
    noteRollback();
    m_done << std::exchange(m_now, {});
    return std::exchange(m_done, {});
}

void Recorder::note(const QString& tsql) {
    if (tsql == QLatin1String("transaction committed")) {
        m_open = false;
        return;
    }
    noteRollback();
    m_open = m_open || tsql == QLatin1String("begin transaction");
    m_now.statements << tsql;
}

/// A rollback is not announced: the transaction is gone when the next statement comes.
void Recorder::noteRollback() {
    if (!m_open || m_program.data().openTransactions() > 0)
        return;
    m_open = false;
    m_now.statements << QStringLiteral("rollback transaction");
}

} // namespace orvane
