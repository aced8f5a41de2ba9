#include "billing/frmDecide.h"

#include "session/ListReport.h"

namespace orvane {

frmDecide::frmDecide(Program& owner) : Screen(owner, "frmDecide", "Private Bill") {}

Layout frmDecide::layout() const {
    using namespace orvane::layout;
    return column({cell(cmdAcc), cell(cmdBill), buttons({}, {&CancelButton})});
}

void frmDecide::cmdAcc_Click() {
    Connection connection = program.openBilling();
    const Recordset account(connection, Sql("select * from qryBillingBalanceDue where pno='")
                                            << session.sPrintBillNo << "'");
    const QString fullName = account.eof() ? QString() : account.text("fullname");
    viewList(program, "rptPatAccounts", "Patient Name : " + fullName, account);
}

void frmDecide::cmdBill_Click() {
    if (session.gUsername.compare("Administrator", Qt::CaseInsensitive) == 0)
        program.open("rptPanelBill");
    else
        program.box("Sorry Only Management can view BILL for Private patients");
}

} // namespace orvane
