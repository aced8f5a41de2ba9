#include "books/ItemEntry.h"

#include "books/Bill.h"
#include "books/BillInHand.h"
#include "books/BillItem.h"
#include "books/BillLine.h"
#include "books/Limits.h"
#include "books/Words.h"
#include "data/words/Money.h"

namespace orvane {

namespace {

BillItem itemOf(const EnteredItems& entered, const EnteredItem& item) {
    return {.date = entered.date,
            .consultID = entered.consultID,
            .pno = entered.pno,
            .name = item.name,
            .category = item.category,
            .price = item.price,
            .qty = item.qty,
            .subTotal = round2(item.subTotal),
            .usage = item.usage,
            .billType = item.billType,
            .billTo = item.billTo,
            .coyName = item.coyName,
            .revType = item.revType};
}

BillLine lineOf(const BillItem& item, qlonglong sno) {
    return {.sno = sno,
            .billNo = item.consultID,
            .date = item.date,
            .pno = item.pno,
            .name = item.name,
            .price = item.price,
            .qty = item.qty,
            .subTotal = item.subTotal,
            .billType = item.billType,
            .dosage = item.usage,
            .coyName = item.coyName,
            .billTo = item.billTo,
            .revType = item.revType,
            .capitated = "NO"};
}

void audit(Books& books, const EnteredItems& entered, const QString& action, const BillItem& item) {
    books.audit({action + entered.company, entered.consultID, item.name + ": " + formatTwoDecimals(item.subTotal)});
}

/// The Billing row as the lines now come to; it is added with the first of them.
void refreshBill(Books& books, const EnteredItems& entered) {
    const std::optional<double> total = refreshBillTotal(books, entered.consultID);
    if (total && !hasBill(books.connection, entered.consultID))
        addBill(books, {.date = entered.date,
                        .billNo = entered.consultID,
                        .pno = entered.pno,
                        .clientID = entered.retainID,
                        .amountBilled = *total,
                        .words = getValInWord(*total)});
}

/// Puts the items on the bill that `line` gives a line for.
Given<Saved> addItems(Books& books, const EnteredItems& entered,
                      const std::function<std::optional<BillLine>(const EnteredItem&)>& add) {
    if (const auto refusal = whyNotBilled(books.connection, entered.consultID, entered.pno, entered.retainID))
        return *refusal;
    QVector<BillLine> lines;
    double total = 0;
    for (const EnteredItem& item : entered.items) {
        if (const auto refusal = whyNotCharged(item.name, item.subTotal))
            return *refusal;
        if (const std::optional<BillLine> line = add(item))
            lines.append(*line);
        total += item.subTotal;
    }
    addLines(books, lines);
    refreshBill(books, entered);
    books.record(entered.consultID, round2(total));
    return Saved{};
}

/// "CAP": the items of the visit may be capitated; a capitated client's patient who pays per item, and any other
/// client, pay each of them.
bool mayBeCapitated(const EnteredItems& entered) {
    return (entered.category == "HMO" || entered.category == "NHIS") && entered.feeForService != "YES";
}

} // namespace

Given<Saved> addToVisit(Books& books, const EnteredItems& entered) {
    return addItems(
        books, entered,
        [&](const EnteredItem& typed) -> std::optional<BillLine> {
            BillItem item = itemOf(entered, typed);
            item.capitated = mayBeCapitated(entered) ? typed.capitated : "NO";
            item.billed = typed.capitated == "NO" || !isCapitatedCategory(entered.category);
            addItem(books, item);
            audit(books, entered, "insert BillAccum Item for ", item);
            if (!item.billed)
                return std::nullopt;
            audit(books, entered, "insert BillDetails Item for ", item);
            BillLine line = lineOf(item, numberOfAddedItem(books.connection, item));
            line.billBy = books.actor().user;
            return line;
        });
}

Given<Saved> addToCollatedBill(Books& books, const EnteredItems& entered) {
    return addItems(
        books, entered,
        [&](const EnteredItem& typed) {
            BillItem item = itemOf(entered, typed);
            item.billed = true;
            addItem(books, item);
            BillLine line = lineOf(item, numberOfAddedItem(books.connection, item));
            line.billBy = books.actor().user;
            line.remarks = "New Bill Item: " + item.name;
            audit(books, entered, "insert BillDetails Item for ", item);
            return std::optional(line);
        });
}

void prepareItems(Books& books, const EnteredItems& visit, const QString& retainCode) {
    Connection& connection = books.connection;
    const QString& id = visit.consultID;
    if (isBillProcessed(connection, id))
        return;
    connection.execute(Sql("update BillAccum set capitated='NO' where capitated='BIL' and consultID = '") << id << "'");
    connection.execute(Sql("update BillAccum set CoyName='")
                       << visit.retainID << "' where coyName is null and consultID = '" << id << "'");
    connection.execute(Sql("update BillAccum set BillTo='")
                       << retainCode << "' where BillTo is null and consultID = '" << id << "'");
    if (!isCapitatedCategory(visit.category) || visit.feeForService == "YES")
        connection.execute(Sql("update BillAccum set capitated='NO' where consultID = '") << id << "'");
    else
        connection.execute(Sql("update BillAccum set capitated='NO' where capitated='' and consultID = '")
                           << id << "'");
}

Given<Saved> setFeeForService(Books& books, const QString& consultID, const QString& pno,
                              const QString& feeForService) {
    Connection& connection = books.connection;
    if (isBillProcessed(connection, consultID))
        return Refusal::BillProcessed;
    connection.execute(Sql("update hrecords set referal='")
                       << feeForService << "' where consultID='" << consultID << "'");
    connection.execute(Sql("update hPatients set ref='") << feeForService << "' where pno='" << pno << "'");
    const QString capitated = feeForService == "NO" ? "YES" : "NO";
    connection.execute(Sql("update billAccum set capitated='")
                       << capitated << "' where consultID='" << consultID << "'");
    books.record(consultID, 0);
    return Saved{};
}

} // namespace orvane
