#include "printouts/FrmRptBillsByClient.h"

namespace orvane {

FrmRptBillsByClient::FrmRptBillsByClient(Program& owner)
    : ReportScreen(owner, "FrmRptBillsByClient", "Bill Incurred by Clients") {
    DTPicker1.setRangeEnd(&DTPicker2);
}

Layout FrmRptBillsByClient::layout() const {
    using namespace orvane::layout;
    return column({row({field("Billed Between", DTPicker1), field("and", DTPicker2), cell(cmdList),
                        field("Client", cboCust, 40), field("Bill", cboBill, 40), stretch()}),
                   growing(cell(crViewer1)), buttons({}, {&CancelButton, &cmdDisplay})});
}

void FrmRptBillsByClient::Form_Load() {
    DTPicker1.setDate(session.gServerDate);
    DTPicker2.setDate(session.gServerDate);
    cmdList_Click();
}

bool FrmRptBillsByClient::isReady() {
    return passes({{DTPicker1.isEmpty() || DTPicker2.isEmpty(), "Please specify Start/End Date", &DTPicker1}});
}

/// Who was billed something in these days.
void FrmRptBillsByClient::cmdList_Click() {
    if (!isReady())
        return;
    m_first = DTPicker1.date();
    m_last = DTPicker2.date();
    cboCust.clear();
    cboCust.addItem("(ALL)", QString());
    Connection connection = program.openBilling();
    Recordset client(connection, Sql("select distinct coyfullname from vwOrderDetails where dtDate between '")
                                     << m_first << "' and '" << m_last << "' order by coyfullname");
    for (; !client.eof(); client.moveNext())
        cboCust.addItem(client.text("coyfullname"), client.text("coyfullname"));
    cboCust.setListIndex(0);
}

/// The bills of one client.
void FrmRptBillsByClient::cboCust_Click() {
    cboBill.clear();
    cboBill.addItem("(ALL)", QString());
    const QString client = cboCust.picked<QString>().value_or(QString());
    if (!client.isEmpty())
        cboBill.fill(
            Recordset::paged(program.openBilling(),
                             Sql("select distinct billno,Fullname from vwOrderDetails where dtDate between '")
                                 << m_first << "' and '" << m_last << "' and coyfullname='" << client
                                 << "' order by Fullname,billno"),
            [](const Recordset& row) {
                return ComboBox::Entry{row.text("Fullname") + " [" + row.text("billno") + ']', row.text("billno")};
            });
    cboBill.setListIndex(0);
}

/// In no order: the report sorts many lines faster than a server does.
Sql FrmRptBillsByClient::chosenLines() const {
    const QString client = cboCust.picked<QString>().value_or(QString());
    const QString bill = cboBill.picked<QString>().value_or(QString());
    Sql sql = Sql("select * from vwOrderDetails where dtDate between '")
              << DTPicker1.date() << "' and '" << DTPicker2.date() << "'";
    if (!client.isEmpty())
        sql << " and coyfullname='" << client << "'";
    if (!bill.isEmpty())
        sql << " and billno='" << bill << "'";
    return sql;
}

void FrmRptBillsByClient::cmdDisplay_Click() {
    if (isReady())
        showReport({.file = "\\rptBills.rpt",
                    .rows = Recordset::paged(program.openBilling(), chosenLines()),
                    .nothing = "No Report for the specified Client",
                    .values = {{"Period", periodWords(DTPicker1.date(), DTPicker2.date())}}});
}

} // namespace orvane
