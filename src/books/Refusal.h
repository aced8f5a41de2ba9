#pragma once

#include <QString>

namespace orvane {

/// Why a rule of the books did not do what was asked. The row is untouched then and the transaction is rolled back.
enum class Refusal {
    BillProcessed,     ///< a monthly batch holds the bill, which freezes it
    WrongYear,         ///< a document's day lies before 1990 or after the next year
    LessThanNothing,   ///< an item would be charged at a negative amount
    DiscountAboveDue,  ///< a discount is more than what is due on its bill
    BillExists,        ///< a deposit opens the bill, so there may be none
    InvoicePosted,     ///< the invoice to be taken back is in the ledger
    NoBill,            ///< the bill has no row
    SplitNoVisit,      ///< no visit has the bill's number as its first twelve characters
    SplitShortNumber,  ///< the bill's number is shorter, so that what is split off it could not be counted
    SplitExceeded,     ///< the visit has four bills
    SplitNumberTaken,  ///< the new bill's number is in use
    SplitItemChanged,  ///< an item is not on the bill any more, or at another amount than it was listed at
    SplitItemPaid,     ///< a receipt covers an item
    SplitItemPosted,   ///< an item is in the ledger
    SplitBelowNothing, ///< a bill would be of less than nothing, such as that of a discount alone
    LineSettled,       ///< a receipt covers a line of the bill to be capitated, or it is in the ledger
    SplitUneven,       ///< the two bills do not make the one that was split
    VisitChanged,      ///< the visit was deleted or moved to another patient or client since it was read
    NoPatient,         ///< the visit to be billed is not there
    NoClient,          ///< the visit's client is not in the list of clients
    NoConsultID,       ///< no receipt number: the visit's clinic has no code
    NoTranID,          ///< no receipt number: the outlet's item has no code
    NothingToCollate,  ///< no item of the outlet's visit waits for its bill
    OutletItemsMoved,  ///< the waiting items of the outlet's visit are not those that its cashier saw
    NoNumber,          ///< no receipt number: the counter gave none
    VisitOpen,         ///< the patient's visit of that day is still open
    VisitGone,         ///< the visit under edit was deleted
    VisitMoved,        ///< it is not any more as its officer saw it, or its bill was saved
    NothingToPost,     ///< all sources of the period are in the ledger
    BeingPosted,       ///< a posting to the ledger that is not settled yet has read it
    NoLegPosted,       ///< the ledger shows no leg of the transaction in the last one's period
    NotBalanced,       ///< the legs of the transaction do not make exactly 0
    NoClientCode,      ///< no code can be made for a new client
    ClientCodeTaken,   ///< a client bears the code that comes next
    ClientHasPatients, ///< the client to be deleted is that of patients
    ClientExempt,      ///< the client is in the list of exemptions already
    RevenueTypeTaken,  ///< a revenue type bears the name
    RevenueTypeGone,   ///< the revenue type under edit was renamed or deleted
    CatchAllRevenue,   ///< the type that stands for every other one is not deleted
    NoBankCode,        ///< no code can be made for a new bank
    NoBranchCode,      ///< no code can be made for a new branch of a bank
    NoExpenseCatCode,  ///< no code can be made for a new category of expenses
    NoExpenseItemCode, ///< no code can be made for a new expense item
    NoSupplierCode,    ///< no code can be made for a new creditor
    GroupCodeTaken,    ///< a bank, or a category of expenses, bears the code that comes next
    SupplierCodeTaken, ///< a creditor bears the code that comes next
    VoucherPaid,       ///< the voucher was paid since it was picked
    NoDrug,            ///< no drug or service bears the name
    AlreadyDispensed,  ///< the prescription waits no more for this patient
    NoStockItem,       ///< the retail store has no item of the code
    StockEntryChanged, ///< the entry under edit was changed since it was read
    NoReversalRight,   ///< a user without the role MANAGEMENT reverses no receipt
    NotManager,        ///< a user without the role MANAGEMENT capitates no bill
    NotOfAccounts,     ///< what the Accounts do is for their users
    UserNameTaken,     ///< an account bears the name
    UnknownUser,       ///< no account bears the name, or not with this password
    RoleExists,        ///< a role has the id
    NoRole,            ///< no role has the id
    RoleIsHeld,        ///< users hold the role
    RoleAllotted       ///< the user holds the role already
};

/// The words in which the user, or the log of the roles, is told; "%1" in them stands for the role's id.
QString refusalText(Refusal refusal);

} // namespace orvane
