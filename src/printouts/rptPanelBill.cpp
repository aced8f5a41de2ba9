#include "printouts/rptPanelBill.h"

#include "data/words/FigToWrd.h"
#include "data/words/Money.h"
#include "reports/Report.h"
#include "session/ListReport.h"

namespace orvane {

namespace {

/// What a bill came to, in a line below its lines.
QString figuresOf(const Recordset& bill) {
    const double due = bill.number("Balance");
    return QStringLiteral("Billed %1, paid %2, due %3.   %4")
        .arg(formatTwoDecimals(bill.number("AmountBilled")), formatTwoDecimals(bill.number("AmountPaid")),
             formatTwoDecimals(due), due > 0 ? figToWrd().amountToWords(due).toUpper().trimmed() : QString());
}

} // namespace

rptPanelBill::rptPanelBill(Program& owner) : Screen(owner, "rptPanelBill", "Print Bill") {
    DTPicker1.setRangeEnd(&DTPicker2);
    cboVehNo.setToolTip("F3 finds any patient");
}

Layout rptPanelBill::layout() const {
    using namespace orvane::layout;
    return column({row({field("Bill Date between", DTPicker1), field("and", DTPicker2), field("Payer", cboClient, 30),
                        cell(cmdInv), stretch()}),
                   row({field("Patient", cboVehNo, 70), stretch()}), stretch(),
                   buttons({}, {&CancelButton, &cmdHeads, &OKButton})});
}

void rptPanelBill::Form_Load() {
    const QDate today = session.gServerDate;
    DTPicker1.setDate(today);
    DTPicker2.setDate(today);
    cboClient.addItem("(ALL)", QString());
    {
        Connection connection = program.openBilling();
        Recordset payer(connection, Sql("select ClientID,ClientNAme from clients order by ClientNAme"));
        for (; !payer.eof(); payer.moveNext())
            cboClient.addItem(payer.text("ClientNAme"), payer.text("ClientNAme"));
    }
    cboClient.setListIndex(0);
    if (!session.sPrintBillNo.isEmpty())
        listBills(Sql("pno='") << session.sPrintBillNo << "' order by Date desc,BillNo");
}

void rptPanelBill::cmdInv_Click() {
    if (!passes({{DTPicker1.isEmpty() || DTPicker2.isEmpty(), "Please specify Start/End Date", &DTPicker1}}))
        return;
    const QString payer = cboClient.picked<QString>().value_or(QString());
    Sql which = Sql("Date between '") << DTPicker1.date() << "' and '" << DTPicker2.date() << "'";
    if (!payer.isEmpty())
        which << " and CoyName='" << payer << "'";
    listBills(which << " order by Fullname,BillNo");
}

/// His bills, the newest first.
Screen::PatientTaker rptPanelBill::patientTaker() {
    return [this](const QString& pno) {
        listBills(Sql("pno='") << pno << "' order by Date desc,BillNo");
        takeOnly(cboVehNo, "This patient has no bill");
    };
}

void rptPanelBill::listBills(const Sql& which) {
    cboVehNo.clear();
    cboVehNo.fill(
        Recordset::paged(program.openBilling(), Sql("select BillNo,Fullname,Date from vwBilling where ") << which),
        [](const Recordset& row) {
            return ComboBox::Entry{row.text("Fullname") + " @" + row.date("Date").toString("dd/MM/yyyy") + " [" +
                                       row.text("BillNo") + ']',
                                   row.text("BillNo")};
        });
    cboVehNo.setFocus();
}

std::optional<QString> rptPanelBill::pickedBill() {
    const auto bill = cboVehNo.picked<QString>();
    passes({{!bill, "Specify Patient", &cboVehNo}});
    return bill;
}

void rptPanelBill::OKButton_Click() {
    const auto billNo = pickedBill();
    if (!billNo)
        return;
    Connection connection = program.openBilling();
    const Recordset bill(connection, Sql("select * from vwBilling where BillNo='") << *billNo << "'");
    const Recordset lines = connection.call("getBilling", {{"@billNo", *billNo}});
    if (bill.eof() || lines.eof())
        program.box("This bill has no lines.");
    else
        viewList(program, "rptInpatient2", "Bill " + *billNo + " of " + bill.text("Fullname"), lines, figuresOf(bill));
}

/// The private in-patient's form, or the client's.
void rptPanelBill::cmdHeads_Click() {
    const auto billNo = pickedBill();
    if (!billNo)
        return;
    Connection connection = program.openBilling();
    const Recordset heads(connection, Sql("select * from qryBillingForPrivateInPatientInvoice where billno='")
                                          << *billNo << "'");
    if (heads.eof()) {
        program.box("This bill has no lines.");
        return;
    }
    const bool isPrivate = heads.text("clientcatID").compare("PRIVATE", Qt::CaseInsensitive) == 0;
    const QString file = isPrivate ? "rptBilling.rpt" : "rptBillingForCoy.rpt";
    program.ui().viewReport(
        file, isPrivate ? "BILL" : "COMPANY BILL",
        openReport({.folder = program.homeFolder(), .file = file, .rows = heads, .values = letterhead(program)}));
}

} // namespace orvane
