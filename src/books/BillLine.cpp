#include "books/BillLine.h"

#include "data/words/Money.h"

namespace orvane {

namespace {

void addLine(Books& books, const BillLine& line) {
    Recordset row(books.connection, Sql("select * from BillingDetails where 1=2"));
    row.addNew();
    row.set("SNo", line.sno == 0 ? QVariant() : line.sno);
    row.set("billNo", line.billNo);
    row.set("dtDate", line.date);
    row.set("PNo", line.pno);
    row.set("drgName", line.name);
    row.set("Price", line.price);
    row.set("Qty", line.qty);
    row.set("SubTotal", line.subTotal);
    row.set("Charged", chargeOf(books, line.name, line.billTo, line.subTotal));
    row.set("billType", line.billType);
    row.set("conID", line.conID);
    row.set("dosage", line.dosage);
    row.set("coyName", line.coyName);
    row.set("billTo", line.billTo);
    row.set("revType", line.revType);
    row.set("BillBy", nullIfEmpty(line.billBy));
    row.set("Capitated", nullIfEmpty(line.capitated));
    row.update();
    if (line.sno == 0)
        books.connection.execute(Sql("update BillingDetails set SNo=0-detID where SNo is null and billNo='")
                                 << line.billNo << "'");
    books.note({"LINE", line.billNo, 1, line.subTotal});
}

/// The lines of a bill and what they come to.
SavedPart linesOf(Books& books, const QString& billNo) {
    const Recordset lines(
        books.connection,
        Sql("select count(*) as N,isnull(sum(SubTotal), 0) as Total from BillingDetails where billNo='")
            << billNo << "'");
    return {"LINE", billNo, int(lines.integer("N")), lines.number("Total")};
}

bool bearsTheSame(const Recordset& row, const LineChange& now) {
    return row.text("billTo") == now.billTo && row.number("SubTotal") == now.subTotal &&
           isCarriedBalance(row.text("drgName")) == isCarriedBalance(now.name);
}

} // namespace

double chargeOf(const Books& books, const QString& name, const QString& billTo, double subTotal) {
    return billTo == books.settings().privateClient && !isCarriedBalance(name) ? round2(subTotal) : 0;
}

double chargedFor(const Books& books, const Recordset& line) {
    return line.isNull("Charged") ? chargeOf(books, line.text("drgName"), line.text("billTo"), line.number("SubTotal"))
                                  : line.number("Charged");
}

void addLines(Books& books, const QVector<BillLine>& lines) {
    QVector<AccountEntry> charges;
    for (const BillLine& line : lines) {
        addLine(books, line);
        if (!isCarriedBalance(line.name))
            charges.append({line.pno, line.billNo, 0 - line.subTotal, line.billTo,
                            line.remarks.isEmpty() ? line.name : line.remarks});
    }
    postPatientTrans(books, charges);
}

void changeLine(Books& books, Recordset& row, const LineChange& now, const QString& pno, const QString& remarks) {
    const double before = chargedFor(books, row);
    books.note({"LINE", row.text("billNo"), 0, round2(now.subTotal - row.number("SubTotal"))});
    const double after = bearsTheSame(row, now) ? before : chargeOf(books, now.name, now.billTo, now.subTotal);
    row.set("drgName", now.name);
    row.set("Price", now.price);
    row.set("Qty", now.qty);
    row.set("SubTotal", now.subTotal);
    row.set("billTo", now.billTo);
    row.set("Charged", after);
    if (now.revType)
        row.set("revType", *now.revType);
    if (now.billType)
        row.set("BillType", *now.billType);
    if (now.billHead)
        row.set("BillHead", *now.billHead);
    row.update();
    if (after != before)
        postPatientTran(books,
                        {pno, row.text("billNo"), round2(before - after), books.settings().privateClient, remarks});
}

void changePayer(Books& books, Recordset& row, const QString& billTo) {
    row.set("Charged", chargedFor(books, row));
    row.set("billTo", billTo);
    row.update();
}

QVector<AccountEntry> moveLine(Books& books, const Recordset& row, const NewPayer& to, const QString& pno) {
    const qlonglong sno = row.integer("SNo");
    const QString name = row.text("drgName");
    const double before = sno > 0 ? chargedFor(books, row) : 0;
    const double after = sno > 0 ? chargeOf(books, name, to.clientCode, row.number("SubTotal")) : 0;
    books.connection.execute(Sql("update  billingDetails set billNo ='")
                             << to.billNo << "',Coyname='" << to.clientID << "',BillTo='" << to.clientCode
                             << "' where sno =" << sno);
    books.connection.execute(Sql("update BillingDetails set Charged=") << after << " where SNo=" << sno);
    books.note({"LINE", row.text("billNo"), -1, 0 - row.number("SubTotal")});
    books.note({"LINE", to.billNo, 1, row.number("SubTotal")});
    QVector<AccountEntry> entries;
    const QString privateClient = books.settings().privateClient;
    const QString remarks = "Bill Item Shifted: " + name;
    if (before != 0)
        entries.append({pno, row.text("billNo"), before, privateClient, remarks});
    if (after != 0)
        entries.append({pno, to.billNo, 0 - after, privateClient, remarks});
    return entries;
}

void keepCharges(Books& books, const QString& billNo) {
    books.connection.execute(Sql("update BillingDetails set Charged=case when billTo='")
                             << books.settings().privateClient
                             << "' and drgName not in ('PREVIOUS CREDIT','PREVIOUS DEBT') then SubTotal else 0 end "
                                "where Charged is null and billNo='"
                             << billNo << "'");
}

void removeLines(Books& books, const QString& billNo, const std::function<void()>& removal) {
    const SavedPart before = linesOf(books, billNo);
    removal();
    const SavedPart after = linesOf(books, billNo);
    books.note({"LINE", billNo, after.counted - before.counted, round2(after.amount - before.amount)});
}

void removeEmptyLines(Books& books, const QString& billNo) {
    removeLines(
        books, billNo,
        [&] {
            books.connection.execute(Sql("delete from Billingdetails  where subtotal=0 and billno = '")
                                     << billNo << "'");
        });
}

} // namespace orvane
