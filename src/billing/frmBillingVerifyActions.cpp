#include "billing/frmBillingVerify.h"
#include "receipts/frmCashReceipt.h"

namespace orvane {

/// Without a patient says `refusal`. With one, the visit of this screen is the one that other screens work on.
bool frmBillingVerify::hasPatient(const QString& refusal) {
    if (m_bill.consultID.isEmpty()) {
        program.box(refusal);
        return false;
    }
    takeInHand();
    return true;
}

void frmBillingVerify::cmdAddBill_Click() {
    if (!hasPatient("Specify name of Patient"))
        return;
    getConFromAdmission();
    program.openModal("frmBillPat");
    getAccumBill();
    showScreen("Bill for ");
}

void frmBillingVerify::cmdPrice_Click() {
    if (!hasPatient("No Patient is selected"))
        return;
    {
        Connection connection = program.openBilling();
        const Recordset bill(connection, Sql("select isprocess from billing where billno='")
                                             << m_bill.consultID << "'");
        if (!bill.eof() && bill.integer("isprocess") == 1) {
            program.box("Please Note! This Bill Item is Already Processed!!! Reverse Processing to Adjust");
            return;
        }
        if (grdData.currentRow() < 0) {
            program.box("Please specify Item");
            return;
        }
        session.lWorkSNo = qlonglong(grdData.number("SNo"));
        const Recordset line(connection, Sql("select sno from billingdetails where sno=") << session.lWorkSNo);
        if (!line.eof())
            program.box("Please Note! This Selected Item is Already Billed");
    }
    program.openModal("frmPriceAdjustVerify");
    getAccumBill();
}

void frmBillingVerify::cmdUnBilled_Click() {
    if (!hasPatient("No Patient is selected"))
        return;
    Connection connection = program.openBilling();
    QStringList names;
    for (Recordset rows(connection, Sql("select SNo,DrgName from billAccum where  consultID='")
                                        << m_bill.consultID << "' and SNo not in (Select SNo from BillingDetails)");
         !rows.eof(); rows.moveNext())
        names << rows.text("DrgName");
    program.box(names.isEmpty() ? "All Items Billed" : names.join(QLatin1Char('\n')));
}

void frmBillingVerify::cmdPresc_Click() {
    Connection connection = program.openBilling();
    QStringList prescriptions;
    for (Recordset rows(connection,
                        Sql("select consultid,prescription,treatedby,policytype from qryhconsulting where consultid='")
                            << m_bill.consultID << "'");
         !rows.eof(); rows.moveNext())
        prescriptions << "Policy/HMO Type: " + rows.text("policytype") + QLatin1Char('\n') + rows.text("prescription") +
                             "\nTreated by Dr. " + rows.text("treatedby");
    program.box(prescriptions.isEmpty() ? "No prescription " : prescriptions.join("\n\n"));
}

void frmBillingVerify::cmdDispense_Click() {
    Connection connection = program.openBilling();
    QStringList plans;
    for (Recordset rows(connection, Sql("select consultid,treatplan from qryhconsulting where consultid='")
                                        << m_bill.consultID << "'");
         !rows.eof(); rows.moveNext())
        plans << rows.text("treatplan");
    program.box(plans.isEmpty() ? "No Treatment Plan " : plans.join("\n\n"));
}

/// The diagnosis before the newest one.
void frmBillingVerify::cmdLastDiag_Click() {
    Connection connection = program.openBilling();
    Recordset rows(connection, Sql("select CDate,diagnosis from qryhconsulting where pno='")
                                   << m_bill.pno << "' order by CDate desc");
    if (!rows.eof())
        rows.moveNext();
    program.box(rows.eof() ? "No Last Diagnosis"
                           : rows.date("CDate").toString("dd/MM/yyyy") + QLatin1Char('\n') + rows.text("diagnosis"));
}

void frmBillingVerify::cmdAcct_Click() {
    if (!m_bill.consultID.isEmpty())
        takeInHand();
    session.sDebtMode = "AUTO";
    // One that is still open shows the patient before.
    if (Form* shown = program.loadedForm("frmDebtInfo"))
        shown->unload();
    program.open("frmDebtInfo");
}

void frmBillingVerify::cmdCoy_Click() {
    if (!hasPatient("No Patient is selected"))
        return;
    program.openModal("frmCoyUpdate");
    cmdRefresh_Click();
}

void frmBillingVerify::cmdSplit_Click() {
    if (!hasPatient("No Patient is selected"))
        return;
    if (m_bill.consultID.size() > 12) {
        program.box("this bill cannot be Split! Already a Split  Bill");
        return;
    }
    {
        Connection connection = program.openBilling();
        const Recordset parts(connection, Sql("select  recDate from hRecords where substring(consultID,1,12)='")
                                              << m_bill.consultID << "'");
        if (parts.count() > 3) {
            program.box("No of Bill Splitting Exceeded");
            return;
        }
    }
    program.openModal("frmBillSplitting");
    cmdRefresh_Click();
}

void frmBillingVerify::cmdExt_Click() {
    program.open("frmInvestigatePublic");
}

void frmBillingVerify::cmdRev_Click() {
    program.open("frmRevHeaders");
}

void frmBillingVerify::cmdPR_Click() {
    if (m_bill.category != QLatin1String("PRIVATE")) {
        program.box("Printing of RECEIPT is for PRIVATE Patient only");
        return;
    }
    showCashReceipt(program, lblRct.text());
}

void frmBillingVerify::cmdPrint_Click() {
    if (!m_bill.consultID.isEmpty())
        takeInHand();
    program.open("FrmRptBillsByPat");
}

} // namespace orvane
