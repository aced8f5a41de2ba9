#include "stock/frmStockEntry.h"

#include "books/Words.h"
#include "data/words/Money.h"

#include <cmath>

namespace orvane {

namespace {

/// A whole number above or at zero; none for any other text.
std::optional<double> wholeUnits(const QString& text) {
    const std::optional<double> units = parseAmount(text);
    return units && *units >= 0 && std::floor(*units) == *units ? units : std::nullopt;
}

const QString badQty = "Qty field cannot be negative or a Character";

} // namespace

frmStockEntry::frmStockEntry(Program& owner) : Screen(owner, "frmStockEntry", "Retail Stock Entry [In Flow]") {
    txtQty.numeric();
    txtQty.onLeave = [this] { txtQty_LostFocus(); };
    dtInvDate.setToolTip("Kept as the date of the entry");
    for (TextBox* box : {&txtBatch, &txtExpiry})
        box->setToolTip("Kept behind the comments");
    grdData.setToolTip("Double Click an entry to change it");
    grdData.hide({"EntryID"});
    for (const auto& [column, head] : {std::pair("EntryDate", "Entry Date"),
                                       {"itemCode", "Product/Item Code"},
                                       {"qty", "Retail Qty"},
                                       {"receivedby", "Received by"},
                                       {"comments", "Comments/Condition of product"}})
        grdData.setHead(column, head);
}

Layout frmStockEntry::layout() const {
    using namespace orvane::layout;
    return column(
        {field("Product/Item Code", cboVehNo, 60),
         facts({{"Product Name", &lblName},
                {"Qty In Stock", &lblStock},
                {"Qty/Unit", &lblUnit},
                {"Cost from Bulk", &lblCost}}),
         row({column({field("Retail Qty", txtQty, 12), field("Received by", cboDriver, 34),
                      field("Purchase Order ID", cboCust, 20)}),
              column({field("Entry Date", dtDate), field("Expiry Date", dtInvDate), field("Batch No", txtBatch, 20),
                      field("Expiry of the Batch", txtExpiry, 20)}),
              stretch(), column({card({large("Retail Cost", lblREtail)}), field("Amount In Word", lblWord, 30)})}),
         field("Comments/Condition of product", txtComments, 80), growing(cell(grdData)),
         buttons({&cmdAdd, &cmdEdit, &cmdDel, &cmdRefresh}, {&cmdCancel, &CancelButton, &OKButton})});
}

void frmStockEntry::Form_Load() {
    fillLists();
    beginEntry();
}

void frmStockEntry::fillLists() {
    fillItems();
    Connection connection = program.openBilling();
    cboDriver.clear();
    for (Recordset officer(connection,
                           Sql("select distinct empID,lastname,firstname from employees where deptID = 'PHARM'"));
         !officer.eof(); officer.moveNext())
        cboDriver.addItem(officer.text("lastname") + ' ' + officer.text("firstname") + " [" + officer.text("empID") +
                              ']',
                          officer.text("empID"));
    cboCust.clear();
    cboCust.addItem("");
    for (Recordset order(connection, Sql("select POID from PurchaseOrder")); !order.eof(); order.moveNext())
        cboCust.addItem(order.text("POID"));
}

void frmStockEntry::fillItems() {
    cboVehNo.clear();
    Connection connection = program.openBilling();
    for (Recordset item(connection, Sql("select itemID from StockItemsRetail order by itemID")); !item.eof();
         item.moveNext())
        cboVehNo.addItem(item.text("itemID"), item.text("itemID"));
}

/// Another item than that of the entry under edit begins an entry of its own.
void frmStockEntry::cboVehNo_Click() {
    m_edited.reset();
    showItem();
    showEntries();
}

void frmStockEntry::showItem() {
    for (Label* label : {&lblName, &lblStock, &lblUnit, &lblCost, &lblREtail})
        label->clear();
    Connection connection = program.openBilling();
    const Recordset item(connection, Sql("select itemName,UnitsInStock,QuantityPerUnit,Reorderlevel from "
                                         "StockItemsRetail where ItemID='")
                                         << cboVehNo.text() << "'");
    if (item.eof())
        return;
    lblName.setText(item.text("itemName"));
    lblStock.setText(item.text("UnitsInStock"));
    lblStock.setToolTip("Reorder level " + item.text("Reorderlevel"));
    lblUnit.setText(item.text("QuantityPerUnit"));
    const Recordset bulk(connection, Sql("select itemName,Unitprice from StockItems where ItemID='")
                                         << cboVehNo.text() << "'");
    if (bulk.eof())
        return;
    lblCost.setText(formatTwoDecimals(bulk.number("Unitprice")));
    if (const std::optional<double> cost = retailCost(bulk.number("Unitprice"), lblUnit.text()))
        lblREtail.setText(formatTwoDecimals(*cost));
}

/// The newest ones of the item.
void frmStockEntry::showEntries() {
    Connection connection = program.openBilling();
    grdData.load(Recordset(connection, Sql("select top 5 * from qryStockEntryForGridRetail where itemcode='")
                                           << cboVehNo.text() << "' order by EntryID desc"));
}

void frmStockEntry::txtQty_LostFocus() {
    if (!txtQty.text().isEmpty())
        passes({{!wholeUnits(txtQty.text()), badQty, &txtQty}});
}

void frmStockEntry::lblREtail_Change() {
    const std::optional<double> cost = parseAmount(lblREtail.text());
    lblWord.setText(cost ? getValInWord(*cost) : QString());
}

void frmStockEntry::clearFields() {
    m_edited.reset();
    for (TextBox* box : {&txtQty, &txtComments, &txtBatch, &txtExpiry})
        box->clear();
    dtDate.setDate(session.gServerDate);
    dtInvDate.setDate(session.gServerDate);
}

void frmStockEntry::beginEntry() {
    clearFields();
    for (ComboBox* list : {&cboVehNo, &cboDriver, &cboCust})
        list->setListIndex(-1);
    cboVehNo.setFocus();
}

void frmStockEntry::cmdEdit_Click() {
    if (grdData.currentRow() < 0)
        return;
    clearFields();
    dtInvDate.setDate(grdData.date("EntryDate"));
    txtQty.setText(grdData.text("qty"));
    cboDriver.setListIndex(-1);
    cboDriver.setText(grdData.text("receivedby"));
    txtComments.setText(grdData.text("comments"));
    m_edited = Edited{grdData.text("EntryID").toLongLong(), grdData.number("qty")};
    txtQty.typeOver();
}

void frmStockEntry::cmdDel_Click() {
    program.box("Sorry Records in Stock Entry file cannot be deleted, use edit button to make its QTY value zero and "
                "Comment it as Cancelled");
}

void frmStockEntry::cmdRefresh_Click() {
    const QString item = cboVehNo.text();
    fillLists();
    beginEntry();
    cboVehNo.setText(item);
}

bool frmStockEntry::isComplete() {
    return passes({{cboVehNo.text().isEmpty(), "Drug Item field cannot be empty", &cboVehNo},
                   {txtQty.text().isEmpty(), "Qty field cannot be empty", &txtQty},
                   {cboDriver.text().isEmpty(), "Stock Officer Name cannot be empty", &cboDriver},
                   {!wholeUnits(txtQty.text()), badQty, &txtQty}});
}

/// No table has a column for batch and expiry: they stand behind the comments.
StockEntry frmStockEntry::entered() {
    QString comments = txtComments.text().trimmed();
    if (!txtBatch.text().trimmed().isEmpty())
        comments += " BATCH: " + txtBatch.text().trimmed();
    if (!txtExpiry.text().trimmed().isEmpty())
        comments += " EXPIRY: " + txtExpiry.text().trimmed();
    return {.date = dtInvDate.date(),
            .item = cboVehNo.text(),
            .qty = *wholeUnits(txtQty.text()),
            .receivedBy = cboDriver.picked<QString>().value_or(QString()),
            .comments = comments.trimmed(),
            .retailCost = parseAmount(lblREtail.text()).value_or(0)};
}

void frmStockEntry::OKButton_Click() {
    save<Saved>({.button = OKButton,
                 .action = m_edited ? "STOCK ENTRY EDIT" : "STOCK ENTRY",
                 .allowed = [this] { return isComplete(); },
                 .step =
                     [this](Books& books) {
                         return m_edited ? changeStockEntry(books, m_edited->entryID, m_edited->qty, entered())
                                         : enterStock(books, entered());
                     },
                 .follow =
                     [this](const Saved&) {
                         program.box(m_edited ? "Record Succesfully updated" : "Record Succesfully saved");
                         showSaved();
                     },
                 .refused =
                     [this](Refusal refusal) {
                         program.box(refusalText(refusal));
                         showEntries();
                     }});
}

void frmStockEntry::showSaved() {
    const std::optional<Edited> edited = m_edited;
    clearFields();
    showItem();
    showEntries();
    grdData.selectRow(edited ? grdData.findRow("EntryID", QString::number(edited->entryID)) : 0);
    cboVehNo.setFocus();
}

} // namespace orvane
