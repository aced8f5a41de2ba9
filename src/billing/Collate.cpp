#include "billing/Collate.h"

#include "data/words/Money.h"
#include "receipts/PatientAccount.h"

namespace orvane {

namespace {

/// An item of a visit on its way to the bill.
struct Item {
    qlonglong sno = 0;
    QDate date;
    QString name;
    double price = 0, qty = 0, subTotal = 0; ///< naira a unit, units, naira
    QString billType, dosage, coyName, billTo, revType;
    QVariant conID;
};

Item readItem(const Recordset& row, const QString& date, const QString& name, const QString& price,
              const QString& dosage) {
    Item item;
    item.sno = row.integer("SNo");
    item.date = row.date(date);
    item.name = row.text(name);
    item.price = row.number(price);
    item.qty = row.number("Qty");
    item.subTotal = row.number("SubTotal");
    item.billType = row.text("billType");
    item.dosage = row.text(dosage);
    item.coyName = row.text("coyName");
    item.billTo = row.text("billTo");
    item.revType = row.text("revType");
    item.conID = row.value("conID");
    return item;
}

/// A row of qryBillAccum.
Item waitingItem(const Recordset& row) {
    return readItem(row, "Date", "Service", "UnitPrice", "Dosage");
}

/// A row of the table itself.
Item releasedItem(const Recordset& row) {
    return readItem(row, "dtDate", "drgName", "Price", "usage");
}

void addBillingDetail(Program& program, Connection& connection, const BillInHand& bill, const Item& item) {
    Recordset line(connection, Sql("select * from BillingDetails where 1=2"));
    line.addNew();
    line.set("dtDate", item.date);
    line.set("billNo", bill.consultID);
    line.set("SNo", item.sno);
    line.set("drgName", item.name);
    line.set("Price", item.price);
    line.set("Qty", item.qty);
    line.set("SubTotal", item.subTotal);
    line.set("billType", item.billType);
    line.set("conID", item.conID);
    line.set("dosage", item.dosage);
    line.set("coyName", item.coyName);
    line.set("billTo", item.billTo);
    line.set("revType", item.revType);
    line.set("BillBy", program.session.gUsername);
    line.update();
}

/// Puts an item on the bill and charges it to the running account; the caller sets the item's flags.
void billItem(Program& program, Connection& connection, const BillInHand& bill, const Item& item) {
    addBillingDetail(program, connection, bill, item);
    if (!isCarriedBalance(item.name))
        postPatientTran(program, connection, program.session.gServerDate, bill.pno, bill.consultID, -item.subTotal,
                        item.billTo, item.name);
    program.writeAuditTrail(
        {"insert Bill Item for " + bill.patient, bill.consultID, item.name + ": " + formatTwoDecimals(item.subTotal)});
}

void markBilled(Connection& connection, const BillInHand& bill, const Item& item) {
    connection.execute(Sql("update BillAccum set attendedTo=1,isBilled=1,capitated='NO' where consultID = '")
                       << bill.consultID << "' and SNo='" << item.sno << "'");
}

// One pass of the collation: which items it takes and how they leave the waiting state. `more` narrows the statement.

Sql cashAndCompanyItems(const BillInHand& bill, const Sql& more) {
    return Sql("select * from qryBillAccum where attendedTo=0  and  consultID='")
           << bill.consultID
           << "'  and ClientCat not in ('HMO','PHIS','NHIS')  and SNo not in (Select SNo from BillingDetails)" << more;
}

Sql releasedItems(const BillInHand& bill, const Sql& more) {
    return Sql("select * from billAccum where attendedTo=1 and capitated='NO' and  consultID='")
           << bill.consultID << "' and SNo not in (Select SNo from BillingDetails)" << more;
}

void markReleasedBilled(Connection& connection, const BillInHand& bill, const Item& item) {
    connection.execute(Sql("update BillAccum set attendedTo=1,isBilled=1 where consultID = '")
                       << bill.consultID << "' and SNo='" << item.sno << "'");
}

struct Pass {
    Sql (*items)(const BillInHand&, const Sql&);
    Item (*read)(const Recordset&);
    void (*mark)(Connection&, const BillInHand&, const Item&);
};

constexpr Pass cashAndCompany{cashAndCompanyItems, waitingItem, markBilled};
constexpr Pass released{releasedItems, releasedItem, markReleasedBilled};

/// Line, charge and flags of one item as one unit. The item is read again behind the gate: another officer may have
/// billed, changed or removed it, or a batch may have taken the bill, since the list was read.
void billOne(Program& program, Connection& connection, const BillInHand& bill, const Pass& pass, qlonglong sno) {
    Transaction transaction(connection);
    if (isBillProcessed(connection, bill.consultID))
        return;
    const Recordset row(connection, pass.items(bill, Sql(" and SNo=") << sno));
    if (row.eof() || row.number("SubTotal") <= 0)
        return;
    const Item item = pass.read(row);
    billItem(program, connection, bill, item);
    pass.mark(connection, bill, item);
    transaction.commit();
}

void runPass(Program& program, Connection& connection, const BillInHand& bill, const Pass& pass) {
    for (Recordset rows(connection, pass.items(bill, Sql())); !rows.eof(); rows.moveNext())
        if (rows.number("SubTotal") > 0)
            billOne(program, connection, bill, pass, rows.integer("SNo"));
}

/// Rows that lack what a line of the bill needs.
void repairItems(Connection& connection, const BillInHand& bill) {
    connection.execute(Sql("update billingDetails set BillType ='SERVICE' where billtype='' and BillNo='")
                       << bill.consultID << "'");
    connection.execute(Sql("update hrecords set CoyName ='")
                       << bill.retainID << "' where CoyName is null and consultID='" << bill.consultID << "'");
    connection.execute(Sql("update BillAccum set CoyName='")
                       << bill.retainID << "' where coyName is null and consultID = '" << bill.consultID << "'");
    connection.execute(Sql("update BillAccum set BillTo='")
                       << bill.retainCode << "' where BillTo is null and consultID = '" << bill.consultID << "'");
}

/// A fee-for-service patient of a capitated client pays item by item: the items become eligible for the bill.
void releaseFeeForService(Connection& connection, const BillInHand& bill) {
    Recordset rows(connection, Sql("select * from qryBillAccum where referal = 'YES' and AttendedTo=0 and consultID='")
                                   << bill.consultID << "' and SNo not in (Select SNo from BillingDetails)");
    if (rows.eof())
        return;
    Transaction transaction(connection);
    if (isBillProcessed(connection, bill.consultID))
        return;
    for (; !rows.eof(); rows.moveNext())
        connection.execute(Sql("update BillAccum set attendedTo=1,isBilled=1,capitated='NO' where SNo = '")
                           << rows.integer("SNo") << "'");
    transaction.commit();
}

void removeEmptyLines(Connection& connection, const BillInHand& bill) {
    connection.execute(Sql("delete from Billingdetails  where subtotal=0 and billno = '") << bill.consultID << "'");
}

} // namespace

bool isCapitatedCategory(const QString& category) {
    return category == QLatin1String("HMO") || category == QLatin1String("NHIS") || category == QLatin1String("PHIS");
}

bool isCarriedBalance(const QString& item) {
    return item == QLatin1String("PREVIOUS CREDIT") || item == QLatin1String("PREVIOUS DEBT");
}

QString billProcessedText() {
    return "This Bill is already processed! to Modify, unProcess the Batch";
}

bool isVisitUnchanged(Connection& connection, const QString& consultID, const QString& pno, const QString& retainID) {
    const Recordset visit(connection, Sql("select pno,retainID from qryhVisitsForAttend where consultid ='")
                                          << consultID << "'");
    return !visit.eof() && visit.text("pno") == pno && visit.text("retainID") == retainID;
}

QString reselectText() {
    return "Please Re-Select Patient Name! Bill No (StrCon needed";
}

qlonglong numberOfAddedItem(Connection& connection, const QString& consultID, const QString& name) {
    // The name is compared here: a comparison in SQL would miss one that ends in a blank.
    for (Recordset items(connection, Sql("select SNo,drgName from billaccum where consultID='")
                                         << consultID << "' order by SNo desc");
         !items.eof(); items.moveNext())
        if (items.text("drgName") == name)
            return items.integer("SNo");
    throw DataError("The item that was just added cannot be found.");
}

void collateBillItems(Program& program, const BillInHand& bill) {
    if (bill.consultID.isEmpty()) {
        program.box("No Patient is selected");
        return;
    }
    Connection connection = program.openBilling();
    if (isBillProcessed(connection, bill.consultID)) {
        program.box(billProcessedText());
        return;
    }
    repairItems(connection, bill);
    runPass(program, connection, bill, cashAndCompany);
    releaseFeeForService(connection, bill);
    runPass(program, connection, bill, released);
    removeEmptyLines(connection, bill);
}

void billWaitingItems(Program& program, Connection& connection, const BillInHand& bill) {
    Recordset rows(connection, Sql("select * from qryBillAccum where AttendedTo=0 and consultID='")
                                   << bill.consultID
                                   << "' and capitated='NO' and SNo not in (Select SNo from BillingDetails)");
    if (rows.eof())
        return;
    for (; !rows.eof(); rows.moveNext()) {
        if (rows.number("SubTotal") <= 0)
            continue;
        const Item item = waitingItem(rows);
        billItem(program, connection, bill, item);
        markBilled(connection, bill, item);
    }
    removeEmptyLines(connection, bill);
    connection.execute(Sql("update BillAccum set attendedTo=1,isbilled=1 where consultID = '")
                       << bill.consultID << "'");
}

} // namespace orvane
