#include "clients/frmClients.h"

#include "books/Client.h"
#include "books/ClientMaster.h"

namespace orvane {

Layout frmClients::layout() const {
    using namespace orvane::layout;
    return column({row({field("Client", cboVehNo, 16), cell(lblName, 40), stretch()}), cell(grdData),
                   buttons({&cmdDelete}, {&CancelButton, &OKButton})});
}

void frmClients::Form_Load() {
    grdData.onClick = [this] { grdData_Click(); };
    cboVehNo.addItem(" ");
    Connection connection = program.openBilling();
    Recordset clients(connection, Sql("select distinct retainID,retainName from hretainership"));
    for (; !clients.eof(); clients.moveNext())
        cboVehNo.addItem(clients.text("retainID"), clients.text("retainName"));
    fillGrid();
}

void frmClients::fillGrid() {
    Connection connection = program.openBilling();
    grdData.load(Recordset(connection, Sql("select * from hretainershipExempt")));
}

/// The lists hold ids; this says whose they are.
void frmClients::cboVehNo_Click() {
    lblName.setText(cboVehNo.picked<QString>().value_or(QString()));
}

void frmClients::grdData_Click() {
    Connection connection = program.openBilling();
    lblName.setText(clientName(connection, grdData.text("retainID")));
}

void frmClients::OKButton_Click() {
    save<Saved>({.button = OKButton,
                 .action = "FEE EXEMPTION",
                 .allowed =
                     [this] {
                         return passes({{cboVehNo.text().trimmed().isEmpty(), "Please select a row ", &cboVehNo}});
                     },
                 .step = [this](Books& books) { return exemptClient(books, cboVehNo.text()); },
                 .follow =
                     [this](const Saved&) {
                         program.box("Record Succesfully saved");
                         cboVehNo.setListIndex(-1);
                         fillGrid();
                     }});
}

void frmClients::cmdDelete_Click() {
    if (grdData.currentRow() < 0)
        return;
    save<Saved>({.button = cmdDelete,
                 .action = "FEE EXEMPTION END",
                 .question = "Are you sure to Delete Record",
                 .consent = Consent::Destroys,
                 .detail = [this] { return grdData.text("retainID"); },
                 .step = [id = grdData.text("retainID")](Books& books) -> Given<Saved> {
                     endExemption(books, id);
                     return Saved{};
                 },
                 .follow =
                     [this](const Saved&) {
                         program.box(" Record successfully deleted ");
                         lblName.clear();
                         fillGrid();
                     }});
}

} // namespace orvane
