#include "clients/FrmRptBillsByPat.h"

#include "clients/InvoicePaper.h"

namespace orvane {

namespace {

const QString noReport = "No Report for the specified Clients";

/// What an entry of the list stands for: a bill, whose, and of which client, by name.
struct ListedBill {
    QString billNo, pno, client;
};

/// What an invoice is called, by the category and the referral of its visit.
QString headingOf(const QString& category, const QString& referal) {
    static const QStringList capitated = {"NHIS", "HMO", "PHIS"};
    if (!capitated.contains(category, Qt::CaseInsensitive))
        return "Client Invoice";
    return referal.compare("NO", Qt::CaseInsensitive) == 0 ? "HMo Claims  Invoice" : "Fee for Service Invoice";
}

} // namespace

FrmRptBillsByPat::FrmRptBillsByPat(Program& owner) : ReportScreen(owner, "FrmRptBillsByPat", "Patient's Invoice") {
    DTPicker1.setRangeEnd(&DTPicker2);
    cboCust.setToolTip("F3 finds any patient");
    // The patients of another category are none of this one.
    for (OptionButton* category : {&radCorp, &radHMO, &radPvt, &radAll})
        category->onClick = [this] {
            cboCust.clear();
            cboCust_Click();
        };
}

Layout FrmRptBillsByPat::layout() const {
    using namespace orvane::layout;
    return column({row({field("Attendance Between", DTPicker1), field("and", DTPicker2), cell(radCorp), cell(radHMO),
                        cell(radPvt), cell(radAll), cell(cmdList), stretch()}),
                   row({field("Patient", cboCust, 70), growing(facts({{"Number", &lblNo}, {"Client", &lblCoy}})),
                        cell(cmdPresc)}),
                   growing(cell(crViewer1)),
                   buttons({&chkRpt}, {&CancelButton, &cmdCap, &cmdAdmInv, &cmdInv2, &cmdDisplay})});
}

void FrmRptBillsByPat::Form_Load() {
    const QDate today = program.getServerDateTime().date();
    DTPicker1.setDate(today);
    DTPicker2.setDate(today);
    radAll.setChecked(true);
}

Sql FrmRptBillsByPat::chosenCategory() const {
    if (radCorp.isChecked())
        return {" and clientcatID not in ('PRIVATE','HMO','NHIS','PHIS')"};
    if (radHMO.isChecked())
        return {" and clientcatID in ('HMO','NHIS','PHIS')"};
    if (radPvt.isChecked())
        return {" and clientcatID='PRIVATE'"};
    return {};
}

void FrmRptBillsByPat::cmdList_Click() {
    if (passes({{DTPicker1.isEmpty() || DTPicker2.isEmpty(), " Please, Specify Period .", &DTPicker1}}))
        listBills((Sql("Date between '") << DTPicker1.date() << "' and '" << DTPicker2.date() << "'")
                  << chosenCategory() << " order by fullName");
}

/// His visits, the newest first.
Screen::PatientTaker FrmRptBillsByPat::patientTaker() {
    return [this](const QString& pno) {
        listBills(Sql("PNo='") << pno << "' order by Date desc");
        takeOnly(cboCust, "This patient has no bill");
    };
}

void FrmRptBillsByPat::listBills(const Sql& which) {
    cboCust.clear();
    cboCust_Click();
    cboCust.fill(Recordset::paged(program.openBilling(),
                                  Sql("select billNo,PNo,fullName,Company,Date from vwbillingForAttd where ") << which),
                 [](const Recordset& row) {
                     const ListedBill bill{row.text("billNo"), row.text("PNo"), row.text("Company")};
                     return ComboBox::Entry{row.text("fullName") + " @" + row.date("Date").toString("dd/MM/yyyy") +
                                                " [" + bill.billNo + ']',
                                            QVariant::fromValue(bill)};
                 });
    cboCust.setFocus();
}

/// A bill of nothing but what a fixed fee covers has no line that names its client: then the visit does.
void FrmRptBillsByPat::cboCust_Click() {
    const ListedBill picked = cboCust.picked<ListedBill>().value_or(ListedBill());
    m_billNo = picked.billNo;
    m_pno = picked.pno;
    m_client = picked.client;
    if (!m_billNo.isEmpty()) {
        Connection connection = program.openBilling();
        const Recordset bill(connection, Sql("select Coyname,billNo,PNo from vwBillingForClaimsByPat where billNo='")
                                             << m_billNo << "'");
        if (!bill.eof()) {
            m_client = bill.text("Coyname");
            m_pno = bill.text("PNo");
        }
    }
    lblCoy.setText(m_client);
    lblNo.setText(m_pno);
    crViewer1.clear();
}

bool FrmRptBillsByPat::hasPatient() {
    return passes({{m_billNo.isEmpty(), "Please select Patient's Name", &cboCust}});
}

bool FrmRptBillsByPat::isReady() {
    return hasPatient() && passes({{DTPicker1.isEmpty() || DTPicker2.isEmpty(), "Please specify Date", &DTPicker1},
                                   {m_client.isEmpty(), "Please Specify Name of Client", &cboCust}});
}

void FrmRptBillsByPat::cmdDisplay_Click() {
    if (!isReady())
        return;
    if (chkRpt.isChecked())
        showBill("\\rptClientBill.rpt", "text5",
                 Sql("select distinct * from vwBillingForCorpClientsByPat where billNo ='")
                     << m_billNo << "' order by Fullname");
    else
        showBill("\\rptHmoClaims.rpt", "text6",
                 Sql("select distinct * from vwBillingForClaimsByPat where billNo ='")
                     << m_billNo << "' order by Fullname");
}

void FrmRptBillsByPat::cmdInv2_Click() {
    if (isReady())
        showBill("\\rptClientBill2.rpt", "text6",
                 Sql("select distinct * from vwBillingForClaimsByPatInvoice where billNo ='") << m_billNo << "'");
}

void FrmRptBillsByPat::cmdAdmInv_Click() {
    if (isReady())
        showBill("\\rptHmoClaimsGrouped.rpt", "text6",
                 Sql("select distinct * from vwBillingForClaimsByPatGrouped where billNo ='") << m_billNo << "'");
}

void FrmRptBillsByPat::cmdCap_Click() {
    if (isReady())
        showBill("\\rptHmoClaims.rpt", "text6",
                 Sql("select distinct * from vwBillingForCapByPat where billno ='") << m_billNo << "'");
}

QString FrmRptBillsByPat::attendanceDate(Connection& connection) const {
    const Recordset visit(connection, Sql("select distinct recDate from hrecords where consultID ='")
                                          << m_billNo << "'");
    return visit.eof() ? QString() : visit.date("recDate").toString("dd/MM/yyyy");
}

void FrmRptBillsByPat::showBill(const QString& file, const QString& headingObject, const Sql& sql) {
    Connection connection = program.openBilling();
    const Recordset rows(connection, sql);
    const QString category = rows.eof() ? QString() : rows.text("pCatid");
    QHash<QString, QString> values;
    QHash<QString, QString> texts = {{"AttndDate", attendanceDate(connection)}};
    if (!rows.eof()) {
        texts.insert(headingObject, headingOf(category, rows.text("referal")));
        values = category.compare("PRIVATE", Qt::CaseInsensitive) == 0
                     ? sentToPatient(connection, rows.text("Fullname"), m_pno)
                     : sentToClient(connection, m_client, rows.text("CoyCode"));
    }
    showReport({.file = file, .rows = rows, .nothing = noReport, .textObjects = texts, .values = values});
}

void FrmRptBillsByPat::cmdPresc_Click() {
    if (!hasPatient())
        return;
    session.gConsultID = m_billNo;
    program.openModal("frmTreatment");
}

} // namespace orvane
