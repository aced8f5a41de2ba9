#pragma once

#include "accounts/GroupedList.h"
#include "books/ExpenseItem.h"

namespace orvane {

/// "Expense Items": the categories of expenses and their items.
class frmExpenseItems : public GroupedList {
public:
    explicit frmExpenseItems(Program& owner);

protected:
    Sql groupNames() const override { return Sql("select distinct catcode,catName from hExpenseCat "); }
    Sql groups() const override { return Sql("select catcode as Catcode,catName as Category from hExpenseCat"); }
    Sql members() const override;
    Sql ownRow(const QString& code) const override;
    bool isComplete() override;
    Given<Saved> addEntry(Books& books) override;
    void changeEntry(Books& books) override;

private:
    ExpenseItem entered() const;
};

} // namespace orvane
