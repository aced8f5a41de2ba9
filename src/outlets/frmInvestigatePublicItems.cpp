#include "data/words/Money.h"
#include "outlets/frmInvestigatePublic.h"

namespace orvane {

namespace {

double numberIn(const QString& text) {
    return parseAmount(text).value_or(0);
}

/// With two decimals where they tell the whole price.
QString priceText(double price) {
    return round2(price) == price ? formatTwoDecimals(price) : QString::number(price, 'g', 15);
}

} // namespace

void frmInvestigatePublic::cboCat_Click() {
    cboDrug.clear();
    const OutletKind* kind = outletKind(cboCat.text());
    if (!kind)
        return;
    Connection connection = program.openBilling();
    cboDrug.addItem("");
    cboDrug.addItems(outletItems(connection, *kind));
}

void frmInvestigatePublic::cboDrug_Click() {
    if (cboDrug.listIndex() <= 0)
        return;
    const OutletKind* kind = outletKind(cboCat.text());
    if (!passes({{!kind, "specify Category", &cboCat}}))
        return;
    std::optional<OutletPrice> price;
    {
        Connection connection = program.openBilling();
        price = outletPrice(connection, *kind, cboDrug.text(), session.gPrivateTariff);
    }
    if (!price) {
        clearItem();
        program.box("Invalid Entry! Please Select an Item in the Box");
        return;
    }
    m_tariff = *price;
    lblCat.setText(price->category);
    txtQty.setText("1");
    txtPrice.setText(priceText(price->price));
    cboRev.setListIndex(-1);
    cboRev.setText(price->revType);
}

void frmInvestigatePublic::showSubTotal() {
    lblSub.setText(formatTwoDecimals(round2(numberIn(txtQty.text()) * numberIn(txtPrice.text()))));
}

bool frmInvestigatePublic::isInGrid() {
    for (int row = 1; row < OrderGrid.rows() - 1; ++row)
        if (OrderGrid.cell(row, Item).compare(cboDrug.text(), Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

bool frmInvestigatePublic::isLineComplete() {
    const bool lacksRevenueType = cboRev.text().isEmpty() || cboRev.text() == "OTHERS";
    return passes({{isInGrid(), "Duplicate Item/Service Entry not allowed", &cboDrug},
                   {txtName.text().trimmed().isEmpty(), "Please specify a Patient Name ", &txtName},
                   {cboDrug.text().isEmpty(), "Please specify Item ", &cboDrug},
                   {lacksRevenueType, "Please specify Revenue Type!", &cboRev},
                   {numberIn(txtQty.text()) <= 0, "Specify Qty in digits ", &txtQty},
                   {!parseAmount(txtPrice.text()), "Specify Price in digits  ", &txtPrice},
                   {numberIn(txtPrice.text()) <= 0, "Cannot add this line without a price to Grid ", &txtPrice},
                   {cboCat.text().isEmpty(), "Please specify Drug/Service ", &cboCat}});
}

bool frmInvestigatePublic::isTariffEdited() const {
    return numberIn(txtPrice.text()) != m_tariff.price || cboRev.text() != m_tariff.revType;
}

void frmInvestigatePublic::cmdAdd_Click() {
    if (!isTariffEdited()) {
        if (!settlesSave() && isLineComplete())
            addLine();
        return;
    }
    save<Saved>({.button = cmdAdd,
                 .action = "OUTLET TARIFF",
                 .allowed = [this] { return isLineComplete(); },
                 .step =
                     [this](Books& books) {
                         return changeOutletPrice(books, *outletKind(cboCat.text()), cboDrug.text(),
                                                  {.sno = m_tariff.sno,
                                                   .price = numberIn(txtPrice.text()),
                                                   .revType = cboRev.text(),
                                                   .category = {}});
                     },
                 .follow = [this](const Saved&) { addLine(); }});
}

void frmInvestigatePublic::addLine() {
    const double qty = numberIn(txtQty.text()), price = numberIn(txtPrice.text());
    const QStringList cells = {cboDrug.text(),
                               lblCat.text(),
                               priceText(price),
                               QString::number(qty, 'g', 15),
                               formatTwoDecimals(round2(qty * price)),
                               cboRev.text(),
                               cboCat.text()};
    const int line = OrderGrid.rows() - 1;
    for (int column = 0; column < cells.size(); ++column)
        OrderGrid.setCell(line, column, cells.at(column));
    OrderGrid.addRow();
    showTotal();
    clearItem();
    cboDrug.setFocus();
}

void frmInvestigatePublic::clearItem() {
    m_tariff = {};
    cboDrug.setListIndex(-1);
    cboRev.setListIndex(-1);
    lblCat.clear();
    txtQty.setText("0");
    txtPrice.setText("0");
    showSubTotal();
}

void frmInvestigatePublic::OrderGrid_Click() {
    const int row = OrderGrid.currentRow();
    if (row < 1 || row >= OrderGrid.rows() - 1)
        return;
    OrderGrid.removeRow(row);
    showTotal();
}

void frmInvestigatePublic::showTotal() {
    double total = 0;
    for (const OutletItem& item : entered())
        total += item.subTotal;
    lblTotal.setText(formatTwoDecimals(round2(total)));
}

QVector<OutletItem> frmInvestigatePublic::entered() const {
    QVector<OutletItem> items;
    for (int row = 1; row < OrderGrid.rows() - 1; ++row)
        items.append({.name = OrderGrid.cell(row, Item),
                      .category = OrderGrid.cell(row, Category),
                      .kind = OrderGrid.cell(row, EntryType),
                      .price = numberIn(OrderGrid.cell(row, Price)),
                      .qty = numberIn(OrderGrid.cell(row, Units)),
                      .subTotal = numberIn(OrderGrid.cell(row, SubTotal)),
                      .revType = OrderGrid.cell(row, RevenueType)});
    return items;
}

} // namespace orvane
