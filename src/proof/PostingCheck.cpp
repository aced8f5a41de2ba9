#include "proof/PostingCheck.h"

#include "data/rows/Recordset.h"
#include "data/words/Money.h"

#include <QMap>
#include <QSet>

namespace orvane {

namespace {

const QString receiptsName = "posted receipts";
const QString spreadName = "posted receipts by way or revenue type";
const QString flagName = "invoice flagged without its entry";
const QString entryName = "invoice's entry without its flag";
const QString amountName = "posted invoice";
const QString noteName = "posting left over";

/// Naira by day and by way of payment or revenue type.
using Amounts = QMap<QPair<QDate, QString>, double>;

/// One side of the entry of the receipts.
struct Side {
    const char* words;
    const char* description; ///< of its legs, in front of the way or type
    SqlLiteral flagged;
    int sign; ///< of its legs
};

constexpr Side sides[] = {
    {"ways of payment", "Payment through ",
     "select ReceiptDate as Day,PayType as Kind,sum(AmountPaid) as Amount from PaymentTypes where isPost=1 group by "
     "ReceiptDate,PayType",
     1},
    {"revenue types", "Amount Recvd for ",
     "select ReceiptDate as Day,revType as Kind,sum(AmountPaid) as Amount from PaymentDetails where isPost=1 group by "
     "ReceiptDate,revType",
     -1},
};

QString naira(double amount) {
    return QString::number(round2(amount), 'f', 2);
}

Amounts readFlagged(Connection& billing, const Side& side) {
    Amounts amounts;
    for (Recordset row(billing, Sql(side.flagged)); !row.eof(); row.moveNext())
        amounts[{row.date("Day"), row.text("Kind")}] += row.number("Amount");
    return amounts;
}

Amounts readPosted(Connection& accounting, const Side& side) {
    const QString begins = QString::fromLatin1(side.description);
    Amounts amounts;
    Recordset row(
        accounting,
        Sql("select t.TranDate as Day,t.Description,sum(t.Amount) as Amount from (select "
            "TranID,TranDate,Description,Amount from Tranxaction union all select "
            "TranID,TranDate,Description,Amount from TranxactionTemp) t where t.TranID in (select TranID from "
            "TranFromAppsTrail where Remarks='RECEIPT') group by t.TranDate,t.Description"));
    for (; !row.eof(); row.moveNext())
        if (const QString text = row.text("Description"); text.startsWith(begins))
            amounts[{row.date("Day"), text.mid(begins.size())}] += side.sign * row.number("Amount");
    return amounts;
}

/// What of each key is more in the one than in the other, to the kobo.
Amounts difference(Amounts one, const Amounts& other) {
    for (auto amount = other.begin(); amount != other.end(); ++amount)
        one[amount.key()] -= amount.value();
    erase_if(one, [](std::pair<const QPair<QDate, QString>&, double&> entry) { return round2(entry.second) == 0; });
    return one;
}

void checkSide(Connection& billing, Connection& accounting, const Side& side, CheckReport& report) {
    const Amounts unlike = difference(readFlagged(billing, side), readPosted(accounting, side));
    QMap<QDate, double> ofDay;
    for (auto amount = unlike.begin(); amount != unlike.end(); ++amount)
        ofDay[amount.key().first] += amount.value();
    for (auto amount = unlike.begin(); amount != unlike.end(); ++amount) {
        const auto& [day, kind] = amount.key();
        if (round2(ofDay.value(day)) == 0)
            report.notices << QStringLiteral("%1: %2, %3: %4 more is flagged than posted; likely cause: its type or "
                                             "account was corrected behind the posting")
                                  .arg(spreadName, day.toString("dd/MM/yyyy"), kind, naira(amount.value()));
    }
    for (auto day = ofDay.begin(); day != ofDay.end(); ++day)
        if (round2(day.value()) != 0)
            report.findings << QStringLiteral("%1: of %2, by their %3, %4 more is flagged than posted")
                                   .arg(receiptsName, day.key().toString("dd/MM/yyyy"), QString::fromLatin1(side.words),
                                        naira(day.value()));
}

/// What the ledger has of each invoice, in naira.
QMap<QString, double> readPostedInvoices(Connection& accounting) {
    QMap<QString, double> amounts;
    Recordset row(accounting,
                  Sql("select a.TranNoApp,(select sum(t.Amount) from (select TranID,Amount from Tranxaction union all "
                      "select TranID,Amount from TranxactionTemp) t where t.TranID = a.TranID and t.Amount > 0) as "
                      "Amount from TranFromAppsTrail a where a.Remarks='RECEIVABLE'"));
    for (; !row.eof(); row.moveNext())
        amounts[row.text("TranNoApp")] += row.number("Amount");
    return amounts;
}

void checkInvoices(Connection& billing, Connection& accounting, CheckReport& report) {
    QMap<QString, double> posted = readPostedInvoices(accounting);
    for (Recordset row(billing, Sql("select invNo,AmountBilled from BillsForClients where isPost=1")); !row.eof();
         row.moveNext()) {
        const QString number = row.text("invNo");
        if (!posted.contains(number))
            report.findings
                << QStringLiteral("%1: invoice %2; orvane-db post --left-over posts it").arg(flagName, number);
        else if (round2(posted.value(number) - row.number("AmountBilled")) != 0)
            report.notices << QStringLiteral("%1: invoice %2 is of %3, but posted with %4; likely cause: a later run "
                                             "of its month")
                                  .arg(amountName, number, naira(row.number("AmountBilled")),
                                       naira(posted.value(number)));
        posted.remove(number);
    }
    for (auto entry = posted.begin(); entry != posted.end(); ++entry)
        report.findings << QStringLiteral("%1: invoice %2 of %3").arg(entryName, entry.key(), naira(entry.value()));
}

void tellNotes(Connection& billing, CheckReport& report) {
    for (Recordset row(billing, Sql("select gTranID,kind from PostingNotes")); !row.eof(); row.moveNext())
        report.notices << QStringLiteral("%1: transaction %2 (%3) was cut off or is under way; the next posting, or "
                                         "orvane-db post --left-over, settles it")
                              .arg(noteName, row.text("gTranID"), row.text("kind"));
}

} // namespace

void checkPostings(Connection& billing, Connection& accounting, CheckReport& report) {
    for (const Side& side : sides)
        checkSide(billing, accounting, side, report);
    checkInvoices(billing, accounting, report);
    tellNotes(billing, report);
}

QStringList postingCheckNames() {
    return {receiptsName, spreadName, flagName, entryName, amountName, noteName};
}

} // namespace orvane
