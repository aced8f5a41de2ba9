#include "proof/ActionCheck.h"

#include "data/rows/ActionParts.h"
#include "data/rows/Recordset.h"

#include <QHash>
#include <QSet>

namespace orvane {

namespace {

const QString lostSave = "money without its save";
const QString lostTrail = "save without its trail";
const QString lostPosting = "posting without its save";

struct Kind {
    const char *kind, *check, *words;
};

constexpr Kind kinds[] = {{"RECEIPT", "receipt beside its saves", "receipt"},
                          {"BILL", "bill beside its saves", "bill"},
                          {"LINE", "bill's lines beside its saves", "lines of the bill"},
                          {"DISCOUNT", "discount beside its saves", "discount on the bill"}};

QString naira(double amount) {
    return QString::number(amount, 'f', 2);
}

/// Of one check a score of findings is told.
void tell(const QString& check, const QStringList& sentences, CheckReport& report) {
    constexpr qsizetype told = 20;
    for (const QString& sentence : sentences.first(std::min(told, sentences.size())))
        report.findings << check + ": " + sentence;
    if (sentences.size() > told)
        report.remarks << QStringLiteral("%1: and %2 more").arg(check).arg(sentences.size() - told);
}

QString difference(const Kind& kind, const SavedPart& part) {
    const QString which = QStringLiteral("%1 %2: ").arg(QLatin1String(kind.words), part.document);
    if (part.counted > 0)
        return which +
               QStringLiteral("%1 row(s) of %2 in all came by no save").arg(part.counted).arg(naira(part.amount));
    if (part.counted < 0)
        return which + QStringLiteral("%1 row(s) of %2 in all were saved and are gone by no save")
                           .arg(0 - part.counted)
                           .arg(naira(0 - part.amount));
    return which + QStringLiteral("%1 apart from what was saved").arg(naira(part.amount));
}

void checkMoney(Connection& billing, CheckReport& report) {
    const QVector<SavedPart> parts = moneyBesideSaves(billing);
    for (const Kind& kind : kinds) {
        QStringList sentences;
        for (const SavedPart& part : parts)
            if (part.kind == QLatin1String(kind.kind))
                sentences << difference(kind, part);
        tell(QLatin1String(kind.check), sentences, report);
    }
    QStringList orphans;
    for (Recordset row(billing,
                       Sql("select distinct p.kind,p.document,p.token from SavedParts p where not exists "
                           "(select a.token from SavedActions a where a.token = p.token) order by p.document"));
         !row.eof(); row.moveNext())
        orphans << QStringLiteral("%1 %2: the row of its save %3 in SavedActions is not there")
                       .arg(row.text("kind").toLower(), row.text("document"), row.text("token"));
    tell(lostSave, orphans, report);
}

/// How many rows of the trail name each save; none where the trail is not to be read.
QHash<QString, int> readTrail(Connection& billing, CheckReport& report) {
    QHash<QString, int> rows;
    try {
        Connection trail = billing.beside(billing.engine() == Engine::Sqlite ? "Audit" : QString());
        for (Recordset row(trail, Sql("select saveToken,count(*) as N from AuditTrail where saveToken <> '' group by "
                                      "saveToken"));
             !row.eof(); row.moveNext())
            rows.insert(row.text("saveToken"), int(row.integer("N")));
    } catch (const DataError& fault) {
        tell(lostTrail, {"the audit trail cannot be read: " + fault.description()}, report);
    }
    return rows;
}

void checkTrail(Connection& billing, CheckReport& report) {
    const QHash<QString, int> trail = readTrail(billing, report);
    QStringList sentences;
    for (Recordset row(billing, Sql("select token,savedAt,username,action,document,amount,trailRows from SavedActions "
                                    "where trailRows > 0 order by savedAt,token"));
         !row.eof(); row.moveNext()) {
        const int wanted = int(row.integer("trailRows"));
        if (const int lost = wanted - trail.value(row.text("token")); lost > 0)
            sentences << QStringLiteral("%1 %2 of %3, by %4 at %5: %6 of its %7 row(s) of the audit trail are gone")
                             .arg(row.text("action"), row.text("document"), naira(row.number("amount")),
                                  row.text("username"), row.text("savedAt"))
                             .arg(lost)
                             .arg(wanted);
    }
    tell(lostTrail, sentences, report);
}

void checkPostings(Connection& billing, Connection& accounting, CheckReport& report) {
    QSet<QString> saved;
    for (Recordset row(billing, Sql("select distinct document from SavedParts where kind='POSTING'")); !row.eof();
         row.moveNext())
        saved << row.text("document");
    bool begun = false;
    QStringList sentences;
    for (Recordset row(accounting, Sql("select TranID,TranNoApp,Remarks from TranFromAppsTrail order by SNo"));
         !row.eof(); row.moveNext()) {
        const bool known = saved.contains(row.text("TranID")) || saved.contains(row.text("TranNoApp"));
        begun = begun || known;
        if (begun && !known)
            sentences << QStringLiteral("transaction %1 (%2 %3) is in the ledger by no save")
                             .arg(row.text("TranID"), row.text("Remarks"), row.text("TranNoApp"));
    }
    tell(lostPosting, sentences, report);
}

} // namespace

void checkActions(Connection& billing, Connection& accounting, CheckReport& report) {
    checkMoney(billing, report);
    checkTrail(billing, report);
    checkPostings(billing, accounting, report);
}

QStringList actionCheckNames() {
    QStringList names{lostSave, lostTrail, lostPosting};
    for (const Kind& kind : kinds)
        names << QLatin1String(kind.check);
    return names;
}

} // namespace orvane
