// Bills, their lines and the items of their visits.
#include "proof/CheckTable.h"

namespace orvane {

namespace {

/// The bills of which an item that a receipt covers was changed.
#define ADJUSTED_PAID_BILLS                                                                                            \
    "(select distinct p.billNo from BillingDetailsAdjust j inner join PaymentDetails p "                               \
    "on p.billNo = j.billNo and p.BillItem = j.BillItem)"

constexpr Check checks[] = {
    // A bill from a paper receipt (type CASH) states its amount without lines; an outlet's, of the same type, has them.
    {"amount billed",
     "select top 1000 b.billNo,b.Amountbilled,d.SubTotal from (select billNo,sum(SubTotal) as SubTotal from "
     "BillingDetails "
     "group by billNo) d inner join Billing b on b.billNo = d.billNo "
     "where (isnull(b.billType, '') <> 'CASH' or SUBSTRING(b.billNo, 7, 1) = '/') and abs(isnull(b.Amountbilled, 0) - "
     "isnull(d.SubTotal, 0)) > 0.005",
     "bill %1: billed %2, but its lines make %3"},
    // A line without an item of a visit (a discount) bears a negative number.
    {"bill line without item",
     "select top 1000 d.SNo,d.billNo,d.drgName from BillingDetails d "
     "where d.SNo > 0 and not exists (select a.SNo from BillAccum a where a.SNo = d.SNo)",
     "bill %2: the line %3 is of the item %1, which is not there"},
    {"saved visit without bill",
     "select top 1000 h.consultID from hRecords h where h.BillDate is not null "
     "and exists (select d.detID from BillingDetails d where d.billNo = h.consultID) "
     "and not exists (select b.ID from Billing b where b.billNo = h.consultID)",
     "the visit %1 was saved with lines, but it has no bill"},
    // Items are covered by number or by name, and either table may have been given another name since. A line that was
    // covered under the name of another one and renamed later shows in the trace of the changes.
    {"covered item without payment",
     "select top 1000 a.SNo,a.consultID,a.drgName from BillAccum a left join BillingDetails d on d.SNo = a.SNo "
     "left join " ADJUSTED_PAID_BILLS " t on t.billNo = a.consultID "
     "where a.isRct = 1 and t.billNo is null and not exists (select p.SNo from PaymentDetails p "
     "where p.billNo = a.consultID and (p.snoID = a.SNo or p.BillItem = a.drgName or p.BillItem = d.drgName))",
     "visit %2: the item %1, %3, is marked as covered by a receipt, but no receipt covers it"},
    {"covered line without payment",
     "select top 1000 d.SNo,d.billNo,d.drgName from BillingDetails d left join BillAccum a on a.SNo = d.SNo "
     "left join " ADJUSTED_PAID_BILLS " t on t.billNo = d.billNo "
     "where d.isRct = 1 and t.billNo is null and not exists (select p.SNo from PaymentDetails p "
     "where p.billNo = d.billNo and (p.snoID = d.SNo or p.BillItem = d.drgName or p.BillItem = a.drgName))",
     "bill %2: the line %3 of the item %1 is marked as covered by a receipt, but no receipt covers it"},
    {"outlet's debt",
     "select top 1000 t.billNo,t.Owed,t.Amount from (select b.billNo,isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, "
     "0) "
     "as Owed,(select sum(d.Amount) from hDebtors d where d.billNo = b.billNo) as Amount "
     "from hRecordsPublic q inner join Billing b on b.billNo = q.consultID) t "
     "where (t.Amount is null and t.Owed > 0.005) or abs(t.Amount - t.Owed) > 0.005",
     "bill %1: %2 of it is not paid, but its debt is entered as %3"},
    {"outlet item without visit",
     "select top 1000 a.SNo,a.consultID,a.drgName from BillAccum a where SUBSTRING(a.consultID, 7, 1) = '/' "
     "and not exists (select q.ID from hRecordsPublic q where q.consultID = a.consultID)",
     "item %1, %3, is of the outlet visit %2, which is not there"},
    {"approval code without visit",
     "select top 1000 c.SNO,c.ApprvCode,c.consultID from hApprvCode c "
     "where not exists (select h.recID from hRecords h where h.consultID = c.consultID) "
     "and not exists (select q.ID from hRecordsPublic q where q.consultID = c.consultID) "
     "and not exists (select b.ID from Billing b where b.billNo = c.consultID) "
     "and not exists (select a.SNo from BillAccum a where a.consultID = c.consultID) "
     "and not exists (select g.SNo from hconsulting g where g.consultID = c.consultID) "
     "and not exists (select j.SNo from BillingDetailsAdjust j where j.billNo = c.consultID)",
     "approval %1 with the code %2 is of the visit %3, which is not there"},
};

#undef ADJUSTED_PAID_BILLS

} // namespace

std::span<const Check> billChecks() {
    return checks;
}

} // namespace orvane
