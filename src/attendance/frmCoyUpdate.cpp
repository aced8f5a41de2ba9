#include "attendance/frmCoyUpdate.h"

namespace orvane {

frmCoyUpdate::frmCoyUpdate(Program& owner) : Screen(owner, "frmCoyUpdate", "Company Profile") {
    txtNo.setLocked(true);
    txtBill.setLocked(true);
    cboPat.onClick = [this] { cboPat_Click(); };
    OkButton.onClick = [this] { OkButton_Click(); };
    CancelButton.onClick = [this] { unload(); };
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
         !clients.eof(); clients.moveNext())
        cboPat.addItem(clients.text("ClientName") + " [" + clients.text("RetainID") + "]");
}

void frmCoyUpdate::cboPat_Click() {
    if (cboPat.listIndex() < 0)
        return;
    const QString entry = cboPat.text();
    // A client's name may hold a bracket of its own: the id stands in the last one.
    const auto bracket = entry.lastIndexOf(QLatin1Char('['));
    m_retainID = entry.mid(bracket + 1).chopped(1);
    m_clientName = entry.left(bracket).trimmed();
    m_retainCode.clear();
    cboClient.clear();
    Connection connection = program.openBilling();
    const Recordset client(connection, Sql("select distinct ClientType,retainCode from hRetainerShip where retainID='")
                                           << m_retainID << "'");
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

void frmCoyUpdate::OkButton_Click() {
    if (isProcessed()) {
        tellProcessed();
        return;
    }
    if (!checkFields())
        return;
    if (!moveToClient()) {
        tellProcessed();
        return;
    }
    program.writeAuditTrail(
        {"Update Patients' Company Profile", txtBill.text(),
         "UpDate Patient Company Profile: " + session.sBillCoy + " Now: " + m_clientName + "/" + cboClient.text()});
    unload();
}

bool frmCoyUpdate::isProcessed() {
    Connection connection = program.openBilling();
    return isProcessed(connection);
}

bool frmCoyUpdate::isProcessed(Connection& connection) const {
    return !Recordset(connection, Sql("select * from billing where isprocess=1 and billNo='") << txtBill.text() << "'")
                .eof();
}

void frmCoyUpdate::tellProcessed() {
    program.box("This Bill is already processed! to Modify, unProcess the Batch");
}

bool frmCoyUpdate::checkFields() {
    if (txtNo.text().isEmpty()) {
        program.box("Invalid Patient No");
        unload();
        return false;
    }
    if (txtBill.text().isEmpty()) {
        program.box("Invalid Bill No");
        unload();
        return false;
    }
    for (ComboBox* box : {&cboPat, &cboClient}) {
        if (box->listIndex() < 0) {
            program.box("Specify Company Name");
            box->setFocus();
            return false;
        }
    }
    return true;
}

// The prices of the items stay those of the tariff that they had. The columns that the screens call the client's name
// hold its id. A batch of another workstation may have taken the bill since it was looked at.
bool frmCoyUpdate::moveToClient() {
    const QString patient = txtNo.text(), bill = txtBill.text(), client = m_retainID, category = cboClient.text();
    Connection connection = program.openBilling();
    Transaction transaction(connection);
    if (isProcessed(connection))
        return false;
    connection.execute(Sql("update hPatients set coyname='")
                       << client << "', clientCatID ='" << category << "'   where pno ='" << patient << "'");
    connection.execute(Sql("update hRecords set coyname='")
                       << client << "', clientCat ='" << category << "'   where consultID ='" << bill << "'");
    connection.execute(Sql("update billingDetails set coyname='")
                       << client << "', billto ='" << m_retainCode << "'   where billno ='" << bill << "'");
    connection.execute(Sql("update billing set ClientID='") << client << "'  where billno ='" << bill << "'");
    connection.execute(Sql("update billAccum set coyname='")
                       << client << "', billto ='" << m_retainCode << "'   where consultID ='" << bill << "'");
    transaction.commit();
    return true;
}

} // namespace orvane
