#include "billing/PriceAdjustScreen.h"

#include "billing/Collate.h"
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
    txtQty.onChange = [this] { workOutSubTotal(); };
    txtPrice.onChange = [this] { workOutSubTotal(); };
    cmdSave.onClick = [this] { cmdSave_Click(); };
    CancelButton.onClick = [this] { unload(); };
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
    m_sno = session.lWorkSNo;
    m_billNo = row.text(billColumn);
    m_oldItem = row.text("drgName");
    dPrice = row.number("Price");
    dQty = row.number("Qty");
    txtDrug.setText(m_oldItem);
    txtQty.setText(QString::number(dQty, 'g', 15));
    txtPrice.setText(priceText(dPrice));
    return true;
}

void PriceAdjustScreen::workOutSubTotal() {
    lblSub.setText(isPriceValid() ? formatTwoDecimals(change().newAmount()) : QString());
}

bool PriceAdjustScreen::isPriceValid() const {
    return parseAmount(txtPrice.text()) && parseAmount(txtQty.text());
}

ItemChange PriceAdjustScreen::change() const {
    ItemChange change;
    change.billNo = m_billNo;
    change.oldItem = m_oldItem;
    change.newItem = txtDrug.text().trimmed();
    change.oldQty = dQty;
    change.newQty = parseAmount(txtQty.text()).value_or(0);
    change.oldPrice = dPrice;
    change.newPrice = parseAmount(txtPrice.text()).value_or(0);
    return change;
}

void PriceAdjustScreen::setAmounts(Recordset& row, const ItemChange& change) {
    row.set("Price", change.newPrice);
    row.set("Qty", change.newQty);
    row.set("SubTotal", change.newAmount());
    row.set("drgName", change.newItem);
}

void PriceAdjustScreen::offerClients(ComboBox& box, Connection& connection, const Sql& clients, const QString& billTo) {
    box.addItem("");
    for (Recordset client(connection, clients); !client.eof(); client.moveNext()) {
        box.addItem(client.text("retainName"), client.text("retainCode"));
        if (client.text("retainCode") == billTo)
            box.setListIndex(box.count() - 1);
    }
}

QString PriceAdjustScreen::chosenClient(const ComboBox& box) {
    return box.listIndex() < 0 ? QString() : box.itemData(box.listIndex()).toString();
}

Sql PriceAdjustScreen::payers(const QString& billTo) const {
    return Sql("select retainCode,retainName from hretainership where retainCode in ('")
           << billTo << "','" << session.gBillTo << "') order by retainCode desc";
}

bool PriceAdjustScreen::isFrozen() {
    Connection connection = program.openBilling();
    if (!isBillProcessed(connection, m_billNo))
        return false;
    program.box(billProcessedText());
    return true;
}

void PriceAdjustScreen::changeBill(Button& button, const std::function<void(Connection&)>& steps,
                                   std::function<void()> afterChange) {
    const auto save = [&] {
        Connection connection = program.openBilling();
        Transaction transaction(connection);
        if (isBillProcessed(connection, m_billNo))
            return false;
        steps(connection);
        transaction.commit({.action = name()});
        return true;
    };
    if (!saveOnce(button, save, std::move(afterChange)))
        program.box(billProcessedText());
}

void PriceAdjustScreen::requireUnchanged(const Recordset& row) const {
    if (row.eof() || row.number("Price") != dPrice || row.number("Qty") != dQty || row.text("drgName") != m_oldItem)
        throw DataError(
            "Row cannot be located for updating. Some values may have been changed since it was last read.");
}

bool PriceAdjustScreen::checkFields() {
    for (const Check& check : checks()) {
        if (!check.failed)
            continue;
        program.box(check.text);
        check.control.setFocus();
        return false;
    }
    return true;
}

void PriceAdjustScreen::cmdSave_Click() {
    if (settlesSave() || isFrozen() || !checkFields())
        return;
    const auto steps = [this](Connection& connection) {
        Recordset row = openRow(connection);
        requireUnchanged(row);
        saveRow(connection, row);
    };
    changeBill(cmdSave, steps, [this] {
        afterSave();
        unload();
    });
}

} // namespace orvane
