#include "demo/Check.h"

#include "data/dialect/Catalog.h"
#include "demo/IntegrityCheck.h"

namespace orvane {

namespace {

/// Of one check at most so many findings are told; the rest is counted.
constexpr int toldFindings = 20;

/// One check: its statement gives a row for each fault; the sentence takes the row's columns in order as %1, %2, ...
struct Check {
    const char* name;
    SqlLiteral statement;
    const char* sentence;
};

/// The receipts that take another one back, with the number of that one, which stands behind the 20 letters of the
/// mark.
#define REVERSALS                                                                                                      \
    "(select ReceiptNo,billNo,AmountPaid,SUBSTRING(Remarks, 21, 50) as Reversed from Payments "                        \
    "where Remarks like 'REVERSAL for RctNo: %')"

/// The bills of which an item that a receipt covers was changed.
#define ADJUSTED_PAID_BILLS                                                                                            \
    "(select distinct p.billNo from BillingDetailsAdjust j inner join PaymentDetails p "                               \
    "on p.billNo = j.billNo and p.BillItem = j.BillItem)"

/// Every line, waiting item and trace of a change that bears the name of a balance carried from earlier visits.
#define CARRIED_BALANCES                                                                                               \
    "(select consultID as billNo,drgName as Item from BillAccum "                                                      \
    "where drgName in ('PREVIOUS DEBT', 'PREVIOUS CREDIT') "                                                           \
    "union all select billNo,drgName as Item from BillingDetails "                                                     \
    "where drgName in ('PREVIOUS DEBT', 'PREVIOUS CREDIT') "                                                           \
    "union all select billNo,BillItem as Item from BillingDetailsAdjust "                                              \
    "where BillItem in ('PREVIOUS DEBT', 'PREVIOUS CREDIT'))"

constexpr Check billingChecks[] = {
    {"visit number", "select top 1000 consultID,count(*) as N from hRecords group by consultID having count(*) > 1",
     "%2 visits bear the number %1"},
    {"outlet visit number",
     "select top 1000 consultID,count(*) as N from hRecordsPublic group by consultID having count(*) > 1",
     "%2 outlet visits bear the number %1"},
    {"bill number", "select top 1000 billNo,count(*) as N from Billing group by billNo having count(*) > 1",
     "%2 bills bear the number %1"},
    {"receipt number",
     "select top 1000 ReceiptNo,count(*) as N from Payments where ReceiptNo not like 'SN%' group by ReceiptNo having "
     "count(*) > 1",
     "%2 receipts bear the number %1"},
    {"item billed twice",
     "select top 1000 SNo,count(*) as N from BillingDetails where SNo is not null group by SNo having count(*) > 1",
     "the item %1 is billed %2 times"},
    {"running account",
     "select top 1000 PNo,SNo,RunningTotal,Expected from (select PNo,SNo,RunningTotal,"
     "Amount + isnull(lag(RunningTotal) over (partition by PNo order by SNo), 0) as Expected from Tranxaction) t "
     "where abs(RunningTotal - Expected) > 0.005 order by SNo",
     "patient %1: the balance of entry %2 is %3, but the balance before it and its amount make %4"},
    {"patient's balance",
     "select top 1000 p.PNo,p.DebtBF,t.RunningTotal from (select PNo,max(SNo) as SNo from Tranxaction group by PNo) l "
     "inner join Tranxaction t on t.SNo = l.SNo inner join hPatients p on p.PNo = l.PNo "
     "where abs(isnull(p.DebtBF, 0) - isnull(t.RunningTotal, 0)) > 0.005",
     "patient %1: the balance in the patient's row is %2, but the last entry of the account says %3"},
    {"account without patient",
     "select top 1000 t.PNo,count(*) as N from Tranxaction t where not exists (select p.PNo from hPatients p where "
     "p.PNo = t.PNo) "
     "and not exists (select q.SNo from hPatientsPublic q where q.PNo = t.PNo) group by t.PNo",
     "%2 account entries are of the patient %1, whom nobody registered"},
    // A bill from a paper receipt (type CASH) states its amount without lines.
    {"amount billed",
     "select top 1000 b.billNo,b.Amountbilled,d.SubTotal from (select billNo,sum(SubTotal) as SubTotal from "
     "BillingDetails "
     "group by billNo) d inner join Billing b on b.billNo = d.billNo "
     "where isnull(b.billType, '') <> 'CASH' and abs(isnull(b.Amountbilled, 0) - isnull(d.SubTotal, 0)) > 0.005",
     "bill %1: billed %2, but its lines make %3"},
    {"amount paid",
     "select top 1000 b.billNo,b.AmountPaid,y.AmountPaid as Receipts from (select billNo,sum(AmountPaid) as AmountPaid "
     "from Payments "
     "group by billNo) y inner join Billing b on b.billNo = y.billNo "
     "where abs(isnull(b.AmountPaid, 0) - isnull(y.AmountPaid, 0)) > 0.005",
     "bill %1: paid %2, but its receipts make %3"},
    // A paper receipt's number may come twice, so its parts cannot be told apart.
    {"ways of payment",
     "select top 1000 y.ReceiptNo,y.AmountPaid,t.AmountPaid as Parts from (select ReceiptNo,sum(AmountPaid) as "
     "AmountPaid "
     "from PaymentTypes group by ReceiptNo) t inner join Payments y on y.ReceiptNo = t.ReceiptNo "
     "where y.ReceiptNo not like 'SN%' and abs(isnull(y.AmountPaid, 0) - isnull(t.AmountPaid, 0)) > 0.005",
     "receipt %1: paid %2, but its ways of payment make %3"},
    {"receipt's items",
     "select top 1000 y.ReceiptNo,y.AmountPaid,t.AmountPaid as Parts from (select ReceiptNo,sum(AmountPaid) as "
     "AmountPaid "
     "from PaymentDetails group by ReceiptNo) t inner join Payments y on y.ReceiptNo = t.ReceiptNo "
     "where y.ReceiptNo not like 'SN%' and abs(isnull(y.AmountPaid, 0) - isnull(t.AmountPaid, 0)) > 0.005",
     "receipt %1: paid %2, but its items make %3"},
    {"way of payment without receipt",
     "select top 1000 t.SNo,t.ReceiptNo,t.AmountPaid from PaymentTypes t "
     "where not exists (select y.SNo from Payments y where y.ReceiptNo = t.ReceiptNo)",
     "payment %1 of %3 is of the receipt %2, which is not there"},
    {"receipt's item without receipt",
     "select top 1000 t.SNo,t.ReceiptNo,t.AmountPaid from PaymentDetails t "
     "where not exists (select y.SNo from Payments y where y.ReceiptNo = t.ReceiptNo)",
     "item %1 of %3 is of the receipt %2, which is not there"},
    // A visit takes receipts before its bill is made.
    {"receipt without bill",
     "select top 1000 y.ReceiptNo,y.billNo,y.AmountPaid from Payments y "
     "where not exists (select b.ID from Billing b where b.billNo = y.billNo) "
     "and not exists (select h.recID from hRecords h where h.consultID = y.billNo) "
     "and not exists (select q.ID from hRecordsPublic q where q.consultID = y.billNo)",
     "receipt %1 of %3 is for the bill %2, which is neither a bill nor a visit"},
    {"reversal without receipt",
     "select top 1000 r.ReceiptNo,r.AmountPaid,r.billNo,r.Reversed from " REVERSALS " r "
     "where not exists (select y.SNo from Payments y where y.ReceiptNo = r.Reversed and y.billNo = r.billNo)",
     "receipt %1 of %2 reverses the receipt %4, which the bill %3 does not have"},
    // A reversal is rounded to the kobo, so it may differ by half of one.
    {"reversal's amount",
     "select top 1000 ReceiptNo,AmountPaid,Reversed,Paid from (select r.ReceiptNo,r.AmountPaid,r.Reversed,"
     "(select max(y.AmountPaid) from Payments y where y.ReceiptNo = r.Reversed and y.billNo = r.billNo) as Paid "
     "from " REVERSALS " r where not exists (select y.SNo from Payments y where y.ReceiptNo = r.Reversed "
     "and y.billNo = r.billNo and abs(y.AmountPaid + r.AmountPaid) < 0.006)) t where Paid is not null",
     "receipt %1 reverses the receipt %3 with %2, but that one is of %4"},
    // The number of a paper receipt may come twice; each of them may be reversed once.
    {"receipt reversed again",
     "select top 1000 t.Reversed,t.billNo,t.Reversals,t.Total from (select Reversed,billNo,count(*) as Reversals,"
     "sum(AmountPaid) as Total from " REVERSALS " r where AmountPaid < 0 group by Reversed,billNo "
     "having count(*) > 1) t where t.Reversals > (select count(*) from Payments y "
     "where y.ReceiptNo = t.Reversed and y.billNo = t.billNo)",
     "receipt %1 of the bill %2 is reversed %3 times, with %4 in all"},
    // A line without an item of a visit (a discount) bears a negative number.
    {"bill line without item",
     "select top 1000 d.SNo,d.billNo,d.drgName from BillingDetails d "
     "where d.SNo > 0 and not exists (select a.SNo from BillAccum a where a.SNo = d.SNo)",
     "bill %2: the line %3 is of the item %1, which is not there"},
    {"saved visit without bill",
     "select top 1000 h.consultID from hRecords h where h.BillDate is not null "
     "and exists (select d.detID from BillingDetails d where d.billNo = h.consultID) "
     "and not exists (select b.ID from Billing b where b.billNo = h.consultID)",
     "the visit %1 was saved with lines, but it has no bill"},
    // Items are covered by number or by name, and either table may have been given another name since. A line that was
    // covered under the name of another one and renamed later shows in the trace of the changes.
    {"covered item without payment",
     "select top 1000 a.SNo,a.consultID,a.drgName from BillAccum a left join BillingDetails d on d.SNo = a.SNo "
     "left join " ADJUSTED_PAID_BILLS " t on t.billNo = a.consultID "
     "where a.isRct = 1 and t.billNo is null and not exists (select p.SNo from PaymentDetails p "
     "where p.billNo = a.consultID and (p.snoID = a.SNo or p.BillItem = a.drgName or p.BillItem = d.drgName))",
     "visit %2: the item %1, %3, is marked as covered by a receipt, but no receipt covers it"},
    {"covered line without payment",
     "select top 1000 d.SNo,d.billNo,d.drgName from BillingDetails d left join BillAccum a on a.SNo = d.SNo "
     "left join " ADJUSTED_PAID_BILLS " t on t.billNo = d.billNo "
     "where d.isRct = 1 and t.billNo is null and not exists (select p.SNo from PaymentDetails p "
     "where p.billNo = d.billNo and (p.snoID = d.SNo or p.BillItem = d.drgName or p.BillItem = a.drgName))",
     "bill %2: the line %3 of the item %1 is marked as covered by a receipt, but no receipt covers it"},
    {"correction without patient",
     "select top 1000 r.SNo,r.billNo,r.PNo,r.Debt from hDebtReview r "
     "where not exists (select p.PNo from hPatients p where p.PNo = r.PNo) "
     "and not exists (select q.SNo from hPatientsPublic q where q.PNo = r.PNo)",
     "correction %1 of %4 on the bill %2 is of the patient %3, whom nobody registered"},
    // A deleted visit is known by what it leaves: items, and the traces of those that were removed.
    {"correction without bill",
     "select top 1000 r.SNo,r.billNo,r.Debt from hDebtReview r "
     "where not exists (select h.recID from hRecords h where h.consultID = r.billNo) "
     "and not exists (select q.ID from hRecordsPublic q where q.consultID = r.billNo) "
     "and not exists (select b.ID from Billing b where b.billNo = r.billNo) "
     "and not exists (select a.SNo from BillAccum a where a.consultID = r.billNo) "
     "and not exists (select j.SNo from BillingDetailsAdjust j where j.billNo = r.billNo)",
     "correction %1 of %3 is of the bill %2, which is not there"},
    // A debt carried is minus; a credit stands as its price does. A line that was renamed leaves a correction of either
    // sign, and where a bill carries both names the row does not say of which it is.
    {"correction's sign",
     "select top 1000 r.SNo,r.billNo,r.Debt,c.Item from hDebtReview r "
     "inner join (select billNo,min(Debt) as Lowest,max(Debt) as Highest from hDebtReview group by billNo) s "
     "on s.billNo = r.billNo inner join (select billNo,min(Item) as Item from " CARRIED_BALANCES " l group by billNo "
     "having min(Item) = max(Item)) c on c.billNo = r.billNo where (s.Lowest >= 0 or s.Highest <= 0) "
     "and c.Item = 'PREVIOUS DEBT' and r.Debt > 0",
     "correction %1 of %3 on the bill %2 has the wrong sign for its %4"},
    {"approval code without visit",
     "select top 1000 c.SNO,c.ApprvCode,c.consultID from hApprvCode c "
     "where not exists (select h.recID from hRecords h where h.consultID = c.consultID) "
     "and not exists (select q.ID from hRecordsPublic q where q.consultID = c.consultID) "
     "and not exists (select b.ID from Billing b where b.billNo = c.consultID) "
     "and not exists (select a.SNo from BillAccum a where a.consultID = c.consultID) "
     "and not exists (select g.SNo from hconsulting g where g.consultID = c.consultID) "
     "and not exists (select j.SNo from BillingDetailsAdjust j where j.billNo = c.consultID)",
     "approval %1 with the code %2 is of the visit %3, which is not there"},
};

#undef REVERSALS
#undef ADJUSTED_PAID_BILLS
#undef CARRIED_BALANCES

constexpr Check accountingChecks[] = {
    {"ledger transaction",
     "select top 1000 TranID,sum(Amount) as Total from (select TranID,Amount from Tranxaction union all "
     "select TranID,Amount from TranxactionTemp) t group by TranID having abs(sum(Amount)) > 0.005",
     "the legs of transaction %1 make %2 instead of nothing"},
};

/// Money that must be stated: without it a sum leaves the row out silently.
constexpr const char* demandedMoney[][2] = {
    {"Tranxaction", "Amount"},      {"Tranxaction", "RunningTotal"},  {"Payments", "AmountPaid"},
    {"PaymentTypes", "AmountPaid"}, {"PaymentDetails", "AmountPaid"}, {"BillAccum", "SubTotal"},
    {"BillingDetails", "SubTotal"},
};

const QString nullMoney = "amount that is not stated";
const QString noNumber = "amount that is no number";

class Checker {
public:
    Checker(Connection& connection, CheckReport& report) : m_connection(connection), m_report(report) {}

    void run(const Check& check) {
        const Recordset rows(m_connection, Sql(check.statement));
        int told = 0;
        for (Recordset row = rows; !row.eof() && told < toldFindings; row.moveNext(), ++told) {
            QString sentence = QString::fromLatin1(check.sentence);
            for (int column = 0; column < int(row.columns().size()); ++column)
                sentence.replace(QLatin1Char('%') + QString::number(column + 1), shown(row, column));
            m_report.findings.append(QStringLiteral("%1: %2").arg(QLatin1String(check.name), sentence));
        }
        if (rows.count() > told)
            m_report.remarks.append(
                QStringLiteral("%1: and %2 more").arg(QLatin1String(check.name)).arg(rows.count() - told));
    }

    /// Money and quantities of every table that are infinite or no number at all; a text in a number column sorts above
    /// all numbers.
    void runNumbers(const QString& database) {
        for (const Table* table : Catalog::instance().tables(database)) {
            for (const Column& column : table->columns) {
                if (column.kind == ColumnKind::Number)
                    count(noNumber, *table, QStringLiteral("[%1] > 1e300 or [%1] < -1e300").arg(column.name),
                          column.name);
            }
        }
    }

    void runDemanded() {
        for (const auto& [tableName, column] : demandedMoney) {
            for (const Table* table : Catalog::instance().tables("billing"))
                if (table->name == QLatin1String(tableName))
                    count(nullMoney, *table, QStringLiteral("[%1] is null").arg(QLatin1String(column)),
                          QLatin1String(column));
        }
    }

private:
    static QString shown(const Recordset& row, int column) {
        return row.value(column).typeId() == QMetaType::Double ? QString::number(row.value(column).toDouble(), 'f', 2)
                                                               : row.text(column);
    }

    void count(const QString& check, const Table& table, const QString& condition, const QString& column) {
        const Recordset counted =
            m_connection.run(QStringLiteral("select count(*) as N from [%1] where %2").arg(table.name, condition));
        if (const qlonglong rows = counted.integer("N"); rows > 0)
            m_report.findings.append(QStringLiteral("%1: %2.%3 in %4 row(s)").arg(check, table.name, column).arg(rows));
    }

    Connection& m_connection;
    CheckReport& m_report;
};

} // namespace

CheckReport checkDatabases(Program& program) {
    CheckReport report;
    Connection billing = program.openBilling();
    Connection accounting = program.openAccounting();
    checkIntegrity(billing, "billing database", report);
    checkIntegrity(accounting, "accounting database", report);
    if (billing.engine() == Engine::Sqlite) { // elsewhere the audit trail lies in the billing database
        Connection audit = billing.beside("Audit");
        checkIntegrity(audit, "audit database", report);
    }
    // The rows of a damaged database cannot be read, or say nothing.
    if (!report.findings.isEmpty())
        return report;
    Checker ofBilling(billing, report);
    for (const Check& check : billingChecks)
        ofBilling.run(check);
    ofBilling.runNumbers("billing");
    ofBilling.runDemanded();
    Checker ofAccounting(accounting, report);
    for (const Check& check : accountingChecks)
        ofAccounting.run(check);
    ofAccounting.runNumbers("accounting");
    return report;
}

QStringList checkNames() {
    QStringList names = {nullMoney, noNumber};
    for (const Check& check : billingChecks)
        names.append(QString::fromLatin1(check.name));
    for (const Check& check : accountingChecks)
        names.append(QString::fromLatin1(check.name));
    return names;
}

} // namespace orvane
