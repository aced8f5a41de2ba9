#include "books/ApprovalCode.h"
#include "books/Batch.h"
#include "books/BillReview.h"
#include "clients/LineCustom.h"
#include "clients/frmBillProcess.h"
#include "data/words/Money.h"

namespace orvane {

bool frmBillProcess::hasBill() {
    session.gConsultID = grdData.text("BillNo");
    return passes({{session.gConsultID.isEmpty(), "Specify Billno"}});
}

void frmBillProcess::cmdOK_Click() {
    save<Saved>({.button = cmdOK,
                 .action = "BILL NOTE",
                 .allowed = [this] { return hasBill(); },
                 .step = [this](Books& books) -> Given<Saved> {
                     noteOnBill(books);
                     return Saved{};
                 },
                 .follow = [this](const Saved&) { afterNote(); },
                 .trailRows = int(!txtApprv.text().trimmed().isEmpty()) + int(!txtDiag.text().trimmed().isEmpty())});
}

void frmBillProcess::noteOnBill(Books& books) {
    const QString code = txtApprv.text().trimmed();
    if (!code.isEmpty())
        addApprovalCode(books, {.date = grdData.date("AttdDate"),
                                .consultID = session.gConsultID,
                                .pno = grdData.text("pno"),
                                .code = code,
                                .billType = {}});
    const QString diagnosis = txtDiag.text();
    if (!diagnosis.trimmed().isEmpty())
        diagnoseBill(books, session.gConsultID, diagnosis);
}

void frmBillProcess::afterNote() {
    const QString patient = grdData.text("Fullname");
    if (!txtApprv.text().trimmed().isEmpty())
        program.writeAuditTrail({"Add Apprv Code for " + patient, session.gConsultID, {}});
    if (!txtDiag.text().trimmed().isEmpty())
        program.writeAuditTrail({"Update billing with Diagnosis Code for " + patient, session.gConsultID, {}});
    txtApprv.clear();
    txtDiag.clear();
    fillGrid();
}

void frmBillProcess::cmDiag_Click() {
    if (!passes({{!period.isPicked(), "Select Billing Period", &period.cboMonth},
                 {session.sBatchNo.isEmpty(), "Specify Transaction Period", &period.cboMonth}}))
        return;
    session.sBatchNo = m_batchNo = period.batchNo();
    save<Saved>({.button = cmDiag,
                 .action = "BATCH DIAGNOSIS",
                 .step = [this](Books& books) -> Given<Saved> {
                     diagnoseBatch(books, session.sBatchNo, [this] { ui().processEvents(); });
                     return Saved{};
                 },
                 .follow = [this](const Saved&) { program.box("Diagnosis Successfully Added to Bills"); }});
}

void frmBillProcess::cmdRpt_Click() {
    session.sBatchNo = m_batchNo; // another screen may have picked one meanwhile
    save<Saved>({.button = cmdRpt,
                 .action = "RPT HEADINGS",
                 .allowed =
                     [this] {
                         return passes({{session.sBatchNo.isEmpty(), "Specify Transaction Period", &period.cboMonth}});
                     },
                 .step = [this](Books& books) -> Given<Saved> {
                     assignHeadings(books, session.sBatchNo);
                     return Saved{};
                 },
                 .follow = [this](const Saved&) { showLinesWithoutHeading(); }});
}

void frmBillProcess::showLinesWithoutHeading() {
    bool some = false;
    {
        Connection connection = program.openBilling();
        const Recordset lines(connection,
                              Sql("select distinct BillHead,Company from vwBillHeadingWithNull  where batchNo='")
                                  << session.sBatchNo << "' order by Company");
        some = !lines.eof();
    }
    if (!some) {
        program.box("RptHeadings updated for this Batch");
        return;
    }
    program.box("Some Bill Items Have No RptHeadings Please Update");
    program.openModal("frmRptHeading");
}

void frmBillProcess::cmdCust_Click() {
    customiseCurrentLine(program, grdData2);
}

/// A processed bill gives a line too: what its invoice then lacks, the checks tell.
void frmBillProcess::cmdAdjust_Click() {
    const QString billNo = grdData2.text("BillNo");
    const auto sno = qlonglong(grdData2.number("SNO"));
    const QString removed = grdData2.text("Service") + ": Qty:" + grdData2.text("Qty") +
                            " Amount: " + formatNumber(grdData2.number("Amount"), "0.00");
    save<Saved>({.button = cmdAdjust,
                 .action = "DETAIL REMOVED",
                 .allowed =
                     [&] {
                         return passes({{sno == 0, "No Row is selected"}});
                     },
                 .question = "Are you sure to Ajust Bill Details",
                 .title = "Adjustment",
                 .consent = Consent::Destroys,
                 .detail = [&] { return removed; },
                 .step = [&](Books& books) -> Given<Saved> {
                     removeFromDetails(books, billNo, sno);
                     return Saved{};
                 },
                 .follow = [this, billNo, removed, patient = grdData.text("Fullname")](
                               const Saved&) { afterRemoval(billNo, removed, patient); },
                 .trailRows = 1});
}

void frmBillProcess::afterRemoval(const QString& billNo, const QString& removed, const QString& patient) {
    program.box(" Detail Item successfully Removed");
    program.writeAuditTrail({"Remove Bill Item for " + patient, billNo, removed});
    fillGridBills();
}

void frmBillProcess::cmdUpdate_Click() {
    const QString billNo = grdData.text("BillNo");
    if (!passes({{billNo.isEmpty(), "Select a Record"}}))
        return;
    session.gConsultID = billNo;
    session.sBillPatName = grdData.text("Fullname");
    session.sBillPatLabel = session.sBillPatName;
    session.sBillPno = grdData.text("pno");
    session.sBillCoy = grdData.text("CoyName");
    session.dWorkDate = grdData.date("AttdDate");
    program.openModal("frmBillPatAdjust");
    selectCurrentBill();
}

void frmBillProcess::chkBatch_Click() {
    fraBatch.setEnabled(chkBatch.isChecked());
    if (!chkBatch.isChecked())
        return;
    cboVehNo.clear();
    cboVehNo.addItem("");
    Connection connection = program.openBilling();
    const Recordset newest(connection, Sql("select top 1 batchNo  from BillsForClients order by SNO desc "));
    if (!newest.eof())
        cboVehNo.addItem(newest.text("batchNo"));
}

void frmBillProcess::cmdProcess_Click() {
    if (!takePeriod())
        return;
    {
        Connection connection = program.openBilling();
        if (!passes({{isBatchPast(connection, session.sBatchNo),
                      "Invalid Batch No! Please Select a higher Transaction Period", &period.cboMonth}}))
            return;
    }
    program.openModal("frmBillProcessing");
}

} // namespace orvane
