// What was paid on vouchers of expenses.
#include "proof/CheckTable.h"

namespace orvane {

namespace {

constexpr Check checks[] = {
    {"amount paid on a voucher",
     "select top 1000 h.vouchNo,isnull(h.AmountPaid, 0) as Paid,isnull(y.Amount, 0) as Payments "
     "from hExpenseApprvFinal h left join (select vouchNo,sum(Amount) as Amount from hExpensePay group by vouchNo) y "
     "on y.vouchNo = h.vouchNo where abs(isnull(h.AmountPaid, 0) - isnull(y.Amount, 0)) > 0.005",
     "voucher %1: paid %2, but its payments make %3"},
    {"items of a voucher's payment",
     "select top 1000 y.vouchNo,y.Amount,isnull(d.Amount, 0) as Items from (select vouchNo,sum(Amount) as Amount "
     "from hExpensePay group by vouchNo) y left join (select vouchNo,sum(Amount) as Amount from hExpensePayDetails "
     "group by vouchNo) d on d.vouchNo = y.vouchNo where abs(isnull(y.Amount, 0) - isnull(d.Amount, 0)) > 0.005",
     "voucher %1: its payments make %2, but the items paid make %3"},
    {"payment without voucher",
     "select top 1000 y.vouchNo,y.Amount from hExpensePay y "
     "where not exists (select h.SNo from hExpenseApprvFinal h where h.vouchNo = y.vouchNo and h.isPaid = 1)",
     "%2 was paid on the voucher %1, which is not there or not marked as paid"},
    {"paid voucher without payment",
     "select top 1000 h.vouchNo,h.ReceivedBy from hExpenseApprvFinal h where h.isPaid = 1 "
     "and not exists (select y.SNo from hExpensePay y where y.vouchNo = h.vouchNo)",
     "voucher %1 of %2 is marked as paid, but there is no payment of it"},
};

} // namespace

std::span<const Check> voucherChecks() {
    return checks;
}

} // namespace orvane
