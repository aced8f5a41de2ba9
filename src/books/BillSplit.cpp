#include "books/BillSplit.h"

#include "books/Bill.h"
#include "books/BillLine.h"
#include "books/Visit.h"
#include "data/words/Money.h"

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

constexpr int numberLength = 12; ///< of a visit whose bill can be split
constexpr double kobo = 0.01;

std::optional<Refusal> whyNotMoved(const Recordset& line, const ListedItem& item, const QString& billNo) {
    if (line.eof() || line.text("billNo") != billNo || line.number("SubTotal") != item.subTotal)
        return Refusal::SplitItemChanged;
    if (line.integer("isRct") == 1)
        return Refusal::SplitItemPaid;
    if (line.integer("isPost") == 1)
        return Refusal::SplitItemPosted;
    return std::nullopt;
}

Recordset lineOf(Books& books, const ListedItem& item) {
    return Recordset(books.connection, Sql("select * from BillingDetails where SNo=") << item.sno);
}

std::optional<Refusal> whyNotMoved(Books& books, const BillSplit& split) {
    for (const ListedItem& item : split.items)
        if (const auto refusal = whyNotMoved(lineOf(books, item), item, split.billNo))
            return refusal;
    return std::nullopt;
}

/// The new bill's row, at no amount yet.
void addSplitBill(Books& books, const Bill& old, const BillSplit& split, const QString& number) {
    addBill(books, {.date = addSplitVisit(books, split.billNo, number, split.clientID),
                    .billNo = number,
                    .pno = old.pno,
                    .clientID = split.clientID,
                    .profFee = old.profFee,
                    .diagnosis = old.diagnosis,
                    .billType = old.billType});
}

void moveItems(Books& books, const BillSplit& split, const QString& number, const QString& pno) {
    const NewPayer to{number, split.clientID, split.clientCode};
    QVector<AccountEntry> entries;
    for (const ListedItem& item : split.items) {
        const Recordset line = lineOf(books, item);
        moveItem(books, item.sno, to);
        entries += moveLine(books, line, to, pno);
        books.audit({"Bill Item Shifted to " + split.client, number, line.text("drgName")});
    }
    postPatientTrans(books, entries);
}

} // namespace

Given<QString> nextSplitNumber(Connection& connection, const QString& billNo) {
    const Recordset visits(connection, Sql("select  recDate from hRecords where substring(consultID,1,12)='")
                                           << billNo << "'");
    if (visits.eof())
        return Refusal::SplitNoVisit;
    if (billNo.size() < numberLength)
        return Refusal::SplitShortNumber;
    const QString letters = "BCD";
    if (visits.count() > letters.size())
        return Refusal::SplitExceeded;
    const QString number = billNo + letters.at(visits.count() - 1);
    if (isVisitNumberInUse(connection, number))
        return Refusal::SplitNumberTaken;
    return number;
}

Given<QString> splitBill(Books& books, const BillSplit& split) {
    if (isBillProcessed(books.connection, split.billNo))
        return Refusal::BillProcessed;
    const Given<QString> number = nextSplitNumber(books.connection, split.billNo);
    if (!number)
        return number.refusal();
    if (const auto refusal = whyNotMoved(books, split))
        return *refusal;
    const std::optional<Bill> old = readBill(books.connection, split.billNo);
    if (!old)
        return Refusal::NoBill;
    const double whole = billDetailsTotal(books.connection, split.billNo).value_or(0);
    addSplitBill(books, *old, split, *number);
    moveItems(books, split, *number, old->pno);
    refreshBillFromLines(books, split.billNo);
    refreshBillTotal(books, *number);
    const double kept = readBill(books.connection, split.billNo)->amountBilled;
    const double moved = readBill(books.connection, *number)->amountBilled;
    if (std::min(kept, moved) < std::min(0.0, whole))
        return Refusal::SplitBelowNothing;
    // Each of the three was rounded to the kobo.
    if (std::abs(kept + moved - whole) > 1.5 * kobo)
        return Refusal::SplitUneven;
    books.record(*number, moved);
    return number;
}

} // namespace orvane
