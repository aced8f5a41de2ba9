#include "books/PostingNote.h"

#include "data/Assert.h"

namespace orvane {

namespace {

const QString dayForm = "dd/MM/yyyy";

/// Receipts that came in meanwhile stay as they are: their numbers are higher.
void flagReceipts(Books& books, const PostingNote& note) {
    const auto days = [&](Sql&& sql) { return std::move(sql << note.firstDay << "' and '" << note.lastDay << "'"); };
    Connection& billing = books.connection;
    billing.execute(days(Sql("update  PaymentDetails set isPost=1 where ispost=0 and ReceiptDate between '"))
                    << " and SNo<=" << note.lastDetail);
    billing.execute(days(Sql("update  PaymentTypes set isPost=1 where ispost=0 and ReceiptDate between '"))
                    << " and SNo<=" << note.lastType);
    billing.execute(days(Sql("update  Payments set isPost=1 where ispost=0 and ReceiptDate between '"))
                    << " and SNo<=" << note.lastReceipt);
    billing.execute(days(Sql("update billingDetails set isPost=1 where billNo in (select billNo from payments where  "
                             "ReceiptDate between '"))
                    << ")");
}

void flagVoucher(Books& books, const PostingNote& note) {
    books.connection.execute(Sql("update hExpensePayDetails set isPost=1 where VouchNo='") << note.source << "'");
}

/// By the day of their entry, while those of some days of their invoices were posted: what TranID names is in the
/// ledger, whatever its flag says.
void flagSuppliers(Books& books, const PostingNote& note) {
    books.connection.execute(Sql("update StockEntryAcct set isPost=1 where isPost=0 and EntryDate between '")
                             << note.firstDay << "' and '" << note.lastDay << "' and SNo<=" << note.lastDetail);
}

void releaseSuppliers(Books& books, const PostingNote& note) {
    books.connection.execute(Sql("update StockEntryAcct set TranID=null where TranID='") << note.tranID << "'");
}

struct SourceKind {
    const char* kind;
    const char* words;
    void (*flag)(Books&, const PostingNote&);
    void (*release)(Books&, const PostingNote&) = nullptr; ///< null: the posting marks nothing
};

constexpr SourceKind kinds[] = {
    {"RECEIPT", "the receipts of", flagReceipts},
    {"EXPENSE", "the voucher", flagVoucher},
    {"PAYABLE", "the suppliers' entries of", flagSuppliers, releaseSuppliers},
};

const SourceKind& kindOf(const PostingNote& note) {
    for (const SourceKind& kind : kinds)
        if (note.kind == QLatin1String(kind.kind))
            return kind;
    ORVANE_ASSERT(false);
    return kinds[0];
}

} // namespace

void addNote(Books& books, const PostingNote& note) {
    Recordset row(books.connection, Sql("select * from PostingNotes where 1=2"));
    row.addNew();
    row.set("gTranID", note.tranID);
    row.set("kind", note.kind);
    row.set("source", nullIfEmpty(note.source));
    row.set("firstDay", note.firstDay);
    row.set("lastDay", note.lastDay);
    row.set("lastDetail", note.lastDetail);
    row.set("lastType", note.lastType);
    row.set("lastReceipt", note.lastReceipt);
    row.set("username", books.actor().user);
    row.set("workstation", books.actor().workstation);
    row.update();
}

void strikeNote(Books& books, const QString& tranID) {
    books.connection.execute(Sql("delete from PostingNotes where gTranID='") << tranID << "'");
}

QVector<PostingNote> openNotes(Connection& billing) {
    QVector<PostingNote> notes;
    for (Recordset row(billing, Sql("select * from PostingNotes order by notedAt")); !row.eof(); row.moveNext())
        notes.append({.kind = row.text("kind"),
                      .source = row.text("source"),
                      .firstDay = row.date("firstDay"),
                      .lastDay = row.date("lastDay"),
                      .tranID = row.text("gTranID"),
                      .lastDetail = row.integer("lastDetail"),
                      .lastType = row.integer("lastType"),
                      .lastReceipt = row.integer("lastReceipt")});
    return notes;
}

bool isBeingPosted(Connection& billing, const QString& kind, QDate first, QDate last) {
    return !Recordset(billing, Sql("select gTranID from PostingNotes where kind='")
                                   << kind << "' and firstDay<='" << last << "' and lastDay>='" << first << "'")
                .eof();
}

QString noteWords(const PostingNote& note) {
    const QString of =
        note.source.isEmpty() ? note.firstDay.toString(dayForm) + " to " + note.lastDay.toString(dayForm) : note.source;
    return QStringLiteral("%1 %2 (transaction %3)").arg(QLatin1String(kindOf(note).words), of, note.tranID);
}

void releaseSources(Books& books, const PostingNote& note) {
    if (const auto release = kindOf(note).release)
        release(books, note);
}

void flagPosted(Books& books, const PostingNote& note) {
    kindOf(note).flag(books, note);
}

} // namespace orvane
