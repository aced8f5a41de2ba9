#include "bench/BareEngine.h"
#include "bench/PgSession.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace orvane {

namespace {

/// Rows of a plan's step over all its rounds.
qint64 rowsOf(const QJsonObject& step, const char* count) {
    return qint64(step[QLatin1String(count)].toDouble() * step["Actual Loops"].toDouble(1));
}

/// A step that reads a table: "Index Scan ixBillingPNo on billing (pno = 'P/1')".
QString sourceOf(const QJsonObject& step) {
    const QString condition = step["Index Cond"].toString();
    return QStringLiteral("%1 %2 on %3 %4")
        .arg(step["Node Type"].toString(), step["Index Name"].toString(), step["Relation Name"].toString(),
             condition.isEmpty() ? step["Filter"].toString() : condition)
        .simplified();
}

/// Adds what a step of a plan and those under it read.
void addStep(Examination& found, const QJsonObject& step) {
    if (step.contains("Relation Name") && step["Node Type"] != QLatin1String("ModifyTable")) {
        found.plan << sourceOf(step);
        const bool narrowed = step.contains("Index Cond") || step.contains("Recheck Cond");
        found.stepsOver += rowsOf(step, "Rows Removed by Filter") + (narrowed ? 0 : rowsOf(step, "Actual Rows"));
    }
    for (const QJsonValue& below : step["Plans"].toArray())
        addStep(found, below.toObject());
}

bool canBeExplained(const QByteArray& text) {
    const QByteArray start = text.trimmed().left(6).toLower();
    return start == "select" || start == "insert" || start == "update" || start == "delete";
}

class BarePostgresql : public BareEngine {
public:
    BarePostgresql(const HomeServer& server, const QDateTime& clock)
        : BareEngine(Engine::Postgresql), m_billing(server.entry, server.login, server.database()),
          m_audit(server.entry, server.login, server.database()),
          m_accounting(server.entry, server.login, server.database("accounting")) {
        for (PgSession* session : {&m_billing, &m_audit, &m_accounting})
            session->run("select set_config('orvane.clock', '" + clock.toString("yyyy-MM-dd HH:mm:ss").toUtf8() +
                         "', false)");
    }

    void run(const BareStatement& statement) override { sessionOf(statement).run(statement.text); }

    Examination examine(const BareStatement& statement) override {
        Examination found;
        if (!canBeExplained(statement.text)) {
            found.rows = sessionOf(statement).run(statement.text);
            return found;
        }
        const QStringList answer =
            sessionOf(statement).ask("explain (analyze, buffers, timing off, format json) " + statement.text);
        const QJsonObject step =
            QJsonDocument::fromJson(answer.join(QString()).toUtf8())[0].toObject()["Plan"].toObject();
        addStep(found, step);
        found.rows = rowsOf(step, "Actual Rows");
        found.work = qint64(step["Shared Hit Blocks"].toDouble() + step["Shared Read Blocks"].toDouble());
        return found;
    }

private:
    PgSession& sessionOf(const BareStatement& statement) {
        return statement.accounting ? m_accounting : statement.audit ? m_audit : m_billing;
    }

    PgSession m_billing;
    PgSession m_audit;
    PgSession m_accounting;
};

} // namespace

std::unique_ptr<BareEngine> openBarePostgresql(const HomeServer& server, const QDateTime& clock) {
    return std::make_unique<BarePostgresql>(server, clock);
}

} // namespace orvane
