#include "accounts/frmRevCat.h"

namespace orvane {

frmRevCat::frmRevCat(Program& owner) : Screen(owner, "frmRevCat", "Revenue Types") {
    txtNAme.upperCase();
}

Layout frmRevCat::layout() const {
    using namespace orvane::layout;
    return column({cell(grdData),
                   row({column({field("Revenue Name", txtNAme, 40), field("Category", cboVehNo, 40)}),
                        column({account.layout(), field("Active?", cboYes, 8)}), stretch()}),
                   master.row()});
}

void frmRevCat::Form_Load() {
    cboYes.clear();
    cboYes.addItems({"YES", "NO"});
    fillCategories();
    fillGrid();
    openEntry(false);
}

void frmRevCat::fillGrid() {
    Connection connection = program.openBilling();
    grdData.load(
        Recordset(connection, Sql("select distinct revType as RevenueType,AccountNo,CatRemarks as Category,Active from "
                                  "hRevenueType order by revType")));
}

/// Those in use; another one may be typed.
void frmRevCat::fillCategories() {
    cboVehNo.clear();
    Connection connection = program.openBilling();
    Recordset used(connection, Sql("select distinct CatRemarks from hRevenueType where isnull(CatRemarks,'')<>'' "
                                   "order by CatRemarks"));
    for (; !used.eof(); used.moveNext())
        cboVehNo.addItem(used.text("CatRemarks"));
}

void frmRevCat::cmdAdd_Click() {
    openEntry(true);
    txtNAme.setFocus();
}

void frmRevCat::cmdEdit_Click() {
    // A double click in the list must not take away what is being entered.
    if (grdData.currentRow() < 0 || master.isEntering())
        return;
    openEntry(true);
    bEditing = true;
    sOldName = grdData.text("RevenueType");
    txtNAme.setText(sOldName);
    cboVehNo.setText(grdData.text("Category"));
    account.txtAcctNo.setText(grdData.text("AccountNo"));
    cboYes.setText(grdData.text("Active"));
    txtNAme.setFocus();
}

void frmRevCat::cmdDel_Click() {
    if (grdData.currentRow() < 0)
        return;
    const QString type = grdData.text("RevenueType");
    save<Saved>({.button = master.cmdDel,
                 .action = "REVENUE TYPE DELETE",
                 .allowed =
                     [this, type] {
                         return passes({{isCatchAllRevenue(type), refusalText(Refusal::CatchAllRevenue)}});
                     },
                 .question = "Are you sure to Delete Record",
                 .title = "Delete",
                 .consent = Consent::Destroys,
                 .detail = [type] { return type; },
                 .step = [type](Books& books) { return deleteRevenueType(books, type); },
                 .follow =
                     [this](const Saved&) {
                         program.box(" Record successfully deleted ");
                         fillGrid();
                     }});
}

void frmRevCat::cmdRefresh_Click() {
    Form_Load();
}

void frmRevCat::cmdCancel_Click() {
    openEntry(false);
}

bool frmRevCat::isComplete() {
    const bool lacksAccount = session.gAcctPostOn && account.accountNo().isEmpty();
    return passes({{txtNAme.text().trimmed().isEmpty(), "Specify Revenue Type", &txtNAme},
                   {cboVehNo.text().trimmed().isEmpty(), "Specify Category", &cboVehNo},
                   {cboYes.text().isEmpty(), "Specify Whether Item is Active or Not", &cboYes},
                   {lacksAccount, "Specify Account No", &account.txtAcctNo}});
}

RevenueType frmRevCat::entered() const {
    return {.name = txtNAme.text().trimmed(),
            .category = cboVehNo.text().trimmed(),
            .active = cboYes.text(),
            .accountNo = account.accountNo()};
}

void frmRevCat::OKButton_Click() {
    save<Saved>({.button = master.OKButton,
                 .action = bEditing ? "REVENUE TYPE EDIT" : "REVENUE TYPE ADD",
                 .allowed = [this] { return isComplete(); },
                 .question = "Are you sure to Save Record",
                 .title = "Save",
                 .detail =
                     [this] {
                         const RevenueType now = entered();
                         const bool renamed = bEditing && now.name != sOldName;
                         return aboutLines({renamed ? sOldName + " is renamed to " + now.name : now.name,
                                            "Account " + now.accountNo + ' ' + account.lblAcct.text()});
                     },
                 .step =
                     [this](Books& books) {
                         return bEditing ? changeRevenueType(books, sOldName, entered())
                                         : addRevenueType(books, entered());
                     },
                 .follow =
                     [this](const Saved&) {
                         const QString saved = entered().name;
                         program.box(bEditing ? "Record Succesfully Update" : "Record Succesfully Saved");
                         cmdRefresh_Click();
                         if (const int row = grdData.findRow("RevenueType", saved); row >= 0)
                             grdData.selectRow(row);
                         master.cmdAdd.setFocus();
                     }});
}

void frmRevCat::openEntry(bool entering) {
    bEditing = false;
    for (TextBox* box : {&txtNAme, &account.txtAcctNo})
        box->clear();
    cboVehNo.setText({});
    cboYes.setListIndex(-1);
    for (Control* field : std::initializer_list<Control*>{&txtNAme, &cboVehNo, &cboYes})
        field->setEnabled(entering);
    account.setEnabled(entering);
    master.setEntering(entering);
}

} // namespace orvane
