#include "books/Refusal.h"

#include "data/Assert.h"

namespace orvane {

namespace {

constexpr struct {
    Refusal refusal;
    const char* text;
} words[] = {
    {Refusal::BillProcessed, "This Bill is already processed! to Modify, unProcess the Batch"},
    {Refusal::WrongYear, "Please check the Date: its year must be between 1990 and next year"},
    {Refusal::LessThanNothing, "An Item cannot be charged at less than nothing. Use Discount to lower a Bill"},
    {Refusal::DiscountAboveDue, "A Discount cannot be above the Amount Due"},
    {Refusal::BillExists, "This page is only for receipt of Advance/Deposit!!! Use Receipt Entry Form"},
    {Refusal::InvoicePosted, "This Batch is posted to the Accounts and cannot be reversed"},
    {Refusal::NoBill, "This Bill does not Exist any more"},
    {Refusal::SplitNoVisit, "No Attendance for this Bill"},
    {Refusal::SplitShortNumber,
     "This Bill cannot be Split: its Bill No has fewer than twelve characters, so a Bill split off it would not count"},
    {Refusal::SplitExceeded, "No of Bill Split Exceeded"},
    {Refusal::SplitNumberTaken, "This Bill cannot be Split: the Bill No of the new Bill is already in use"},
    {Refusal::SplitItemChanged, "A selected Item was changed or removed by another user. Please select the Bill again"},
    {Refusal::SplitItemPaid, "A selected Item is paid for by a receipt and stays on this Bill"},
    {Refusal::SplitItemPosted, "A selected Item is posted to the Accounts and stays on this Bill"},
    {Refusal::SplitBelowNothing, "A Bill cannot be less than nothing: take the Items along that the discount is for"},
    {Refusal::LineSettled, "A selected Bill is paid for by a receipt or posted to the Accounts and stays as it is"},
    {Refusal::SplitUneven, "The two Bills do not make the Bill that was split. Nothing was saved"},
    {Refusal::VisitChanged, "Please Re-Select Patient Name! Bill No (StrCon needed"},
    {Refusal::NoPatient, "Patient does not Exist"},
    {Refusal::NoClient, "BillTo Value Cannot be Empty!!! Check your Client Information"},
    {Refusal::NoConsultID, "ReceiptNo cannot be generated!!! No Consult ID for this transaction"},
    {Refusal::NoTranID, "ReceiptNo cannot be generated!!! No Tran ID for this transaction"},
    {Refusal::NothingToCollate, "No System generated Bill for this Patient"},
    {Refusal::OutletItemsMoved,
     "The Items of this Patient were changed by another user. Please select the Patient again"},
    {Refusal::NoNumber, "Unable to generate No!!! Function getIDNo Failed! Receipt"},
    {Refusal::VisitOpen, "Patient Attendance already entered!!! Duplicate not allowed"},
    {Refusal::VisitGone, "This attendance was deleted by another user."},
    {Refusal::VisitMoved, "This attendance was changed or billed by another user."},
    {Refusal::NothingToPost, "No Records to Post"},
    {Refusal::BeingPosted, "These receipts are being posted to the Accounts. Please try again when that has ended."},
    {Refusal::NoLegPosted, "Error! No Record Posted"},
    {Refusal::NotBalanced, "Error! Posting Entries! Balance Not Achieved"},
    {Refusal::NoClientCode, "Error Generating Retainership Code"},
    {Refusal::ClientCodeTaken, "The Client was not saved: the next Client Code is already in use by another Client"},
    {Refusal::ClientHasPatients, "Client Cannot be Deleted!!! Has Patient Information"},
    {Refusal::ClientExempt, "This Client is in the list already"},
    {Refusal::RevenueTypeTaken, "There is a Revenue Type of this name already"},
    {Refusal::RevenueTypeGone, "This Revenue Type was renamed or deleted by another user."},
    {Refusal::CatchAllRevenue, "This Item Cannot be Deleted"},
    {Refusal::NoBankCode, "Error Generating PARENT Code"},
    {Refusal::NoBranchCode, "Error Generating BRANCH Code"},
    {Refusal::NoExpenseCatCode, "Error Generating Category Code"},
    {Refusal::NoExpenseItemCode, "Error Generating Item Code"},
    {Refusal::NoSupplierCode, "Error Generating Supplier Code"},
    {Refusal::GroupCodeTaken, "The Record was not saved: the next Code is already in use"},
    {Refusal::SupplierCodeTaken, "The Record was not saved: the next Code is already in use by another Creditor"},
    {Refusal::VoucherPaid, "This Voucher was paid by another user."},
    {Refusal::NoDrug, "There is no Drug or Service of this name"},
    {Refusal::AlreadyDispensed,
     "This Prescription was dispensed or changed by another user. Please select the Patient again"},
    {Refusal::NoStockItem, "There is no Product of this Item Code in the Store"},
    {Refusal::StockEntryChanged, "This Stock Entry was changed by another user. Please select it again"},
    {Refusal::NoReversalRight, "You dont have Permission to Reverse a Receipt Entry"},
    {Refusal::NotManager, "Only User with Mgt Previlege can initiate this Action"},
    {Refusal::NotOfAccounts, "Only User with Accounts Previlege can initiate this Action"},
    {Refusal::UserNameTaken, "Alert! Username already assigned to someone else."},
    {Refusal::UnknownUser, "Alert! Indicated username not found in the list of accredited users."},
    {Refusal::RoleExists, "Attempted creating a RoleID %1 that already exists."},
    {Refusal::NoRole, "Attempted to delete a non existing Role "},
    {Refusal::RoleIsHeld, "Attempted deleting the Role for %1 that would lead to orphan User Accounts."},
    {Refusal::RoleAllotted, "Submission Failed! Matching Record Exists."},
};

} // namespace

QString refusalText(Refusal refusal) {
    for (const auto& entry : words)
        if (entry.refusal == refusal)
            return entry.text;
    ORVANE_ASSERT(false);
    return {};
}

} // namespace orvane
