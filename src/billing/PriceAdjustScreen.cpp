#include "billing/PriceAdjustScreen.h"

#include "books/Bill.h"
#include "data/words/Money.h"

namespace orvane {

namespace {

/// With two decimals where they tell the whole price: shortening one would change it.
QString priceText(double price) {
    return round2(price) == price ? formatNumber(price, "0.00") : QString::number(price, 'g', 15);
}

} // namespace

PriceAdjustScreen::PriceAdjustScreen(Program& owner, const QString& formName, const QString& formCaption)
    : Screen(owner, formName, formCaption) {
    txtQty.numeric();
    txtPrice.numeric();
}

Layout PriceAdjustScreen::fieldsAbove(std::initializer_list<Layout> further) const {
    using namespace orvane::layout;
    Layout all = column({field("Item", txtDrug, 60), field("Quantity", txtQty, 10), field("Unit Price", txtPrice, 14),
                         field("Amount", lblSub)});
    for (const Layout& part : further)
        all.children.append(part);
    return all;
}

bool PriceAdjustScreen::showRow(const Recordset& row, const QString& billColumn) {
    if (row.eof()) {
        cmdSave.setEnabled(false);
        return false;
    }
    m_row = {.sno = session.lWorkSNo,
             .billNo = row.text(billColumn),
             .pno = row.text("PNo"),
             .oldItem = row.text("drgName"),
             .newItem = {},
             .oldQty = row.number("Qty"),
             .oldPrice = row.number("Price")};
    txtDrug.setText(m_row.oldItem);
    txtQty.setText(QString::number(m_row.oldQty, 'g', 15));
    txtPrice.setText(priceText(m_row.oldPrice));
    return true;
}

void PriceAdjustScreen::workOutSubTotal() {
    lblSub.setText(isPriceValid() ? formatTwoDecimals(change().newAmount()) : QString());
}

bool PriceAdjustScreen::isPriceValid() const {
    return parseAmount(txtPrice.text()) && parseAmount(txtQty.text());
}

ItemChange PriceAdjustScreen::change() const {
    ItemChange change = m_row;
    change.newItem = txtDrug.text().trimmed();
    change.newQty = parseAmount(txtQty.text()).value_or(0);
    change.newPrice = parseAmount(txtPrice.text()).value_or(0);
    return change;
}

void PriceAdjustScreen::offerClients(ComboBox& box, Connection& connection, const Sql& clients, const QString& billTo) {
    box.addItem("");
    for (Recordset client(connection, clients); !client.eof(); client.moveNext()) {
        box.addItem(client.text("retainName"), client.text("retainCode"));
        if (client.text("retainCode") == billTo)
            box.setListIndex(box.count() - 1);
    }
}

Sql PriceAdjustScreen::payers(const QString& billTo) const {
    return Sql("select retainCode,retainName from hretainership where retainCode in ('")
           << billTo << "','" << session.gBillTo << "') order by retainCode desc";
}

bool PriceAdjustScreen::isBillOpen() {
    Connection connection = program.openBilling();
    return passes({{isBillProcessed(connection, m_row.billNo), refusalText(Refusal::BillProcessed)}});
}

void PriceAdjustScreen::cmdSave_Click() {
    save<Saved>({.button = cmdSave,
                 .action = action(),
                 .allowed = [this] { return isBillOpen() && isComplete(); },
                 .step = [this](Books& books) { return write(books); },
                 .follow =
                     [this](const Saved&) {
                         afterSave();
                         unload();
                     }});
}

} // namespace orvane
