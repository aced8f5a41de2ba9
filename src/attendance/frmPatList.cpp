#include "attendance/frmPatList.h"

namespace orvane {

namespace {

QString inLastBrackets(const QString& entry) {
    return entry.mid(entry.lastIndexOf(QLatin1Char('[')) + 1).chopped(1);
}

} // namespace

frmPatList::frmPatList(Program& owner) : Screen(owner, "frmPatList", "Patient List for Printing of Bills") {
    cboVehNo.onClick = [this] { cboVehNo_Click(); };
    OKButton.onClick = [this] { OKButton_Click(); };
    CancelButton.onClick = [this] { unload(); };
}

Layout frmPatList::layout() const {
    using namespace orvane::layout;
    return column({field("Patient", cboVehNo, 60), field("Bill", cboBill, 60), stretch(),
                   buttons({}, {&CancelButton, &OKButton})});
}

void frmPatList::Form_Load() {
    Connection connection = program.openBilling();
    Recordset bills(
        connection,
        Sql("SELECT distinct billno,clientID,fullname FROM qryBillingBalanceDueForPrivate order by fullname"));
    for (; !bills.eof(); bills.moveNext())
        cboVehNo.addItem(bills.text("fullname") + " @ " + bills.text("clientID") + "  [" + bills.text("billNo") + "]");
}

// The list names a bill; its patient's other bills with a balance are listed behind it.
void frmPatList::cboVehNo_Click() {
    cboBill.clear();
    if (cboVehNo.listIndex() < 0)
        return;
    Connection connection = program.openBilling();
    const Recordset patient(connection,
                            Sql("select bdate,pno,billno,clientID from qryBillingBalanceDueForPrivate where billno='")
                                << inLastBrackets(cboVehNo.text()) << "'");
    if (patient.eof())
        return;
    Recordset bills(connection, Sql("select bdate,pno,billno,clientID from qryBillingBalanceDueForPrivate where pno='")
                                    << patient.text(QStringLiteral("pno")) << "'");
    for (; !bills.eof(); bills.moveNext())
        cboBill.addItem(bills.text("clientID") + " @ " + bills.date("bdate").toString("dd/MM/yyyy") + "  [" +
                        bills.text("billNo") + "]");
}

void frmPatList::OKButton_Click() {
    if (cboBill.listIndex() < 0) {
        program.box("Please select a row ");
        cboBill.setFocus();
        return;
    }
    session.sWorkPno = inLastBrackets(cboBill.text());
    Connection connection = program.openBilling();
    const Recordset bill(connection, Sql("select * from qryBillingBalanceDueForPrivate where billno='")
                                         << session.sWorkPno << "'");
    ui().viewReport("rptBilling", "Private Bill " + session.sWorkPno, bill);
}

} // namespace orvane
