#include "proof/PostingCheck.h"

#include "data/rows/Recordset.h"
#include "data/words/Money.h"
#include "proof/PayableCheck.h"

#include <QMap>
#include <QSet>

namespace orvane {

namespace {

const QString receiptsName = "posted receipts";
const QString spreadName = "posted receipts by way or revenue type";
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

/// Without the transactions of postings that are not settled.
Amounts readPosted(Connection& accounting, const Side& side, const QStringList& open) {
    const QString begins = QString::fromLatin1(side.description);
    Amounts amounts;
    Recordset row(
        accounting,
        Sql("select t.TranID,t.TranDate as Day,t.Description,sum(t.Amount) as Amount from (select "
            "TranID,TranDate,Description,Amount from Tranxaction union all select "
            "TranID,TranDate,Description,Amount from TranxactionTemp) t where t.TranID in (select TranID from "
            "TranFromAppsTrail where Remarks='RECEIPT') group by t.TranID,t.TranDate,t.Description"));
    for (; !row.eof(); row.moveNext())
        if (const QString text = row.text("Description"); text.startsWith(begins) && !open.contains(row.text("TranID")))
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

void checkSide(Connection& billing, Connection& accounting, const Side& side, const QStringList& open,
               CheckReport& report) {
    const Amounts unlike = difference(readFlagged(billing, side), readPosted(accounting, side, open));
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

/// What is posted under a number of its own.
struct Document {
    const char* kind; ///< in the ledger's trail
    const char* words;
    SqlLiteral flagged;
    const char *flagName, *entryName, *amountName;
    const char* mends;     ///< what posts one that is flagged without its entry
    const char* mayDiffer; ///< why its amount may have changed behind the posting; null: it may not
};

constexpr Document documents[] = {
    {"RECEIVABLE", "invoice", "select invNo as Number,AmountBilled as Amount from BillsForClients where isPost=1",
     "invoice flagged without its entry", "invoice's entry without its flag", "posted invoice",
     "; orvane-db post --left-over posts it", "a later run of its month"},
    {"EXPENSE", "voucher",
     "select vouchNo as Number,sum(Amount) as Amount from hExpensePayDetails where isPost=1 group by vouchNo",
     "voucher flagged without its entry", "voucher's entry without its flag", "posted voucher", "", nullptr},
};

/// What the ledger has of each number, in naira, without postings that are not settled.
QMap<QString, double> readPostedDocuments(Connection& accounting, const Document& document, const QStringList& open) {
    QMap<QString, double> amounts;
    Recordset row(accounting,
                  Sql("select a.TranNoApp,a.TranID,(select sum(t.Amount) from (select TranID,Amount from Tranxaction "
                      "union all select TranID,Amount from TranxactionTemp) t where t.TranID = a.TranID and t.Amount > "
                      "0) as Amount from TranFromAppsTrail a where a.Remarks='")
                      << QString::fromLatin1(document.kind) << "'");
    for (; !row.eof(); row.moveNext())
        if (!open.contains(row.text("TranID")))
            amounts[row.text("TranNoApp")] += row.number("Amount");
    return amounts;
}

void tellAmount(const Document& document, const QString& number, double amount, double posted, CheckReport& report) {
    const QString words = QStringLiteral("%1: %2 %3 is of %4, but posted with %5")
                              .arg(QLatin1String(document.amountName), QLatin1String(document.words), number,
                                   naira(amount), naira(posted));
    if (document.mayDiffer)
        report.notices << words + "; likely cause: " + QLatin1String(document.mayDiffer);
    else
        report.findings << words;
}

void checkDocuments(Connection& billing, Connection& accounting, const Document& document, const QStringList& open,
                    CheckReport& report) {
    QMap<QString, double> posted = readPostedDocuments(accounting, document, open);
    const QString of = QLatin1String(document.words);
    for (Recordset row(billing, Sql(document.flagged)); !row.eof(); row.moveNext()) {
        const QString number = row.text("Number");
        if (!posted.contains(number))
            report.findings << QStringLiteral("%1: %2 %3%4")
                                   .arg(QLatin1String(document.flagName), of, number, QLatin1String(document.mends));
        else if (round2(posted.value(number) - row.number("Amount")) != 0)
            tellAmount(document, number, row.number("Amount"), posted.value(number), report);
        posted.remove(number);
    }
    for (auto entry = posted.begin(); entry != posted.end(); ++entry)
        report.findings << QStringLiteral("%1: %2 %3 of %4")
                               .arg(QLatin1String(document.entryName), of, entry.key(), naira(entry.value()));
}

/// Gives the transactions of the notes, which the next posting settles.
QStringList tellNotes(Connection& billing, CheckReport& report) {
    QStringList open;
    for (Recordset row(billing, Sql("select gTranID,kind from PostingNotes")); !row.eof(); row.moveNext()) {
        open << row.text("gTranID");
        report.notices << QStringLiteral("%1: transaction %2 (%3) was cut off or is under way; the next posting, or "
                                         "orvane-db post --left-over, settles it")
                              .arg(noteName, row.text("gTranID"), row.text("kind"));
    }
    return open;
}

} // namespace

void checkPostings(Connection& billing, Connection& accounting, CheckReport& report) {
    const QStringList open = tellNotes(billing, report);
    for (const Side& side : sides)
        checkSide(billing, accounting, side, open, report);
    for (const Document& document : documents)
        checkDocuments(billing, accounting, document, open, report);
    checkPayables(billing, accounting, open, report);
}

QStringList postingCheckNames() {
    QStringList names = payableCheckNames() + QStringList{receiptsName, spreadName, noteName};
    for (const Document& document : documents)
        for (const char* name : {document.flagName, document.entryName, document.amountName})
            names << QLatin1String(name);
    return names;
}

} // namespace orvane
