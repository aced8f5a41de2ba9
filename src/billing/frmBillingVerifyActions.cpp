#include "billing/TreatmentPlan.h"
#include "billing/frmBillingVerify.h"
#include "books/Capitation.h"
#include "books/Fees.h"
#include "data/words/Money.h"
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

bool frmBillingVerify::isFeeGiven(TextBox& box, const QString& refusal) {
    return hasPatient("Specify Patient Name") && passes({{parseAmount(box.text()).value_or(-1) < 0, refusal, &box}}) &&
           isBillOpen();
}

void frmBillingVerify::cmdBill_Click() {
    const double bill = parseAmount(lblCurr.text()).value_or(0);
    const QString percent = txtProf.text().trimmed();
    const QString item = professionalFeeItem(percent);
    save<double>({.button = cmdBill,
                  .action = "PROF FEE",
                  .allowed = [this] { return isFeeGiven(txtProf, "Specify Prof fee! Numeric Only"); },
                  .step =
                      [=, this](Books& books) {
                          return addProfessionalFee(books, m_bill, {item, dtDate.date(), *parseAmount(percent)}, bill);
                      },
                  .follow =
                      [=, this](double fee) {
                          program.writeAuditTrail(
                              {"insert " + item + " for: " + m_bill.patient, m_bill.consultID, formatTwoDecimals(fee)});
                          session.sAdjustItem = item;
                          getAccumBill();
                          program.box(percent + "% Prof fee of " + formatTwoDecimals(bill) +
                                      " Added\nProf Fee is based on Current Bill\nProf Fee Charged is " +
                                      formatTwoDecimals(fee));
                      },
                  .trailRows = 1});
}

/// False: its user wants no fee.
bool frmBillingVerify::askFeeItem() {
    m_feeItem = ui().inputBox("Enter Item Description", {}, "NHIS  (" + txtNHIS.text().trimmed() + "%) Fee")
                    .value_or(QString());
    return !m_feeItem.trimmed().isEmpty();
}

void frmBillingVerify::cmdNHIS_Click() {
    const QString percent = txtNHIS.text().trimmed();
    save<double>({.button = cmdNHIS,
                  .action = "NHIS FEE",
                  .allowed = [this] { return isFeeGiven(txtNHIS, "Specify NHIS fee! Numeric Only"); },
                  .prepare = [this] { return askFeeItem(); },
                  .step =
                      [=, this](Books& books) {
                          return addNhisFee(books, m_bill, {m_feeItem, dtDate.date(), *parseAmount(percent)});
                      },
                  .follow =
                      [=, this](double) {
                          program.writeAuditTrail(
                              {"insert Service/NHIS  (" + percent + "%) fee for Drugs/Services for " + m_bill.patient,
                               m_bill.consultID, m_feeItem});
                          session.sAdjustItem = m_feeItem;
                          getAccumBill();
                      },
                  .trailRows = 1});
}

bool frmBillingVerify::isManager() {
    Connection connection = program.openBilling();
    const Recordset manager(connection, Sql("select  * from vwUsers where loginRole='MANAGEMENT' and username='")
                                            << session.gUsername << "'");
    return passes({{manager.eof(), "Only User with Mgt Previlege can initiate this Action"}});
}

void frmBillingVerify::cmdCap_Click() {
    save<Saved>({.button = cmdCap,
                 .action = "CAPITATE ALL",
                 .allowed = [this] { return hasPatient("No Patient is selected") && isManager() && isBillOpen(); },
                 .question = "Are you sure to Capitate all Items in this Bill",
                 .title = "Capitation",
                 .consent = Consent::Destroys,
                 .detail = [this] { return aboutBill(); },
                 .step = [this](Books& books) { return capitateBill(books, m_bill); },
                 .follow =
                     [this](const Saved&) {
                         program.box(" Bill Item successfully Capitated");
                         getAccumBill();
                     }});
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
    showOr(names.join('\n'), "All Items Billed");
}

void frmBillingVerify::showOr(const QString& text, const QString& nothing) {
    program.box(text.isEmpty() ? nothing : text);
}

void frmBillingVerify::cmdPresc_Click() {
    Connection connection = program.openBilling();
    showOr(prescriptions(connection, m_bill.consultID), "No prescription ");
}

void frmBillingVerify::cmdDispense_Click() {
    Connection connection = program.openBilling();
    showOr(treatmentPlans(connection, m_bill.consultID), "No Treatment Plan ");
}

void frmBillingVerify::cmdLastDiag_Click() {
    Connection connection = program.openBilling();
    showOr(lastDiagnosis(connection, m_bill.pno), "No Last Diagnosis");
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
    takeInHand();
    // One that is still open moves the bill that it was opened for.
    if (Form* shown = program.loadedForm("frmCoyUpdate"))
        shown->unload();
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
    program.openModal("frmRevHeaders");
    const QString heads = std::exchange(session.sRevHeads, QString());
    if (receipt.cboPayFor.isUsable() && !heads.isEmpty())
        receipt.cboPayFor.setText(heads);
}

void frmBillingVerify::cmdPR_Click() {
    if (m_bill.category != "PRIVATE") {
        program.box("Printing of RECEIPT is for PRIVATE Patient only");
        return;
    }
    showCashReceipt(program, receipt.lblRct.text());
}

void frmBillingVerify::cmdPrint_Click() {
    if (!m_bill.consultID.isEmpty())
        takeInHand();
    program.open("FrmRptBillsByPat");
}

} // namespace orvane
