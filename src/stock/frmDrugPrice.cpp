#include "stock/frmDrugPrice.h"

#include "data/words/FigToWrd.h"
#include "data/words/Money.h"

namespace orvane {

frmDrugPrice::frmDrugPrice(Program& owner)
    : Screen(owner, "frmDrugPrice", "Service/Drug Cost Extract from Billing Manual") {
    txtSearch.setToolTip("Enter a few Letters");
    cboClient.setToolTip("Select Private");
    txtDosage.numeric();
    txtCost.numeric();
    txtSearch.onChange = [this] { loadGrid(); };
    // A base cost that belongs to another cost or client type must not be saved.
    txtCost.onChange = [this] { lblPrice.clear(); };
    cboClient.onChange = [this] { lblPrice.clear(); };
    cboClient.onClick = [this] {
        lblPrice.clear();
        if (!txtCost.text().isEmpty() && !cboClient.text().isEmpty())
            txtCost_LostFocus();
    };
    txtCost.onLeave = [this] { txtCost_LostFocus(); };
    lblPrice.onChange = [this] { lblPrice_Change(); };
    grdData.onDblClick = [this] { cmdEdit_Click(); };
    cmdEdit.onClick = [this] { cmdEdit_Click(); };
    cmdDel.onClick = [this] { cmdDel_Click(); };
    cmdRefresh.onClick = [this] {
        clearFields();
        loadGrid();
    };
    cmdLab.onClick = [this] { cmdLab_Click(); };
    cmdCancel.onClick = [this] { clearFields(); };
    CancelButton.onClick = [this] { unload(); };
    OKButton.onClick = [this] { OKButton_Click(); };
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

void frmDrugPrice::cmdEdit_Click() {
    if (grdData.currentRow() < 0)
        return;
    txtDrug.setText(grdData.text("service"));
    txtCat.setText(grdData.text("category"));
    txtCost.setText(grdData.text("cost"));
    txtDosage.setText(grdData.text("Unit"));
    cboClient.setText("PRIVATE");
    if (lblPrice.text().isEmpty() && !txtCost.text().isEmpty())
        txtCost_LostFocus();
}

void frmDrugPrice::cmdDel_Click() {
    if (program.question("Are you sure to Delete Record", "Delete"))
        program.box(" Sorry cannot delete record, see the store Officer ");
}

bool frmDrugPrice::txtCost_LostFocus() {
    if (cboClient.text().isEmpty()) {
        program.box("please select client type");
        cboClient.setFocus();
        return false;
    }
    const std::optional<double> cost = parseAmount(txtCost.text());
    if (!cost || *cost < 0) {
        program.box("Cost field cannot be negative or a Character");
        txtCost.setFocus();
        return false;
    }
    Connection connection = program.openBilling();
    const Recordset type(connection, Sql("select clientcatID,pcent from billingPrice where clientcatID='")
                                         << cboClient.text() << "'");
    // Nothing is left of a price that a client type pays at -100 percent, so no base can be found.
    if (!type.eof() && type.number("pcent") > -100)
        lblPrice.setText(formatTwoDecimals(*cost * 100 / (type.number("pcent") + 100)));
    return true;
}

void frmDrugPrice::lblPrice_Change() {
    const std::optional<double> price = parseAmount(lblPrice.text());
    lblWord.setText(price ? figToWrd().amountToWords(*price).toUpper() : QString());
}

void frmDrugPrice::OKButton_Click() {
    if (!checkFields() || !program.question("Are you sure to update", "Check before updating"))
        return;
    if (!saveDrug()) {
        program.box("There is no Drug or Service of this name");
        txtDrug.setFocus();
        return;
    }
    program.box("Record Succesfully updated");
    clearFields();
    loadGrid();
}

bool frmDrugPrice::checkFields() {
    const struct {
        const TextBox& box;
        const char* refusal;
    } required[] = {{txtDrug, "Drug name Field cannot be empty"},
                    {txtCost, "Price Field cannot be empty"},
                    {txtCat, "Category cannot be empty"},
                    {txtDosage, "Unit Dosage cannot be empty"}};
    for (const auto& [box, refusal] : required)
        if (box.text().isEmpty()) {
            program.box(refusal);
            return false;
        }
    const std::optional<double> cost = parseAmount(txtCost.text());
    if (!cost || *cost < 0) {
        program.box("Price field cannot be negative or contain a Character");
        txtCost.setFocus();
        return false;
    }
    // Pressed by Enter or its letter the button does not take the focus, so the cost was never left.
    if (lblPrice.text().isEmpty() && !txtCost_LostFocus())
        return false;
    if (lblPrice.text().isEmpty()) {
        program.box("Price Field cannot be empty");
        cboClient.setFocus();
        return false;
    }
    return true;
}

bool frmDrugPrice::saveDrug() {
    Connection connection = program.openBilling();
    Transaction transaction(connection);
    Recordset drug(connection, Sql("select * from Drugs where drgname ='") << txtDrug.text() << "'");
    if (drug.eof())
        return false;
    drug.set("qtyPerUnit", txtDosage.text());
    drug.set("Cost", parseAmount(lblPrice.text()).value());
    drug.update();
    transaction.commit();
    return true;
}

/// Takes a price load that was laid into the working table, all of it or nothing.
void frmDrugPrice::cmdLab_Click() {
    {
        Connection connection = program.openBilling();
        Transaction transaction(connection);
        Recordset drugs(connection, Sql("select * from drugs where 1=2"));
        for (Recordset load(connection, Sql("select * from drugsxxx")); !load.eof(); load.moveNext()) {
            drugs.addNew();
            for (const char* column : {"drgName", "drgCatName", "qtyPerUnit", "Cost"})
                drugs.set(column, load.value(QString(column)));
            drugs.update();
        }
        transaction.commit();
    }
    program.box("Record transfer successful");
    loadGrid();
}

} // namespace orvane
