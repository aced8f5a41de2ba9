#pragma once

#include "billing/ItemAdjustment.h"
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

    struct Check {
        bool failed;
        const char* text;
        Control& control;
    };

    /// The row of the screen's own table that lWorkSNo names.
    virtual Recordset openRow(Connection& connection) const = 0;
    /// The checks of a save in their order.
    virtual std::vector<Check> checks() = 0;
    /// Writes the save, inside its transaction; raises DataError. `row` stands as the screen has read it.
    virtual void saveRow(Connection& connection, Recordset& row) = 0;
    /// What follows when the save has been committed.
    virtual void afterSave() {}

    /// The fields that all of them have, with those of one screen below.
    Layout fieldsAbove(std::initializer_list<Layout> further) const;
    /// Shows a row of BillAccum or BillingDetails and keeps it as the old state; `billColumn` bears the bill's number.
    /// Without a row nothing can be saved: false.
    bool showRow(const Recordset& row, const QString& billColumn);
    /// A processed bill is refused with its box.
    bool isFrozen();
    /// `steps` in one transaction, as saveOnce of `button`, then `afterChange`; only the box when a batch has taken the
    /// bill meanwhile.
    void changeBill(Button& button, const std::function<void(Connection&)>& steps, std::function<void()> afterChange);
    /// Refuses, with a DataError, to write over what somebody else has changed since the screen has read it.
    void requireUnchanged(const Recordset& row) const;
    ItemChange change() const; ///< from the state read to what the fields say
    bool isPriceValid() const; ///< price and quantity are numbers
    /// Price, quantity, amount and item of the change into the row; not yet updated.
    static void setAmounts(Recordset& row, const ItemChange& change);

    /// A box of clients by name, their retainCode behind, after a blank; `clients` selects both. Shows the one of
    /// `billTo`.
    static void offerClients(ComboBox& box, Connection& connection, const Sql& clients, const QString& billTo);
    static QString chosenClient(const ComboBox& box); ///< its retainCode; empty for the blank
    /// The client `billTo` and the private account.
    Sql payers(const QString& billTo) const;

    qlonglong m_sno = 0;
    QString m_billNo;
    QString m_oldItem;
    double dPrice = 0, dQty = 0; ///< as they were: naira, units

    TextBox txtDrug{*this, "txtDrug"};
    TextBox txtQty{*this, "txtQty"};
    TextBox txtPrice{*this, "txtPrice"};
    Label lblSub{*this, "lblSub"};
    Button CancelButton{*this, "CancelButton", "&Close"};
    Button cmdSave{*this, "cmdSave", "&Save"};

private:
    void workOutSubTotal();
    bool checkFields();
    void cmdSave_Click();
};

} // namespace orvane
