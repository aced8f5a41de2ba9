#include "outlets/frmBillingPublic.h"

#include "data/words/Money.h"

namespace orvane {

namespace {

void showNaira(Label& label, double amount) {
    label.setText(formatTwoDecimals(round2(amount)));
}

} // namespace

frmBillingPublic::frmBillingPublic(Program& owner) : Screen(owner, "frmBillingPublic", "Service outlets") {
    for (const char* column : {"UnitPrice", "Subtotal"})
        grdData.setFormat(column, "#,###.00");
    grdData.hide({"SNo", "conID", "billtype", "ConsultID"});
    for (TextBox* amount : {&txtEmp, &txtHt})
        amount->numeric();
    txtWord.setLocked(true);
    txtEmp.setToolTip("zero for Credit Patients");
    fraReceipt.holds({&lblRct, &cboCat, &cmdRev, &cboPay, &txtCheque, &cboClinic, &txtEmp, &txtHt, &txtWord});
    DTPicker1.setRangeEnd(&dtDate);
}

Layout frmBillingPublic::billLayout() const {
    using namespace orvane::layout;
    return row(
        {growing(column({growing(cell(grdData)), field("Diagnosis", txtDiag)})),
         card({field("Current Bill:", lblSub), field("Bill Variation:", lblProf), field("Bal B/F:", lblBF),
               field("System Total Bill:", lblTotal), field("Deposits:", lblDep), large("Bill Payable:", lblPay)})});
}

Layout frmBillingPublic::receiptLayout() const {
    using namespace orvane::layout;
    return group(
        fraReceipt.caption(),
        {row({field("Receipt No", lblRct), stretch(), field("Clinic Type", cboClinic, 18)}),
         row({field("Being Payment for", cboCat, 40), cell(cmdRev), stretch(), field("Pay Type", cboPay, 12),
              field("Cheque No", txtCheque, 14)}),
         row({field("Amount Due", txtEmp, 14), field("Amount Paid", txtHt, 14), field("Amount in Words", txtWord)})},
        &fraReceipt);
}

Layout frmBillingPublic::layout() const {
    using namespace orvane::layout;
    return column({row({field("Date between", DTPicker1), field("Bill Date:", dtDate), cell(cmdList), stretch()}),
                   field("Patient", cboVehNo), facts({{"Bill No", &lblBill}, {"Client", &lblCoy}}), cell(lblDisplay),
                   growing(billLayout()), cell(chkRct), receiptLayout(),
                   buttons({&cmdAdd, &cmdPresc, &cmdDispense, &cmdPrice},
                           {&cmdPR, &cmdPrint, &cmdRefresh, &cmdCancel, &OKButton})});
}

void frmBillingPublic::Form_Load() {
    DTPicker1.setDate(session.gServerDate);
    dtDate.setDate(session.gServerDate);
    fillLists();
    cmdPR.setEnabled(false);
    cmdPrint.setEnabled(false);
    clearVisit();
}

void frmBillingPublic::fillLists() {
    cboPay.addItems({"CASH", "CHEQUE", "POS", "TRANSFER"});
    Connection connection = program.openBilling();
    for (Recordset clinics(connection, Sql("select ClinicID from clinicTypes")); !clinics.eof(); clinics.moveNext())
        cboClinic.addItem(clinics.text("ClinicID"));
    for (Recordset type(connection,
                        Sql("select distinct revType from hRevenueType where Active='YES' order by revType"));
         !type.eof(); type.moveNext())
        cboCat.addItem(type.text("revType"));
}

/// The visit that the request screen has just saved, and the headings that were picked for a receipt.
void frmBillingPublic::Form_Activate() {
    const QString handed = std::exchange(session.gSearchBillNo, QString());
    const QString heads = std::exchange(session.sRevHeads, QString());
    if ((handed.isEmpty() && heads.isEmpty()) || settlesSave())
        return;
    if (!handed.isEmpty()) {
        listVisits(Sql("consultID='") << handed << "'");
        takeOnly(cboVehNo, "No System generated Bill for this Patient");
    }
    if (!heads.isEmpty() && cboCat.isUsable())
        cboCat.setText(heads);
}

void frmBillingPublic::cmdList_Click() {
    if (passes({{DTPicker1.isEmpty(), "Please specify Date", &DTPicker1},
                {dtDate.isEmpty(), "Please specify Date", &dtDate}}))
        listVisits(Sql("date between '") << DTPicker1.date() << "' and '" << dtDate.date() << "'");
}

/// The receipt and the date as they begin, and those who wait for their bill.
void frmBillingPublic::cmdAdd_Click() {
    chkRct.setChecked(false);
    dtDate.setDate(session.gServerDate);
    cmdList_Click();
}

void frmBillingPublic::listVisits(const Sql& which) {
    clearVisit();
    cboVehNo.clear();
    cboVehNo.addItem(QString());
    Connection connection = program.openBilling();
    for (Recordset rows(connection,
                        Sql("select distinct  Date,Remarks,coyname,patno,fullname,consultID from qryBillAccumPublic "
                            "where SUBSTRING(consultID, 7, 1) = '/' and  attendedTo=0 and ")
                            << which << " order by fullname");
         !rows.eof(); rows.moveNext()) {
        const ListedVisit visit{rows.text("consultID"), rows.text("patno"), rows.text("fullname"), rows.date("Date")};
        cboVehNo.addItem(QStringLiteral("%1 @%2 %3 - %4 [%5]")
                             .arg(visit.patient, visit.date.toString("dd/MM/yyyy"), rows.text("Remarks"),
                                  rows.text("coyname"), visit.consultID),
                         QVariant::fromValue(visit));
    }
    cboVehNo.setFocus();
}

void frmBillingPublic::cboVehNo_Click() {
    const auto visit = cboVehNo.picked<ListedVisit>();
    clearVisit();
    if (visit)
        loadVisit(*visit);
}

void frmBillingPublic::loadVisit(const ListedVisit& visit) {
    {
        Connection connection = program.openBilling();
        lblBill.setText(visit.consultID);
        lblCoy.setText("PRIVATE");
        readItems(connection);
        showFigures(connection);
    }
    // Only now: a visit that a fault left half read gets no bill.
    m_visit = visit;
    session.gConsultID = visit.consultID;
    session.sBillPatName = visit.patient;
    if (grdData.rowCount() == 0)
        program.box("No System generated Bill for this Patient");
    chkRct.setChecked(true);
}

void frmBillingPublic::readItems(Connection& connection) {
    grdData.load(Recordset(
        connection, Sql("select distinct billtype,SNo,conID,[Date],ConsultID,Service,UnitPrice,Qty,Subtotal from "
                        "qryBillAccumPublic where attendedTo=0 and consultid='")
                        << lblBill.text() << "'"));
    m_listed = 0;
    const int column = grdData.columnIndex("Subtotal");
    for (int row = 0; row < grdData.rowCount(); ++row)
        m_listed += round2(grdData.value(row, column).toDouble());
    m_listed = round2(m_listed);
}

/// What is payable: the fresh items and what an earlier collation of the visit left.
void frmBillingPublic::showFigures(Connection& connection) {
    double billed = 0, paid = 0;
    const Recordset known(connection, Sql("select distinct  billno from billing where  billno='")
                                          << lblBill.text() << "'");
    if (!known.eof()) {
        const Recordset bill(connection, Sql("select distinct billtype,amountBilled,AmountPaid,billno from billing "
                                             "where billno='")
                                             << lblBill.text() << "'");
        billed = bill.number("amountBilled");
        paid = bill.number("AmountPaid");
    }
    showNaira(lblSub, m_listed);
    showNaira(lblProf, 0);
    showNaira(lblBF, billed - paid);
    showNaira(lblTotal, billed + m_listed);
    showNaira(lblDep, paid);
    showNaira(lblPay, billed + m_listed - paid);
    lblDisplay.setText((known.eof() ? "New Bill for " : "Existing Bill for ") + cboVehNo.text().section(" @", 0, 0) +
                       "   =N=" + lblTotal.text());
}

void frmBillingPublic::clearVisit() {
    m_visit = {};
    m_listed = 0;
    for (Label* label : {&lblBill, &lblCoy, &lblSub, &lblProf, &lblBF, &lblTotal, &lblDep, &lblPay})
        label->clear();
    lblDisplay.setText("Bill Collation");
    txtDiag.clear();
    grdData.clear();
    if (chkRct.isChecked())
        chkRct.setChecked(false);
    else
        clearReceipt();
}

/// The visit in hand anew, with what others have added or billed meanwhile.
void frmBillingPublic::cmdRefresh_Click() {
    if (m_visit.consultID.isEmpty()) {
        cmdList_Click();
        return;
    }
    const ListedVisit visit = m_visit;
    clearVisit();
    loadVisit(visit);
}

void frmBillingPublic::cmdCancel_Click() {
    cboVehNo.setListIndex(-1);
    clearVisit();
}

} // namespace orvane
