#include "accounts/frmExpenseItems.h"

namespace orvane {

frmExpenseItems::frmExpenseItems(Program& owner)
    : GroupedList(owner, "frmExpenseItems", "Expense Items",
                  {.heading = "Expense Items Information",
                   .group = "CATEGORY",
                   .member = "ITEM",
                   .groupLabel = "Category",
                   .nameLabel = "Item Name",
                   .remarkLabel = "Description",
                   .groupColumn = "Category",
                   .memberName = "ItemName",
                   .memberRemark = "Description",
                   .groupCode = "Catcode",
                   .codeOfGroup = "Catcode",
                   .memberCode = "ItemCode"}) {
    grdData.setHead("BName", "Category");
    txtReg.setToolTip("eg Fuel");
    txtName.setToolTip("eg for Generators");
}

Sql frmExpenseItems::members() const {
    Sql items("select SNO,ItemName,Description,BName,Catcode,ItemCode,Status from vwItems where status='ITEM'");
    if (!groupCode().isEmpty())
        items << " and Catcode='" << groupCode() << "'";
    return items;
}

Sql frmExpenseItems::ownRow(const QString& code) const {
    return Sql("select SNO from hExpenseItems where Status='CATEGORY' and catcode='") << code << "'";
}

bool frmExpenseItems::isComplete() {
    const bool isItem = cboType.text() == "ITEM";
    return passes({{cboType.text().isEmpty(), "Specify Entry Type", &cboType},
                   {isItem && txtReg.text().trimmed().isEmpty(), "Branh Name field cannot be empty!", &txtReg},
                   {isItem && groupCode().isEmpty(), "Please select the Category of this Item", &cboVehNo},
                   {!isItem && cboVehNo.text().trimmed().isEmpty(), "Category Name cannot be empty!", &cboVehNo}});
}

ExpenseItem frmExpenseItems::entered() const {
    return {.category = groupCode(), .name = txtReg.text().trimmed(), .description = txtName.text().trimmed()};
}

Given<Saved> frmExpenseItems::addEntry(Books& books) {
    return isGroup() ? addExpenseCategory(books, cboVehNo.text().trimmed(), entered())
                     : addExpenseItem(books, entered());
}

void frmExpenseItems::changeEntry(Books& books) {
    if (isGroup())
        renameExpenseCategory(books, sCode, cboVehNo.text().trimmed());
    else
        changeExpenseItem(books, lID, entered());
}

} // namespace orvane
