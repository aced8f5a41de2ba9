#include "accounts/frmSupplers.h"

namespace orvane {

frmSupplers::frmSupplers(Program& owner) : Screen(owner, "frmSupplers", "Creditors") {
    for (TextBox* box : {&txtName, &txtContact, &txtAddress})
        box->upperCase();
    grdData.hide({"supplierID"});
}

Layout frmSupplers::layout() const {
    using namespace orvane::layout;
    return column(
        {row({cell(lblHead), stretch(), field("Search", txtSearch, 40)}), cell(grdData),
         row({column({field("Name", txtName, 44), field("Contact Name", txtContact, 44),
                      field("Address", txtAddress, 44), field("Email", txtEmail, 44)}),
              column({field("Category", cboClient, 20), field("Phone", txtPhone, 20), account.layout()}), stretch()}),
         master.row()});
}

void frmSupplers::Form_Load() {
    fillCategories();
    fillGrid();
    openEntry(false);
}

/// Those of the screen's head, and others that creditors bear.
void frmSupplers::fillCategories() {
    QStringList categories = {"SUPPLIER", "CONTRACTOR", "CONSULTANT"};
    Connection connection = program.openBilling();
    Recordset used(connection, Sql("select distinct Category from suppliers where isnull(Category,'')<>''"));
    for (; !used.eof(); used.moveNext())
        if (!categories.contains(used.text("Category"), Qt::CaseInsensitive))
            categories << used.text("Category");
    cboClient.clear();
    cboClient.addItems(categories);
}

void frmSupplers::fillGrid() {
    Connection connection = program.openBilling();
    grdData.load(Recordset(connection, Sql("select * from vwsuppliers order by SupplierName")));
}

void frmSupplers::txtSearch_Change() {
    if (txtSearch.text().isEmpty()) {
        grdData.clear();
        return;
    }
    Connection connection = program.openBilling();
    grdData.load(Recordset(connection, Sql("select * from vwsuppliers where  SupplierName like '")
                                           << txtSearch.text() << "%' order by SupplierName"));
}

void frmSupplers::cmdAdd_Click() {
    openEntry(true);
    txtName.setFocus();
}

void frmSupplers::cmdEdit_Click() {
    // A double click in the list must not take away what is being entered.
    if (grdData.currentRow() < 0 || master.isEntering())
        return;
    bEditing = true;
    openEntry(true);
    sSupplierID = grdData.text("supplierID");
    txtName.setText(grdData.text("SupplierName"));
    txtContact.setText(grdData.text("Contact"));
    txtAddress.setText(grdData.text("Address"));
    txtEmail.setText(grdData.text("Email"));
    cboClient.setText(grdData.text("Category"));
    txtPhone.setText(grdData.text("Phone"));
    account.txtAcctNo.setText(grdData.text("AccountNo"));
    txtName.setFocus();
}

void frmSupplers::cmdDel_Click() {
    if (grdData.currentRow() < 0)
        return;
    save<Saved>({.button = master.cmdDel,
                 .action = "SUPPLIER DELETE",
                 .question = "Are you sure to Delete Record",
                 .title = "Delete",
                 .consent = Consent::Destroys,
                 .detail = [this] { return grdData.text("SupplierName"); },
                 .step = [id = grdData.text("supplierID")](Books& books) -> Given<Saved> {
                     archiveSupplier(books, id);
                     return Saved{};
                 },
                 .follow =
                     [this](const Saved&) {
                         program.box(" Record successfully deleted ");
                         fillGrid();
                     }});
}

void frmSupplers::cmdRefresh_Click() {
    Form_Load();
}

void frmSupplers::cmdCancel_Click() {
    bEditing = false;
    clearFields();
    openEntry(false);
}

bool frmSupplers::isComplete() {
    return passes({{txtName.text().trimmed().isEmpty(), "Suppler/Contractor Name cannot be empty", &txtName},
                   {txtAddress.text().trimmed().isEmpty(), "Address cannot be empty", &txtAddress},
                   {cboClient.text().isEmpty(), "Supplier/Contractor Category cannot be empty", &cboClient}});
}

Supplier frmSupplers::entered() const {
    return {.name = txtName.text().trimmed(),
            .category = cboClient.text(),
            .contact = txtContact.text().trimmed(),
            .address = txtAddress.text().trimmed(),
            .phone = txtPhone.text().trimmed(),
            .email = txtEmail.text().trimmed(),
            .accountNo = account.accountNo()};
}

void frmSupplers::OKButton_Click() {
    if (bEditing)
        save<Saved>({.button = master.OKButton,
                     .action = "SUPPLIER EDIT",
                     .allowed = [this] { return isComplete(); },
                     .step = [this](Books& books) -> Given<Saved> {
                         changeSupplier(books, sSupplierID, entered());
                         return Saved{};
                     },
                     .follow = [this](const Saved&) { afterSave("Record Succesfully Updated"); }});
    else
        save<QString>({.button = master.OKButton,
                       .action = "SUPPLIER ADD",
                       .allowed = [this] { return isComplete(); },
                       .step = [this](Books& books) { return addSupplier(books, entered()); },
                       .follow = [this](const QString&) { afterSave("Record Succesfully saved"); }});
}

void frmSupplers::afterSave(const QString& message) {
    program.box(message);
    const QString saved = entered().name;
    cmdCancel_Click();
    fillGrid();
    if (const int row = grdData.findRow("SupplierName", saved); row >= 0)
        grdData.selectRow(row);
    master.cmdAdd.setFocus();
}

void frmSupplers::clearFields() {
    for (TextBox* box : {&txtName, &txtContact, &txtPhone, &txtAddress, &txtEmail, &account.txtAcctNo})
        box->clear();
    cboClient.setListIndex(-1);
    sSupplierID.clear();
}

void frmSupplers::openEntry(bool entering) {
    for (Control* field :
         std::initializer_list<Control*>{&txtName, &txtContact, &txtPhone, &txtAddress, &txtEmail, &cboClient})
        field->setEnabled(entering);
    account.setEnabled(entering);
    master.setEntering(entering);
}

} // namespace orvane
