#pragma once

#include "books/Adjustment.h"
#include "session/Screen.h"

namespace orvane {

/// What the screens share that change the one row which session.lWorkSNo names: its item, quantity and unit price, the
/// checks before a save, and the save as one unit that leaves a processed bill alone.
class PriceAdjustScreen : public Screen {
public:
    Button* defaultButton() override { return &cmdSave; }
    Button* cancelButton() override { return &CancelButton; }

protected:
    PriceAdjustScreen(Program& owner, const QString& name, const QString& caption);

    /// The row of the screen's own table that lWorkSNo names.
    virtual Recordset openRow(Connection& connection) const = 0;
    /// The checks of a save in their order, which say themselves what fails.
    virtual bool isComplete() = 0;
    /// The save's name in SavedActions, and what it writes.
    virtual QString action() const = 0;
    virtual Given<Saved> write(Books& books) = 0;
    /// What follows when the save has been committed.
    virtual void afterSave() {}

    /// The fields that all of them have, with those of one screen below.
    Layout fieldsAbove(std::initializer_list<Layout> further) const;
    /// Shows a row of BillAccum or BillingDetails and keeps it as the old state; `billColumn` bears the bill's number.
    /// Without a row nothing can be saved: false.
    bool showRow(const Recordset& row, const QString& billColumn);
    /// Refuses a processed bill with its box.
    bool isBillOpen();
    ItemChange change() const; ///< from the state read to what the fields say
    bool isPriceValid() const; ///< price and quantity are numbers
    /// A box of clients by name, their retainCode behind, after a blank; `clients` selects both. Shows the one of
    /// `billTo`.
    static void offerClients(ComboBox& box, Connection& connection, const Sql& clients, const QString& billTo);
    static QString chosenClient(const ComboBox& box) { return box.picked<QString>().value_or(QString()); }
    /// The client `billTo` and the private account.
    Sql payers(const QString& billTo) const;

    ItemChange m_row; ///< as it was read

    TextBox txtDrug{*this, "txtDrug"};
    TextBox txtQty{*this, "txtQty", &PriceAdjustScreen::workOutSubTotal};
    TextBox txtPrice{*this, "txtPrice", &PriceAdjustScreen::workOutSubTotal};
    Label lblSub{*this, "lblSub"};
    Button CancelButton{*this, "CancelButton", "&Close", &PriceAdjustScreen::unload};
    Button cmdSave{*this, "cmdSave", "&Save", &PriceAdjustScreen::cmdSave_Click};

private:
    void workOutSubTotal();
    void cmdSave_Click();
};

} // namespace orvane
