#include "stock/frmDrugPrice.h"

#include "books/DrugPrice.h"
#include "books/Words.h"
#include "data/words/Money.h"

namespace orvane {

frmDrugPrice::frmDrugPrice(Program& owner)
    : Screen(owner, "frmDrugPrice", "Service/Drug Cost Extract from Billing Manual") {
    txtSearch.setToolTip("Enter a few Letters");
    cboClient.setToolTip("Select Private");
    txtDosage.numeric();
    txtCost.numeric();
    cboClient.onChange = cboClient.onClick;
    txtCost.onLeave = [this] { txtCost_LostFocus(); };
    grdData.onDblClick = [this] { cmdEdit_Click(); };
}

Layout frmDrugPrice::layout() const {
    using namespace orvane::layout;
    return column({row({field("Quick Search (Enter a few Letters)", txtSearch, 30), stretch()}), cell(grdData),
                   row({column({field("Service/Drug Name", txtDrug, 44), field("Category", txtCat, 30),
                                field("Unit Dosage for Billing", txtDosage, 12)}),
                        column({field("Client Type (Select Private)", cboClient, 16), field("Cost", txtCost, 16),
                                large("Price (based on Private Price value)", lblPrice)}),
                        stretch()}),
                   field("Cost In Word", lblWord),
                   buttons({&cmdEdit, &cmdDel, &cmdRefresh, &cmdLab}, {&cmdCancel, &CancelButton, &OKButton})});
}

void frmDrugPrice::Form_Load() {
    grdData.setFormat("cost", "#,##0.00");
    Connection connection = program.openBilling();
    for (Recordset types(connection, Sql("select clientcatID,pcent from billingPrice order by clientcatID"));
         !types.eof(); types.moveNext())
        cboClient.addItem(types.text("clientcatID"));
    loadGrid();
}

void frmDrugPrice::loadGrid() {
    Connection connection = program.openBilling();
    grdData.load(Recordset(connection, Sql("select drgName as service,drgCatName as category,Cost as cost,qtyPerUnit "
                                           "as Unit from Drugs where drgName like '")
                                           << txtSearch.text() << "%' order by drgName"));
}

void frmDrugPrice::clearFields() {
    for (TextBox* box : {&txtDrug, &txtCat, &txtDosage, &txtCost})
        box->clear();
    cboClient.setListIndex(-1);
}

void frmDrugPrice::cmdRefresh_Click() {
    clearFields();
    loadGrid();
}

void frmDrugPrice::cmdEdit_Click() {
    if (grdData.currentRow() < 0)
        return;
    txtDrug.setText(grdData.text("service"));
    txtCat.setText(grdData.text("category"));
    txtCost.setText(grdData.text("cost"));
    txtDosage.setText(grdData.text("Unit"));
    cboClient.setText("PRIVATE");
    // What is stored is a base cost already.
    if (const std::optional<double> cost = parseAmount(txtCost.text()))
        lblPrice.setText(formatTwoDecimals(*cost));
}

void frmDrugPrice::cmdDel_Click() {
    if (program.question("Are you sure to Delete Record", "Delete", Consent::Destroys))
        program.box(" Sorry cannot delete record, see the store Officer ");
}

/// A price that is shown belongs to the cost and the client type as they stand, or they would have taken it away.
void frmDrugPrice::txtCost_LostFocus() {
    if (lblPrice.text().isEmpty())
        workPrice();
}

bool frmDrugPrice::workPrice() {
    const std::optional<double> cost = parseAmount(txtCost.text());
    if (!passes({{cboClient.text().isEmpty(), "please select client type", &cboClient},
                 {cost.value_or(-1) < 0, "Cost field cannot be negative or a Character", &txtCost}}))
        return false;
    Connection connection = program.openBilling();
    const Recordset type(connection, Sql("select clientcatID,pcent from billingPrice where clientcatID='")
                                         << cboClient.text() << "'");
    const std::optional<double> base = type.eof() ? std::nullopt : baseCost(*cost, type.number("pcent"));
    if (base)
        lblPrice.setText(formatTwoDecimals(*base));
    return true;
}

void frmDrugPrice::lblPrice_Change() {
    const std::optional<double> price = parseAmount(lblPrice.text());
    lblWord.setText(price ? getValInWord(*price) : QString());
}

bool frmDrugPrice::isComplete() {
    if (!passes({{txtDrug.text().isEmpty(), "Drug name Field cannot be empty"},
                 {txtCost.text().isEmpty(), "Price Field cannot be empty"},
                 {txtCat.text().isEmpty(), "Category cannot be empty"},
                 {txtDosage.text().isEmpty(), "Unit Dosage cannot be empty"},
                 {parseAmount(txtCost.text()).value_or(-1) < 0, "Price field cannot be negative or contain a Character",
                  &txtCost}}))
        return false;
    // Pressed by Enter or its letter the button does not take the focus, so the cost was never left.
    return (!lblPrice.text().isEmpty() || workPrice()) &&
           passes({{lblPrice.text().isEmpty(), "Price Field cannot be empty", &cboClient}});
}

void frmDrugPrice::OKButton_Click() {
    save<Saved>({.button = OKButton,
                 .action = "DRUG PRICE",
                 .allowed = [this] { return isComplete(); },
                 .question = "Are you sure to update",
                 .title = "Check before updating",
                 .detail =
                     [this] {
                         return aboutLines({txtDrug.text(), nairaText(parseAmount(lblPrice.text()).value_or(0))});
                     },
                 .step =
                     [this](Books& books) {
                         return changeDrugPrice(books, {.drug = txtDrug.text(),
                                                        .unitDosage = txtDosage.text(),
                                                        .cost = *parseAmount(lblPrice.text())});
                     },
                 .follow =
                     [this](const Saved&) {
                         program.box("Record Succesfully updated");
                         const QString drug = txtDrug.text();
                         cmdRefresh_Click();
                         grdData.selectRow(grdData.findRow("service", drug));
                         grdData.setFocus();
                     },
                 .refused =
                     [this](Refusal refusal) {
                         program.box(refusalText(refusal));
                         txtDrug.setFocus();
                     }});
}

/// Takes a price load that was laid into the working table, all of it or nothing.
void frmDrugPrice::cmdLab_Click() {
    save<Saved>({.button = cmdLab,
                 .action = "PRICE LOAD",
                 .step = [](Books& books) -> Given<Saved> {
                     takePriceLoad(books);
                     return Saved{};
                 },
                 .follow =
                     [this](const Saved&) {
                         program.box("Record transfer successful");
                         loadGrid();
                     }});
}

} // namespace orvane
