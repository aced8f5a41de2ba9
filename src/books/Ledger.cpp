#include "books/Ledger.h"

#include "data/words/Money.h"

namespace orvane {

namespace {

constexpr int longestDescription = 200;
constexpr int ledgerDecimals = 4;
const QString ending = "...";

QString fitted(const QString& description) {
    return description.size() <= longestDescription ? description
                                                    : description.left(longestDescription - ending.size()) + ending;
}

} // namespace

Ledger::Ledger(Connection& open, const BookContext& context)
    : m_counted(context.openSteps), m_connection(open), m_context(context) {
    const Recordset current(m_connection, Sql("select Period from AccountMonth"));
    m_currentPeriod = current.eof() ? QString() : current.text("Period");
    m_period = m_currentPeriod;
}

void Ledger::fetchTranID() {
    const Recordset id = m_connection.call("getTranID");
    m_tranID = id.eof() ? QString() : id.text("tranID");
}

QString Ledger::lookUpPeriod(QDate date) {
    const Recordset open(m_connection,
                         Sql("select top 1 Period,PeriodVal  from AccountMonthOpen where isClose=0 and PrdClose >='")
                             << date << "' order by PeriodVal asc");
    if (!open.eof())
        return open.text("Period");
    m_connection.call("AccountOpenPeriods_Insert");
    const Recordset opened(m_connection,
                           Sql("select top 1 Period,PeriodVal  from AccountMonthOpen where isClose=0 and PrdClose >'")
                               << date << "' order by PeriodVal asc");
    return opened.eof() ? QString() : opened.text("Period");
}

QString Ledger::periodOf(QDate date) {
    const auto found = m_periods.constFind(date);
    if (found != m_periods.constEnd())
        return *found;
    const QString period = lookUpPeriod(date);
    if (period.isEmpty())
        return m_period;
    m_periods.insert(date, period);
    return period;
}

QString Ledger::known(const QString& account) {
    const auto found = m_accounts.constFind(account);
    if (found != m_accounts.constEnd())
        return *found;
    const Recordset chart(m_connection, Sql("select AccountNo from ChartOfAccounts where AccountNo='")
                                            << account << "'");
    return *m_accounts.insert(account, chart.eof() ? m_context.settings.suspenseAccount : account);
}

void Ledger::postToLedger(const LedgerLeg& leg) {
    m_period = periodOf(leg.date);
    m_connection.call("InsertTranxaction", {{"@TranID", m_tranID},
                                            {"@AccountNo", known(leg.account)},
                                            {"@TranNo", m_tranID},
                                            {"@TranDate", leg.date},
                                            {"@CostCenterID", m_context.settings.costCenter},
                                            {"@Amount", roundTo(leg.amount, ledgerDecimals)},
                                            {"@Description", fitted(leg.description)},
                                            {"@TranCat", "j"},
                                            {"@EntryDate", m_context.today},
                                            {"@Period", m_period},
                                            {"@userName", m_context.actor.user}});
}

std::optional<double> Ledger::balance() const {
    const Recordset sum(m_connection,
                        (m_period == m_currentPeriod
                             ? Sql("Select TranID,sum(Amount) as Amount from tranxaction where TranID ='")
                             : Sql("Select TranID,sum(Amount) as Amount from TranxactionTemp where TranID ='"))
                            << m_tranID << "' group by TranID");
    return sum.eof() ? std::nullopt : std::optional(sum.number("Amount"));
}

void Ledger::addTrail(const LedgerTrail& trail) {
    m_connection.execute(Sql("insert into TranFromAppsTrail (TranDate,TranID,TranNoApp,Remarks) values('")
                         << trail.date << "','" << m_tranID << "','" << trail.source << "','" << trail.kind << "')");
}

std::optional<Refusal> imbalance(const Ledger& ledger) {
    const std::optional<double> balance = ledger.balance();
    if (!balance)
        return Refusal::NoLegPosted;
    return *balance == 0 ? std::nullopt : std::optional(Refusal::NotBalanced);
}

bool isPosted(Connection& accounting, const QString& tranID) {
    return !Recordset(accounting, Sql("select top 1 TranID from TranFromAppsTrail where TranID='") << tranID << "'")
                .eof();
}

QSet<QString> postedSources(Connection& accounting, const QString& kind) {
    QSet<QString> sources;
    for (Recordset row(accounting, Sql("select TranNoApp from TranFromAppsTrail where Remarks='") << kind << "'");
         !row.eof(); row.moveNext())
        sources.insert(row.text("TranNoApp"));
    return sources;
}

qlonglong countLegs(Connection& accounting, const QString& source, const QString& kind) {
    const Recordset legs(accounting,
                         Sql("select sum((select count(*) from Tranxaction t where t.TranID=a.TranID)+(select count(*) "
                             "from TranxactionTemp t where t.TranID=a.TranID)) as n from TranFromAppsTrail a where "
                             "a.TranNoApp='")
                             << source << "' and a.Remarks='" << kind << "'");
    return legs.isNull("n") ? 0 : legs.integer("n");
}

} // namespace orvane
