#pragma once

#include "books/Books.h"

namespace orvane {

/// A row of banks: a branch of a bank, or the bank's own.
struct BankBranch {
    QString bankCode; ///< of its bank; not read where the bank is added
    QString bankName, branch, location;
};

/// Adds a bank under the next code, with its own row among its branches. Refuses a code that a bank bears.
Given<Saved> addBank(Books& books, const BankBranch& own);

/// Adds a branch to a bank under the next code of that bank's branches.
Given<Saved> addBankBranch(Books& books, const BankBranch& branch);

/// Names a bank anew; its branches keep the name that they bear. One that is not there any more is passed over.
void renameBank(Books& books, const QString& code, const QString& name);

/// Writes the entry over a branch, which stays with its bank. One that is not there any more is passed over.
void changeBankBranch(Books& books, qlonglong sno, const BankBranch& branch);

/// Deletes a row of banks; the bank itself stays.
void deleteBankBranch(Books& books, qlonglong sno);

} // namespace orvane
