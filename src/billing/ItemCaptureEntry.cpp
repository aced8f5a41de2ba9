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

void ItemCapture::onItemPicked() {
    if (cboDrug.listIndex() <= 0)
        return;
    if (m_kind.asksRevenueType && lblClient.text().isEmpty()) {
        program.box("Client Tariff Category cannot be empty please select Patient");
        cboDrug.setText({});
        return;
    }
    if (!passes({{cboCat.text().isEmpty(), "Please specify Category", &cboCat}}))
        return;
    resetTariffFields();
    takeTariff();
}

void ItemCapture::takeTariff() {
    TariffAnswer answer;
    if (const TariffKind* kind = tariffKind(cboCat.text(), m_kind.tariff)) {
        Connection connection = program.openBilling();
        answer = resolveTariff(connection, m_kind.tariff, *kind, visit(), cboDrug.text(), session.gPrivateTariff);
        showTariff(answer);
    }
    // Cleared first: a flag that is neither YES nor NO must not leave the one of the item before.
    cboFFS2.setListIndex(-1);
    cboFFS2.setText(answer.capitated.isEmpty() ? "NO" : answer.capitated);
    if (cboRev)
        showRevenueType(answer.revType);
    cboFFS2.setText(verifiedCapitation(m_kind.tariff, visit(), cboFFS2.text()));
}

void ItemCapture::showTariff(const TariffAnswer& answer) {
    if (!answer.fallback.isEmpty()) {
        lblInfo.setText(answer.fallback);
        if (m_kind.asksRevenueType)
            program.box(answer.fallback);
    }
    lblStock.setText(answer.stock);
    lblCat.setText(answer.category);
    txtQty.setText(answer.quantity);
    txtPrice.setText(answer.price);
}

/// A type that the list does not hold leaves the box as it is.
void ItemCapture::showRevenueType(const QString& revType) {
    if (!revType.isEmpty())
        cboRev->setText(revType);
    else if (session.gRevTypeRpt == "YES")
        cboRev->setListIndex(-1);
    else
        cboRev->setText("OTHERS");
}

/// Takes back what the item before left.
void ItemCapture::resetTariffFields() {
    txtPrice.setText("0");
    lblStock.setText("0");
    lblCat.clear();
    lblInfo.clear();
    txtQty.setText("0");
    if (cboRev)
        cboRev->setListIndex(-1);
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
    const TariffKind* kind = tariffKind(cboCat.text(), m_kind.tariff);
    if (!cboRev || !kind)
        return;
    program.desk().save<Saved>("TARIFF FLAGS", [&](Books& books) -> Given<Saved> {
        rememberTemplateFlags(books, *kind, visit(), cboDrug.text(), cboFFS2.text(), cboRev->text());
        return Saved{};
    });
}

bool ItemCapture::isLineComplete() {
    const bool lacksRevenueType = cboRev && (cboRev->text() == "OTHERS" || cboRev->text().isEmpty());
    const bool lacksQuantity = cboCat.text() == "DRUG" && numberIn(txtQty.text()) == 0;
    if (!passes({{cboDrug.text().isEmpty() || cboDrug.text() == " ", "Please specify a Drug/Service No ", &cboDrug},
                 {cboFFS2.text().isEmpty(), "Please specify whether Item is Capitated or Not", &cboFFS2}}))
        return false;
    if (lacksRevenueType)
        cboRev->setListIndex(-1);
    return passes({{lacksRevenueType, "Please specify Revenue Type! Others Not Allowed", cboRev ? &*cboRev : nullptr},
                   {cboPat.text().isEmpty(), "BillTo/Sponsor field Cannot be Empty", &cboPat},
                   {numberIn(txtPrice.text()) <= 0, "Cannot add this line without a price to Grid !!!  ", &txtPrice},
                   {cboDrug.text().trimmed().isEmpty(), "Please specify Drug/Service used ", &cboDrug},
                   {lacksQuantity, "Please specify Quantity of Drug prescribed", &txtQty}});
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
    if (!program.question("Are you sure to Delete?", "Check before Delete", Consent::Destroys,
                          aboutLines({cellText(row, Item), nairaText(amountIn(row, SubTotal))})))
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
