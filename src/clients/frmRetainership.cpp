#include "clients/frmRetainership.h"

namespace orvane {

namespace {

const QString wholeMonth = "31";

} // namespace

frmRetainership::frmRetainership(Program& owner) : Screen(owner, "frmRetainership", "Client Information") {
    for (TextBox* box : {&txtName, &txtContact, &txtAddress})
        box->upperCase();
    cboNum.setToolTip("Specify 31 if not Required");
    grdData.hide({"RetainCode", "retainID", "ClientType"});
    grdData.setFormat("Debt", "#,##0.00");
}

Layout frmRetainership::layout() const {
    using namespace orvane::layout;
    return column({row({field("Search", txtSearch, 40), stretch()}), cell(grdData),
                   row({column({field("Company Name", txtName, 44), field("Contact Name", txtContact, 44),
                                field("Address", txtAddress, 44), field("Email", txtEmail, 44)}),
                        column({field("Client Type", cboClient, 20), field("Phone", txtPhone, 20),
                                row({field("Client Active?", cboYes, 8), field("Month Ending", cboNum, 8), stretch()}),
                                account.layout()}),
                        stretch()}),
                   master.row()});
}

void frmRetainership::Form_Load() {
    for (ComboBox* box : {&cboYes, &cboNum, &cboClient})
        box->clear();
    cboYes.addItems({"", "YES", "NO"});
    cboNum.addItem("");
    for (int day = 1; day <= 31; ++day)
        cboNum.addItem(QString::number(day));
    cboNum.setText(wholeMonth);
    cboClient.addItem("");
    Connection connection = program.openBilling();
    Recordset types(connection, Sql("select distinct clientType from hClientType order by clientType"));
    for (; !types.eof(); types.moveNext())
        cboClient.addItem(types.text("clientType"));
    fillGrid();
    openEntry(false);
}

void frmRetainership::fillGrid() {
    Connection connection = program.openBilling();
    grdData.load(Recordset(
        connection, Sql("select distinct RetainCode, retainID, ClientName,ClientType,Category, Address, PhoneNo, "
                        "Email, Contact,Active, Debt,BillEndDate from vwhretainership order by clientName")));
}

void frmRetainership::txtSearch_Change() {
    if (txtSearch.text().isEmpty()) {
        grdData.clear();
        return;
    }
    Connection connection = program.openBilling();
    grdData.load(Recordset(
        connection, Sql("select distinct RetainCode, retainID, ClientName,ClientType,Category, Address, PhoneNo, "
                        "Email, Contact,Active, Debt,BillEndDate from vwhretainership where  ClientName like '")
                        << txtSearch.text() << "%' order by ClientName"));
}

void frmRetainership::cboClient_Click() {
    sClientType = cboClient.text();
}

QString frmRetainership::accountOf(const QString& retainID) {
    Connection connection = program.openBilling();
    const Recordset client(connection, Sql("select AcctID from vwhretainership where retainID='") << retainID << "'");
    return client.eof() ? QString() : client.text("AcctID");
}

void frmRetainership::cmdAdd_Click() {
    openEntry(true);
    txtName.setFocus();
}

void frmRetainership::cmdEdit_Click() {
    // A double click in the list must not take away what is being entered.
    if (grdData.currentRow() < 0 || master.isEntering())
        return;
    bEditing = true;
    openEntry(true);
    sRetainID = grdData.text("retainID");
    txtName.setText(grdData.text("ClientName"));
    txtContact.setText(grdData.text("Contact"));
    txtPhone.setText(grdData.text("PhoneNo"));
    txtAddress.setText(grdData.text("Address"));
    txtEmail.setText(grdData.text("Email"));
    cboClient.setText(grdData.text("ClientType"));
    cboYes.setText(grdData.text("Active"));
    account.txtAcctNo.setText(accountOf(sRetainID));
    const QString lastDay = grdData.text("BillEndDate");
    cboNum.setText(lastDay.isEmpty() ? wholeMonth : lastDay);
    txtName.setFocus();
}

void frmRetainership::cmdDel_Click() {
    if (grdData.currentRow() < 0)
        return;
    save<Saved>({.button = master.cmdDel,
                 .action = "CLIENT DELETE",
                 .question = "Are you sure to Delete Record",
                 .title = "Delete",
                 .consent = Consent::Destroys,
                 .detail = [this] { return grdData.text("ClientName"); },
                 .step = [id = grdData.text("retainID")](Books& books) { return deleteClient(books, id); },
                 .follow =
                     [this](const Saved&) {
                         program.box(" Record successfully deleted ");
                         fillGrid();
                     }});
}

void frmRetainership::cmdRefresh_Click() {
    Form_Load();
}

void frmRetainership::cmdCancel_Click() {
    bEditing = false;
    clearFields();
    openEntry(false);
}

bool frmRetainership::isComplete() {
    if (!passes({{txtName.text().trimmed().isEmpty(), "Company Name cannot be empty", &txtName},
                 {txtAddress.text().trimmed().isEmpty(), "Company Address cannot be empty", &txtAddress},
                 {cboClient.text().isEmpty(), "Client Type cannot be empty", &cboClient},
                 {cboYes.text().isEmpty(), "Is Client Active? Please Specify", &cboYes}}))
        return false;
    if (cboNum.text().isEmpty())
        cboNum.setText(wholeMonth);
    return true;
}

ClientEntry frmRetainership::entered() const {
    return {.name = txtName.text().trimmed(),
            .type = cboClient.text(),
            .category = bEditing ? sClientType : cboClient.text(),
            .contact = txtContact.text().trimmed(),
            .address = txtAddress.text().trimmed(),
            .phone = txtPhone.text().trimmed(),
            .email = txtEmail.text().trimmed(),
            .account = account.accountNo(),
            .active = cboYes.text(),
            .billEndDay = cboNum.text().toInt()};
}

void frmRetainership::OKButton_Click() {
    if (bEditing)
        save<Saved>({.button = master.OKButton,
                     .action = "CLIENT EDIT",
                     .allowed = [this] { return isComplete(); },
                     .step = [this](Books& books) -> Given<Saved> {
                         changeClient(books, sRetainID, entered());
                         return Saved{};
                     },
                     .follow = [this](const Saved&) { afterSave("Record Succesfully Updated", "Edit Client Info: "); },
                     .trailRows = 1});
    else
        save<QString>({.button = master.OKButton,
                       .action = "CLIENT ADD",
                       .allowed = [this] { return isComplete(); },
                       .step = [this](Books& books) { return addClient(books, entered()); },
                       .follow = [this](const QString&) { afterSave("Record Succesfully saved", "Add Client Info: "); },
                       .trailRows = 1});
}

void frmRetainership::afterSave(const QString& message, const QString& action) {
    program.box(message);
    program.writeAuditTrail(
        {.action = action + txtName.text().trimmed(), .document = {}, .remarks = {}, .user = session.gFullName});
    cmdCancel_Click();
    fillGrid();
}

void frmRetainership::clearFields() {
    for (TextBox* box : {&txtName, &txtContact, &txtPhone, &txtAddress, &txtEmail, &account.txtAcctNo})
        box->clear();
    for (ComboBox* box : {&cboClient, &cboYes})
        box->setListIndex(-1);
    cboNum.setText(wholeMonth);
    sRetainID.clear();
}

void frmRetainership::openEntry(bool entering) {
    for (Control* field : std::initializer_list<Control*>{&txtName, &txtContact, &txtPhone, &txtAddress, &txtEmail,
                                                          &cboClient, &cboYes, &cboNum})
        field->setEnabled(entering);
    account.setEnabled(entering);
    master.setEntering(entering);
}

} // namespace orvane
