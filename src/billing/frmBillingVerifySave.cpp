#include "billing/BillDate.h"
#include "billing/BillingRow.h"
#include "billing/frmBillingVerify.h"
#include "books/Words.h"
#include "receipts/frmCashReceipt.h"

#include <QLocale>

namespace orvane {

void frmBillingVerify::OKButton_Click() {
    if (settlesSave() || !isBillInHand() || !isBillOpen() || !areDatesGiven())
        return;
    if (chkRct.isChecked() && fraReceipt.isEnabled() && !isReceiptComplete())
        return;
    confirmProfFee();
    if (dtDate.isEmpty()) {
        program.box("Specify Bill Date");
        dtDate.setFocus();
        return;
    }
    if (!program.question("Are you sure to save?", "About to save"))
        return;
    session.dWorkDate = dtDate.date();
    std::optional<ReceiptEntry> receipt;
    if (chkRct.isChecked()) {
        genIDNo();
        if (lblRct.text().isEmpty()) {
            program.box("Inalid Receipt No! System Failed to Generate Receipt");
            return;
        }
        receipt = receiptOnScreen();
    }

    QString refusal;
    const auto save = [&] {
        ui().setBusy(true);
        refusal = writeBill(receipt ? &*receipt : nullptr);
        ui().setBusy(false);
        return refusal.isEmpty();
    };
    if (!saveOnce(OKButton, save, [this, number = lblRct.text()] { afterSave(number); }))
        program.box(refusal);
}

/// `receiptNo` is empty where no receipt was taken. The saved bill is locked first, so that no fault in what follows
/// leaves one that could be saved again.
void frmBillingVerify::afterSave(const QString& receiptNo) {
    m_saved = true;
    OKButton.setEnabled(false);
    saveApprvCode();
    cmdCancel.setEnabled(true);
    if (receiptNo.isEmpty())
        program.box("Record Succesfully saved");
    else
        showCashReceipt(program, receiptNo);
}

bool frmBillingVerify::isBillInHand() {
    if (session.gConsultID != lblBill.text()) {
        program.box(reselectText());
        return false;
    }
    if (lblBill.text().isEmpty()) {
        program.box("Bill No field cannot be empty");
        return false;
    }
    return true;
}

bool frmBillingVerify::isBillOpen() {
    Connection connection = program.openBilling();
    if (!isBillProcessed(connection, m_bill.consultID))
        return true;
    program.box(billProcessedText());
    return false;
}

bool frmBillingVerify::areDatesGiven() {
    if (!dtAdmit.isEmpty() && !chkDep.isChecked() && dtDisch.isEmpty()) {
        program.box("Please Specify Discharge date of Patient OR tick Deposit Checkbox to enter Deposits");
        dtDisch.setLocked(false);
        dtDisch.setEnabled(true);
        dtDisch.setFocus();
        return false;
    }
    if (dtAdmit.isEmpty() && !dtDisch.isEmpty()) {
        program.box("Discharge date of Patient Requires Admission Date");
        for (DatePicker* date : {&dtAdmit, &dtDisch}) {
            date->clear();
            date->setLocked(false);
        }
        return false;
    }
    return true;
}

/// A reminder only: a fee that was typed but not calculated is not on the bill.
void frmBillingVerify::confirmProfFee() {
    if (txtProf.text().trimmed().isEmpty())
        return;
    txtProf.setFocus();
    program.box("Confirm Prof Fee Entry", Icon::None, "Prof Fee");
}

/// The bill, what it still lacks, its date and its receipt, all or nothing. Gives why nothing was saved; empty: all
/// was. A batch may have taken the bill, or another user its visit, since it was loaded.
QString frmBillingVerify::writeBill(const ReceiptEntry* receipt) {
    Connection connection = program.openBilling();
    Transaction transaction(connection);
    if (isBillProcessed(connection, m_bill.consultID))
        return billProcessedText();
    if (!isVisitUnchanged(connection, m_bill.consultID, m_bill.pno, m_bill.retainID))
        return reselectText();
    saveVisit(connection);
    billWaitingItems(program, connection, m_bill);
    saveBillRow(connection);
    connection.execute(Sql("update BillAccum set attendedTo=1,isbilled=1 where consultID = '")
                       << m_bill.consultID << "'");
    if (receipt)
        saveReceipt(connection, *receipt);
    settleBillDate(connection, m_bill);
    transaction.commit({.action = name()});
    return {};
}

void frmBillingVerify::saveVisit(Connection& connection) {
    connection.execute(Sql("update  hrecords set diagnosis='")
                       << txtDiag.text().trimmed().toUpper() << "' where consultID = '" << m_bill.consultID << "'");
    if (dtAdmit.isEmpty()) {
        connection.execute(Sql("update  hrecords set exitDate=recdate, BillDate=recdate  where consultID = '")
                           << m_bill.consultID << "'");
        return;
    }
    connection.execute(Sql("update  billing set AdmDate='") << dtAdmit.date() << "',DischDate='" << dtDisch.date()
                                                            << "' where billNo = '" << m_bill.consultID << "'");
    connection.execute(Sql("update  hrecords set exitDate='") << dtDisch.date() << "', BillDate='" << dtDisch.date()
                                                              << "'  where consultID = '" << m_bill.consultID << "'");
}

/// The Billing row. Its amount is that of the bill's lines, never the sum on the screen. A bill without lines keeps the
/// amount that it has, such as that of a paper receipt, and "XXX" for its words: the mark of a capitated or paper bill.
void frmBillingVerify::saveBillRow(Connection& connection) {
    Recordset bill(connection, Sql("select * from billing where billNo='") << m_bill.consultID << "'");
    if (bill.eof()) {
        addBillingRow(connection, {dtDate.date(), m_bill.consultID, m_bill.pno, m_bill.retainID, 0, getValInWord(0)});
        bill = Recordset(connection, Sql("select * from billing where billNo='") << m_bill.consultID << "'");
    }
    bill.set("bdate", dtDate.date());
    bill.set("PNo", m_bill.pno);
    bill.set("clientID", m_bill.retainID);
    if (bill.text("AmountBIlledInWord") != "XXX")
        bill.set("AmountBIlledInWord", getValInWord(bill.number("Amountbilled")));
    bill.set("profFee", amountIn(txtProf));
    bill.set("billingMonth", QLocale::c().standaloneMonthName(dtDate.date().month()));
    bill.set("billingYear", QString::number(dtDate.date().year()));
    bill.set("diagnosis", txtDiag.text());
    bill.set("billType", QVariant());
    if (!dtAdmit.isEmpty()) {
        bill.set("admdate", dtAdmit.date());
        bill.set("DischDate", dtDisch.date());
    }
    bill.update();
    updateBillTotal(connection);
}

/// Runs once the bill is saved: a fault here is shown, but must not make the save look undone.
void frmBillingVerify::saveApprvCode() {
    const QString code = txtApprv.text().trimmed();
    if (code.isEmpty())
        return;
    try {
        Connection connection = program.openBilling();
        Recordset row(connection, Sql("select * from hApprvCode where consultID='")
                                      << m_bill.consultID << "' order by SNO");
        const bool isNew = row.eof();
        if (isNew) {
            row.addNew();
            row.set("ApprvDate", session.gServerDate);
            row.set("consultID", m_bill.consultID);
            row.set("billType", m_bill.referal == QLatin1String("YES") ? "FEE-FOR-SERVICE"
                                : isCapitatedCategory(m_bill.category) ? "CLAIMS"
                                                                       : "COMPANY");
            row.set("PNo", m_bill.pno);
        }
        row.set("ApprvCode", code);
        row.update();
        program.writeAuditTrail(
            {(isNew ? "insert Apprv Code for " : "Edit Apprv Code for ") + m_bill.patient, m_bill.consultID, code});
    } catch (const DataError& fault) {
        program.box(fault.description());
    }
}

} // namespace orvane
