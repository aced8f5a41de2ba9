#include "attendance/frmCoyUpdate.h"

#include "books/Bill.h"
#include "books/Client.h"

namespace orvane {

frmCoyUpdate::frmCoyUpdate(Program& owner) : Screen(owner, "frmCoyUpdate", "Company Profile") {
    txtNo.setLocked(true);
    txtBill.setLocked(true);
}

Layout frmCoyUpdate::layout() const {
    using namespace orvane::layout;
    return column({field("Patient No", txtNo, 18), field("Bill No", txtBill, 18), field("Company Name", cboPat, 44),
                   field("Billing Category", cboClient, 16), stretch(), buttons({}, {&CancelButton, &OkButton})});
}

void frmCoyUpdate::Form_Load() {
    txtNo.setText(session.sBillPno);
    txtBill.setText(session.gConsultID);
    Connection connection = program.openBilling();
    for (Recordset clients(connection,
                           Sql("select distinct RetainID,ClientName from vwhRetainerShip order by ClientName"));
         !clients.eof(); clients.moveNext()) {
        const ListedClient client{clients.text("RetainID"), clients.text("ClientName")};
        cboPat.addItem(client.name + " [" + client.retainID + "]", QVariant::fromValue(client));
    }
}

void frmCoyUpdate::cboPat_Click() {
    const auto picked = cboPat.picked<ListedClient>();
    if (!picked)
        return;
    m_retainCode.clear();
    cboClient.clear();
    Connection connection = program.openBilling();
    const Recordset client(connection, Sql("select distinct ClientType,retainCode from hRetainerShip where retainID='")
                                           << picked->retainID << "'");
    if (client.eof())
        return;
    m_retainCode = client.text("retainCode");
    const QString clientType = client.text("ClientType");
    Recordset categories(connection, clientType.isEmpty()
                                         ? Sql("select distinct clientCatID  from billingPrice")
                                         : Sql("select distinct clientCatID  from billingPrice where clientType='")
                                               << clientType << "'");
    for (; !categories.eof(); categories.moveNext())
        cboClient.addItem(categories.text("clientCatID"));
}

bool frmCoyUpdate::mayMove() {
    {
        Connection connection = program.openBilling();
        if (!passes({{isBillProcessed(connection, txtBill.text()), refusalText(Refusal::BillProcessed)}}))
            return false;
    }
    if (!passes({{txtNo.text().isEmpty(), "Invalid Patient No"}, {txtBill.text().isEmpty(), "Invalid Bill No"}})) {
        unload();
        return false;
    }
    return passes({{cboPat.listIndex() < 0, "Specify Company Name", &cboPat},
                   {cboClient.listIndex() < 0, "Specify Company Name", &cboClient}});
}

void frmCoyUpdate::OkButton_Click() {
    save<AuditEntry>({.button = OkButton,
                      .action = "CLIENT MOVE",
                      .allowed = [this] { return mayMove(); },
                      .step = [this](Books& books) -> Given<AuditEntry> {
                          const ListedClient client = *cboPat.picked<ListedClient>();
                          const Given<Saved> moved = moveToClient(books, {.pno = txtNo.text(),
                                                                          .billNo = txtBill.text(),
                                                                          .clientID = client.retainID,
                                                                          .clientCode = m_retainCode,
                                                                          .category = cboClient.text()});
                          if (!moved)
                              return moved.refusal();
                          return AuditEntry{"Update Patients' Company Profile", txtBill.text(),
                                            "UpDate Patient Company Profile: " + session.sBillCoy +
                                                " Now: " + client.name + "/" + cboClient.text()};
                      },
                      .follow =
                          [this](const AuditEntry& entry) {
                              program.writeAuditTrail(entry);
                              unload();
                          },
                      .trailRows = 1});
}

} // namespace orvane
