#include "attendance/frmPatList.h"

#include "session/ListReport.h"

namespace orvane {

frmPatList::frmPatList(Program& owner) : Screen(owner, "frmPatList", "Patient List for Printing of Bills") {
    cboVehNo.setToolTip("F3 finds any patient");
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
        cboVehNo.addItem(bills.text("fullname") + " @ " + bills.text("clientID") + "  [" + bills.text("billNo") + "]",
                         bills.text("billNo"));
}

/// The first of his bills in the list.
Screen::PatientTaker frmPatList::patientTaker() {
    return [this](const QString& pno) {
        QStringList his;
        {
            Connection connection = program.openBilling();
            for (Recordset bills(connection, Sql("select billno from qryBillingBalanceDueForPrivate where pno='")
                                                 << pno << "'");
                 !bills.eof(); bills.moveNext())
                his << bills.text("billno");
        }
        for (int i = 0; i < cboVehNo.count(); ++i)
            if (his.contains(cboVehNo.itemData(i).toString()))
                return cboVehNo.setListIndex(i);
        program.box("This patient has no private bill that is due");
    };
}

// The list names a bill; its patient's other bills with a balance are listed behind it.
void frmPatList::cboVehNo_Click() {
    cboBill.clear();
    const auto billNo = cboVehNo.picked<QString>();
    if (!billNo)
        return;
    Connection connection = program.openBilling();
    const Recordset patient(connection,
                            Sql("select bdate,pno,billno,clientID from qryBillingBalanceDueForPrivate where billno='")
                                << *billNo << "'");
    if (patient.eof())
        return;
    Recordset bills(connection, Sql("select bdate,pno,billno,clientID from qryBillingBalanceDueForPrivate where pno='")
                                    << patient.text("pno") << "'");
    for (; !bills.eof(); bills.moveNext())
        cboBill.addItem(bills.text("clientID") + " @ " + bills.date("bdate").toString("dd/MM/yyyy") + "  [" +
                            bills.text("billNo") + "]",
                        bills.text("billNo"));
}

void frmPatList::OKButton_Click() {
    if (!passes({{cboBill.listIndex() < 0, "Please select a row ", &cboBill}}))
        return;
    session.sWorkPno = *cboBill.picked<QString>();
    Connection connection = program.openBilling();
    const Recordset bill(connection, Sql("select * from qryBillingBalanceDueForPrivate where billno='")
                                         << session.sWorkPno << "'");
    viewList(program, "rptBilling", "Private Bill " + session.sWorkPno, bill);
}

} // namespace orvane
