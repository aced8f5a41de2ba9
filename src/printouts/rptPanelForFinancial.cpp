#include "printouts/rptPanelForFinancial.h"

#include "session/ListReport.h"

namespace orvane {

namespace {

/// A list of the panel: its rows of the days d1 to d2 are `rows` d1 "' and '" d2 "'" `order`.
struct PanelReport {
    const char* caption;
    const char* report;
    SqlLiteral rows, order;
    const char* nothing;
};

const PanelReport reports[] = {
    {"Unpaid Private Bills", "rptCompanyBill", "select * from qryhBillingbalanceForPrivate where bdate between '",
     "' order by bdate desc,fullname asc", "No Bills between these two dates"},
    {"Private Bills", "rptPrivateBill",
     "select bdate as Date,billNo as BillNo,fullName as Patient,PNo,Amountbilled as Billed,AmountPaid as "
     "Paid,AmountDue as Due from qryBillingBalanceForPrivate where bdate between '",
     "' order by bdate,billNo", "No Bills between these two dates"},
    {"Clients' Bills", "rptClientBill",
     "select CoyName as Client,Date,BillNo,Fullname as Patient,AmountBilled as Billed,AmountPaid as Paid,Balance from "
     "vwBilling where clientcatID<>'PRIVATE' and Date between '",
     "' order by CoyName,Date,BillNo", "No Bills between these two dates"},
    {"HMO and NHIS Claims", "rptHmoClaims3",
     "select CoyName as Client,clientcatID as Category,Date,BillNo,Fullname as Patient,AmountBilled as Billed from "
     "vwBilling where clientcatID in ('HMO','NHIS','PHIS') and Date between '",
     "' order by CoyName,Date,BillNo", "No Bills between these two dates"},
    {"In-Patients' Unpaid Private Bills", "rptInPatient",
     "select Date,billNo as BillNo,fullName as Patient,PNo,amountbilled as Billed,AmountPaid as Paid,AmountDue as Due "
     "from qryBillingBalanceDueForPrivate where exists (select a.consultID from vwAdmissionAndDischargeInfo a where "
     "a.consultID=billNo) and "
     "Date between '",
     "' order by Date,billNo", "No Bills between these two dates"},
    {"In-Patients' Bills of Clients", "rptInpatientXX",
     "select CoyName as Client,Date,BillNo,Fullname as Patient,AmountBilled as Billed,AmountPaid as Paid,Balance from "
     "vwBilling where clientcatID<>'PRIVATE' and exists (select a.consultID from vwAdmissionAndDischargeInfo a where "
     "a.consultID=BillNo) and "
     "Date between '",
     "' order by CoyName,Date,BillNo", "No Bills between these two dates"},
    {"Receipts (Income)", "rptBillingIncome", "select * from qryhBillingIncome where receiptdate between '",
     "' order by receiptdate,receiptNo", "No Income between these two dates"},
    {"Cancelled Receipts", "rptCancelledReceipt", "select * from qryreceiptCancelled where receiptdate between '",
     "' order by receiptdate desc", "No Cancelled Receipts"},
};

} // namespace

rptPanelForFinancial::rptPanelForFinancial(Program& owner) : Screen(owner, "rptPanelForFinancial", "More Reports") {
    DTPicker1.setRangeEnd(&DTPicker2);
}

Layout rptPanelForFinancial::layout() const {
    using namespace orvane::layout;
    return column({row({field("Report", cboRpt, 40), stretch()}),
                   row({field("Between", DTPicker1), field("and", DTPicker2), stretch()}), stretch(),
                   buttons({}, {&CancelButton, &OKButton})});
}

void rptPanelForFinancial::Form_Load() {
    const QDate today = session.gServerDate;
    DTPicker1.setDate(QDate(today.year(), today.month(), 1));
    DTPicker2.setDate(today);
    for (int i = 0; i < int(std::size(reports)); ++i)
        cboRpt.addItem(reports[i].caption, i);
}

void rptPanelForFinancial::OKButton_Click() {
    const auto picked = cboRpt.picked<int>();
    if (!passes({{DTPicker1.isEmpty() || DTPicker2.isEmpty(), "Please specify Start/End Date", &DTPicker1},
                 {!picked, "Please select a Report", &cboRpt}}))
        return;
    const PanelReport& report = reports[*picked];
    const QDate first = DTPicker1.date(), last = DTPicker2.date();
    const Recordset rows =
        Recordset::paged(program.openBilling(), Sql(report.rows) << first << "' and '" << last << report.order);
    if (rows.eof())
        program.box(report.nothing);
    else
        viewList(program, report.report,
                 cboRpt.text() + " between " + first.toString("dd/MM/yyyy") + " and " + last.toString("dd/MM/yyyy"),
                 rows);
}

} // namespace orvane
