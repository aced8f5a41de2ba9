#include "billing/ItemCapture.h"

#include "data/words/Money.h"

namespace orvane {

namespace {

/// A typed amount or quantity; what is no number counts 0.
double numberIn(const QString& text) {
    return parseAmount(text).value_or(0);
}

bool isNumeric(const TextBox& box) {
    return parseAmount(box.text()).has_value();
}

} // namespace

TariffFields ItemCapture::tariffFields() {
    return {cboCat, cboDrug, txtPrice, txtQty, lblStock, lblCat, lblInfo, cboFFS2, cboRev ? &*cboRev : nullptr};
}

void ItemCapture::cboDrug_Click() {
    onItemPicked(program, m_tariff, tariffFields(), visit());
}

void ItemCapture::cboCat_Click() {
    if (cboCat.listIndex() <= 0)
        return;
    Sql items;
    if (cboCat.text() == "DRUG")
        items = Sql("select distinct drug as service from vwDrugsForGrid order by drug");
    else if (cboCat.text() == "SERVICE")
        items = Sql("select distinct service from qryhServices order by service");
    else
        items = Sql("select distinct Drgname as service from labservices order by drgname");
    Connection connection = program.openBilling();
    cboDrug.clear();
    cboDrug.addItem("");
    for (Recordset row(connection, items); !row.eof(); row.moveNext())
        cboDrug.addItem(row.text("Service"));
}

/// Whichever name is chosen, the item goes to the visit's client; the box only keeps the private account free of
/// capitation.
void ItemCapture::cboPat_Click() {
    sRetainCode = sRetainID;
    if (sRetainCode == session.gPrivateTariff || sRetainCode == "0001")
        cboFFS2.setText("NO");
}

void ItemCapture::priceOrQuantity_Change() {
    if (isNumeric(txtPrice) && isNumeric(txtQty))
        txtSub.setText(QString::number(numberIn(txtPrice.text()) * numberIn(txtQty.text()), 'g', 15));
}

/// A typed line total fills in a missing unit price.
void ItemCapture::txtSub_Change() {
    if (!isNumeric(txtQty) || numberIn(txtQty.text()) == 0 || numberIn(txtPrice.text()) > 0)
        return;
    txtPrice.setText(QString::number(numberIn(txtSub.text()) / numberIn(txtQty.text()), 'g', 15));
}

void ItemCapture::cmdAdd_Click() {
    for (int row = 1; row < OrderGridDrug.rows() - 1; ++row)
        if (cboDrug.text().compare(OrderGridDrug.cell(row, Item), Qt::CaseInsensitive) == 0)
            program.box("Duplicate Entry Detected please Confirm");
    if (!isLineComplete())
        return;
    txtSub.setText(formatTwoDecimals(numberIn(txtPrice.text()) * numberIn(txtQty.text())));
    writeLine();
    total += numberIn(txtSub.text());
    lblTotal.setText(formatTwoDecimals(total));
    rememberChoice();
    resetEntryLine();
    cboDrug.setFocus();
}

/// Without a revenue type there is no whole choice to remember.
void ItemCapture::rememberChoice() {
    const TariffKind* kind = tariffKind(cboCat.text(), m_tariff);
    if (!cboRev || !kind)
        return;
    Connection connection = program.openBilling();
    rememberTemplateFlags(connection, *kind, visit(), cboDrug.text(), cboFFS2.text(), cboRev->text());
}

bool ItemCapture::isLineComplete() {
    struct FieldCheck {
        bool failed;
        const char* message;
        Control* control;
    };
    const bool needsRevenueType = cboRev && (cboRev->text() == "OTHERS" || cboRev->text().isEmpty());
    const bool lacksQuantity = numberIn(txtQty.text()) == 0;
    const FieldCheck checks[] = {
        {cboDrug.text().isEmpty() || cboDrug.text() == " ", "Please specify a Drug/Service No ", &cboDrug},
        {cboFFS2.text().isEmpty(), "Please specify whether Item is Capitated or Not", &cboFFS2},
        {needsRevenueType, "Please specify Revenue Type! Others Not Allowed", cboRev ? &*cboRev : nullptr},
        {cboPat.text().isEmpty(), "BillTo/Sponsor field Cannot be Empty", &cboPat},
        {numberIn(txtPrice.text()) <= 0, "Cannot add this line without a price to Grid !!!  ", &txtPrice},
        {cboDrug.text().trimmed().isEmpty(), "Please specify Drug/Service used ", &cboDrug},
        {cboCat.text() == "DRUG" && lacksQuantity, "Please specify Quantity of Drug prescribed", &txtQty},
    };
    for (const FieldCheck& check : checks) {
        if (!check.failed)
            continue;
        program.box(check.message);
        if (needsRevenueType && check.control == &*cboRev)
            cboRev->setListIndex(-1);
        check.control->setFocus();
        return false;
    }
    return true;
}

void ItemCapture::writeLine() {
    const QString cells[] = {cboDrug.text(), lblCat.text(), txtPrice.text(), txtQty.text(),
                             txtSub.text(),  "***",         cboFFS2.text(),  cboCat.text(),
                             "NEW",          sRetainID,     sRetainID,       cboRev ? cboRev->text() : QString()};
    const int row = OrderGridDrug.rows() - 1;
    for (int column = Item; column <= RevenueType; ++column)
        OrderGridDrug.setCell(row, column, cells[column]);
    OrderGridDrug.addRow();
}

void ItemCapture::resetEntryLine() {
    txtQty.setText("0");
    cboDrug.setText({});
    if (cboRev)
        cboRev->setListIndex(-1);
    txtSub.setText("0");
    lblInfo.clear();
    txtPrice.setText("0");
    lblCat.setText("0");
    lblStock.setText("0");
}

void ItemCapture::OrderGridDrug_DblClick() {
    const int row = OrderGridDrug.currentRow();
    if (row < 1 || row >= OrderGridDrug.rows() - 1)
        return;
    if (OrderGridDrug.cell(row, Status) == "OLD") {
        program.box("This row cannot be Deleted! Already in the Database");
        return;
    }
    if (!program.question("Are you sure to Delete?", "Check before Delete"))
        return;
    total -= amountIn(row, SubTotal);
    OrderGridDrug.removeRow(row);
    if (OrderGridDrug.rows() <= 2)
        total = 0;
    lblTotal.setText(formatTwoDecimals(total));
    program.box("Item Removed");
}

void ItemCapture::calcTotal() {
    Label5.setText(session.sBillPatLabel + "\n=N=" + formatTwoDecimals(numberIn(lblTotal.text())));
}

} // namespace orvane
