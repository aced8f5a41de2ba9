#pragma once

#include "books/Books.h"

namespace orvane {

/// A row of hExpenseItems: an item of expense, or a category's own.
struct ExpenseItem {
    QString category; ///< its code; not read where the category is added
    QString name, description;
};

/// Adds a category under the next code, with its own row among its items. Refuses a code that a category bears.
Given<Saved> addExpenseCategory(Books& books, const QString& name, const ExpenseItem& own);

/// Adds an item to a category under the next code of that category's items.
Given<Saved> addExpenseItem(Books& books, const ExpenseItem& item);

/// Names a category anew. One that is not there any more is passed over.
void renameExpenseCategory(Books& books, const QString& code, const QString& name);

/// Writes the entry over an item. One that is not there any more is passed over.
void changeExpenseItem(Books& books, qlonglong sno, const ExpenseItem& item);

} // namespace orvane
