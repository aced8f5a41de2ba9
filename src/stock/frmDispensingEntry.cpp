#include "data/words/Money.h"
#include "stock/frmDispensing.h"

namespace orvane {

namespace {

/// The columns of OrderGrid.
enum Column { Drug, Category, Price, Units, SubTotal, Usage };

const QString unset = "- - - - - -";

QString orUnset(const Recordset& row, const char* column) {
    return row.isNull(column) ? unset : row.text(column);
}

} // namespace

void frmDispensing::cboDrug_Click() {
    forgetDrug();
    if (cboDrug.listIndex() < 0)
        return;
    showDrug();
    if (!passes(
            {{lblClient.text().isEmpty(), "Client Category field cannot be empty please select Patient", &cboVehNo}}))
        return;
    showStock();
    lblPrice.setText(formatTwoDecimals(dispensedPrice(m_cost, m_markUp)));
    showSubTotal();
}

void frmDispensing::showDrug() {
    Connection connection = program.openBilling();
    const Recordset drug(connection, Sql("select  drgcatname,qtyperunit,cost from drugs where drgname ='")
                                         << cboDrug.text() << "'");
    if (drug.eof())
        return;
    lblCat.setText(orUnset(drug, "drgcatname"));
    lblUnit.setText(orUnset(drug, "qtyperunit"));
    m_cost = drug.number("cost");
}

/// It warns, and does not stop the entry.
void frmDispensing::showStock() {
    Connection connection = program.openBilling();
    const Recordset stock(connection, Sql("select itemID, UnitsInStock from stockItemsRetail where itemID='")
                                          << cboDrug.text() << "'");
    lblStock.setText(stock.eof() ? "0" : QString::number(stock.number("UnitsInStock"), 'g', 15));
    if (stock.eof() || stock.number("UnitsInStock") <= 0)
        program.box("This Drug is out of Stock !!! Click Stock Entry Button to enter Stock");
}

/// Takes back what the drug before left.
void frmDispensing::forgetDrug() {
    for (Label* label : {&lblCat, &lblUnit, &lblPrice, &lblSub, &lblStock})
        label->clear();
    m_cost = 0;
}

void frmDispensing::showSubTotal() {
    const std::optional<double> qty = parseAmount(txtQty.text()), price = parseAmount(lblPrice.text());
    lblSub.setText(qty && price ? formatTwoDecimals(*qty * *price) : QString());
}

bool frmDispensing::isInGrid() {
    for (int row = 1; row < OrderGrid.rows() - 1; ++row)
        if (OrderGrid.cell(row, Drug).compare(cboDrug.text(), Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

bool frmDispensing::isLineComplete() {
    return passes({{isInGrid(), "Duplicate Drug/Service Entry not allowed", &cboDrug},
                   {lblNo.text().isEmpty(), "Please specify a Patient File No ", &cboVehNo},
                   {lblCat.text().isEmpty(), "Drug category cannot be empty!!!", &cboDrug},
                   {txtQty.text().isEmpty(), "Please specify Quantity prescribed ", &txtQty},
                   {parseAmount(lblPrice.text()).value_or(0) <= 0,
                    "Click the Drug Cost button and enter price from your Billing Manual \n"
                    "Cannot add this line without a price to Grid !!! ",
                    &cboDrug},
                   {cboDrug.text().isEmpty(), "Please specify Drug/Service used ", &cboDrug},
                   {parseAmount(txtQty.text()).value_or(0) <= 0, "Please specify Quantity of Drug prescribed", &txtQty},
                   {txtUsage.text().trimmed().isEmpty(), "Please specify usage of Drug/Service", &txtUsage}});
}

void frmDispensing::cmdAdd_Click() {
    if (!isLineComplete())
        return;
    const DispensedItem item{.name = cboDrug.text(),
                             .category = lblCat.text(),
                             .price = *parseAmount(lblPrice.text()),
                             .qty = *parseAmount(txtQty.text()),
                             .usage = txtUsage.text()};
    const QString cells[] = {item.name,
                             item.category,
                             lblPrice.text(),
                             QString::number(item.qty, 'g', 15),
                             formatTwoDecimals(item.subTotal()),
                             item.usage};
    const int line = OrderGrid.rows() - 1;
    for (int column = Drug; column <= Usage; ++column)
        OrderGrid.setCell(line, column, cells[column]);
    OrderGrid.addRow();
    showTotal();
    cboDrug.setText({});
    clearLine();
    cboDrug.setFocus();
}

void frmDispensing::OrderGrid_DblClick() {
    const int row = OrderGrid.currentRow();
    if (row < 1 || row >= OrderGrid.rows() - 1)
        return;
    if (!program.question("Are you sure to Delete?", "Check before Delete", Consent::Destroys,
                          aboutLines({itemIn(row).name, nairaText(itemIn(row).subTotal())})))
        return;
    OrderGrid.removeRow(row);
    program.box("Item Removed");
    showTotal();
}

void frmDispensing::showTotal() {
    lblTotal.setText(formatTwoDecimals(entered().total()));
}

DispensedItem frmDispensing::itemIn(int row) const {
    return {.name = OrderGrid.cell(row, Drug),
            .category = OrderGrid.cell(row, Category),
            .price = parseAmount(OrderGrid.cell(row, Price)).value_or(0),
            .qty = parseAmount(OrderGrid.cell(row, Units)).value_or(0),
            .usage = OrderGrid.cell(row, Usage)};
}

void frmDispensing::clearLine() {
    forgetDrug();
    txtQty.clear();
    txtUsage.clear();
}

} // namespace orvane
