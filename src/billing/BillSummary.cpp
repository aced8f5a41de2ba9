#include "billing/BillSummary.h"

#include "billing/BillingRow.h"
#include "data/words/Money.h"
#include "receipts/PatientAccount.h"

namespace orvane {

namespace {

void show(Form& screen, std::initializer_list<const char*> labels, double amount) {
    for (const char* name : labels)
        if (Control* label = screen.find(name); label && label->kind() == ControlKind::Label)
            static_cast<Label*>(label)->setText(formatTwoDecimals(amount));
}

/// The client of a visit, of the hospital or of an outlet.
QString visitClient(Connection& connection, const QString& consultID) {
    const Recordset visit(connection, Sql("select coyName from hRecords where consultID='") << consultID << "'");
    if (!visit.eof())
        return visit.text("coyName");
    const Recordset outlet(connection, Sql("select coyName from hRecordsPublic where consultID='") << consultID << "'");
    return outlet.eof() ? QString() : outlet.text("coyName");
}

void addMissingRow(Program& program, Connection& connection, const QString& billNo) {
    if (!Recordset(connection, Sql("select  billNo FROM Billing where billno='") << billNo << "'").eof())
        return;
    addBillingRow(
        connection,
        {program.getServerDateTime().date(), billNo, program.session.sBillPno, visitClient(connection, billNo), 0, {}});
}

/// Brings the row in step with the details and gives the bill's total; empty without details.
std::optional<double> refreshRow(Program& program, const QString& billNo) {
    Connection connection = program.openBilling();
    Transaction transaction(connection);
    addMissingRow(program, connection, billNo);
    std::optional<double> total;
    const Recordset details(connection, Sql("select  Subtotal from vwBillingProcessDetailsGrouped where billno='")
                                            << billNo << "'");
    if (!details.eof()) {
        total = details.number("SubTotal");
        updateBillAmount(connection, billNo, *total, getValInWord(program, *total));
    }
    transaction.commit();
    return total;
}

void showBillInfo(Program& program, Form& screen, const QString& billNo) {
    Connection connection = program.openBilling();
    const Recordset info(connection, Sql("select distinct * from vwbillInfo   where consultID='") << billNo << "'");
    if (info.eof())
        return;
    Session& session = program.session;
    session.dAmountGen = info.number("amountGen");
    session.dAmountBal = info.number("AmountBal");
    session.dAmountPaid = info.number("AmountPaid");
    show(screen, {"lblGen"}, session.dAmountGen);
    show(screen, {"lblPaid", "lblDep"}, session.dAmountPaid);
}

/// The summary is refreshed at every look, so a fault of one look is not shown.
void ignoringFaults(const std::function<void()>& step) {
    try {
        step();
    } catch (const DataError&) {
    }
}

} // namespace

void saveBillSummary(Program& program, Form& screen, const QString& billNo) {
    show(screen, {"lblGen", "lblBilled", "lblPaid", "lblDep", "lblTotal", "lblSub"}, 0);
    Session& session = program.session;
    session.dBillTotal = session.dAmountGen = session.dAmountBal = session.dAmountPaid = 0;
    if (billNo.isEmpty())
        return;
    ignoringFaults([&] {
        if (const std::optional<double> total = refreshRow(program, billNo))
            show(screen, {"lblBilled", "lblTotal"}, *total);
    });
    refreshBillAmountPaid(program, billNo);
    ignoringFaults([&] { showBillInfo(program, screen, billNo); });
}

} // namespace orvane
