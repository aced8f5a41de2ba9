#include "proof/PayableCheck.h"

#include "data/rows/Recordset.h"
#include "data/words/Money.h"

#include <QMap>
#include <cmath>

namespace orvane {

namespace {

const QString flaggedName = "supplier's entry flagged and not posted";
const QString postedName = "supplier's entry posted and not flagged";
const QString lostName = "supplier's entry of another ledger";
const QString amountName = "posted supplier's entries";

/// What each posting of the suppliers made of debits, in naira, by its transaction.
QMap<QString, double> readPosted(Connection& accounting) {
    QMap<QString, double> posted;
    for (Recordset row(
             accounting,
             Sql("select t.TranID,sum(t.Amount) as Amount from (select TranID,Amount from Tranxaction where "
                 "Amount > 0 union all select TranID,Amount from TranxactionTemp where Amount > 0) t where "
                 "t.TranID in (select TranID from TranFromAppsTrail where Remarks='PAYABLE') group by t.TranID"));
         !row.eof(); row.moveNext())
        posted.insert(row.text("TranID"), row.number("Amount"));
    return posted;
}

/// A posting takes the invoices of some days and flags the entries of these days, so that an entry whose days differ
/// may be the one without the other; one whose days are the same may not.
void tell(const QString& check, const Recordset& entry, CheckReport& report) {
    const QDate made = entry.date("EntryDate"), invoiced = entry.date("InvoiceDate");
    const QString words = QStringLiteral("%1: entry %2 of invoice %3, entered on %4")
                              .arg(check, entry.text("SNO"), entry.text("InvoiceNo"), made.toString("dd/MM/yyyy"));
    if (made == invoiced)
        report.findings << words;
    else
        report.notices << words + ", its invoice of " + invoiced.toString("dd/MM/yyyy") +
                              "; likely cause: a posting of days that hold the one date and not the other";
}

} // namespace

void checkPayables(Connection& billing, Connection& accounting, const QStringList& open, CheckReport& report) {
    const QMap<QString, double> posted = readPosted(accounting);
    QMap<QString, double> unlike = posted;
    for (Recordset entry(billing, Sql("select SNO,InvoiceNo,EntryDate,InvoiceDate,Amount,isPost,TranID from "
                                      "StockEntryAcct where isPost=1 or TranID is not null"));
         !entry.eof(); entry.moveNext()) {
        const QString tranID = entry.text("TranID");
        if (tranID.isEmpty())
            tell(flaggedName, entry, report);
        else if (!open.contains(tranID) && !posted.contains(tranID) && entry.number("Amount") != 0)
            report.findings << QStringLiteral(
                                   "%1: entry %2 of invoice %3 was posted in transaction %4, which the ledger "
                                   "does not have")
                                   .arg(lostName, entry.text("SNO"), entry.text("InvoiceNo"), tranID);
        else if (!open.contains(tranID) && entry.integer("isPost") == 0)
            tell(postedName, entry, report);
        unlike[tranID] -= std::abs(entry.number("Amount"));
    }
    for (auto one = posted.begin(); one != posted.end(); ++one)
        if (const double more = round2(unlike.value(one.key())); more != 0)
            report.findings << QStringLiteral("%1: transaction %2 is of %3 more than the entries that bear it")
                                   .arg(amountName, one.key(), QString::number(more, 'f', 2));
}

QStringList payableCheckNames() {
    return {flaggedName, postedName, lostName, amountName};
}

} // namespace orvane
