// The client's month: invoices, the bills on them, and what clients owe.
#include "proof/CheckTable.h"

namespace orvane {

namespace {

/// Each invoice number that processed bills bear, with what their lines come to.
#define INVOICED_LINES                                                                                                 \
    "(select b.InvNo,sum(d.SubTotal) as SubTotal from Billing b left join (select billNo,sum(SubTotal) as SubTotal "   \
    "from BillingDetails group by billNo) d on d.billNo = b.billNo where b.isProcess = 1 group by b.InvNo)"

constexpr Check checks[] = {
    // The other way round may come of a removal from a processed bill: a notice.
    {"invoice",
     "select top 1000 i.invNo,i.AmountInvoiced,l.SubTotal from BillsForClients i inner join " INVOICED_LINES
     " l on l.InvNo = i.invNo where isnull(l.SubTotal, 0) - isnull(i.AmountInvoiced, 0) > 0.005",
     "invoice %1: invoiced %2, but the lines of its bills make %3"},
    {"invoice given twice",
     "select top 1000 invNo,count(*) as Times from BillsForClients group by invNo having count(*) > 1",
     "invoice %1 is there %2 times, so its bills are in each of them"},
    {"invoice without bills",
     "select top 1000 i.invNo,i.AmountInvoiced from BillsForClients i where abs(isnull(i.AmountInvoiced, 0)) > 0.005 "
     "and not exists (select b.ID from Billing b where b.InvNo = i.invNo and b.isProcess = 1)",
     "invoice %1 is of %2, but no bill is in it"},
    {"processed bill without invoice",
     "select top 1000 b.billNo,b.InvNo from Billing b where b.isProcess = 1 "
     "and not exists (select i.SNO from BillsForClients i where i.invNo = b.InvNo)",
     "bill %1 is processed, but its invoice %2 is not there"},
    // A reversal leaves the text 0.
    {"invoice number on an open bill",
     "select top 1000 billNo,InvNo from Billing where isProcess = 0 and isnull(InvNo, '0') not in ('0', '')",
     "bill %1 is not processed, but it bears the invoice number %2"},
    {"bill on another client's invoice",
     "select top 1000 b.billNo,r.retainCode,i.invNo,i.CoyCode from Billing b inner join BillsForClients i "
     "on i.invNo = b.InvNo inner join hRecords h on h.consultID = b.billNo inner join hRetainership r "
     "on r.retainID = h.coyName where b.isProcess = 1 and r.retainCode <> i.CoyCode",
     "bill %1 is of the client %2, but in the invoice %3 of the client %4"},
    {"newest invoice",
     "select top 1000 CoyCode,count(*) as Newest from BillsForClients where isOLD = 0 group by CoyCode "
     "having count(*) > 1",
     "client %1 has %2 invoices that none is newer than"},
    {"client's debt",
     "select top 1000 r.retainCode,isnull(r.Debt, 0) as Debt,isnull(t.Invoiced, 0) as Invoiced from hRetainership r "
     "left join (select CoyCode,sum(AmountInvoiced) as Invoiced from BillsForClients group by CoyCode) t "
     "on t.CoyCode = r.retainCode where abs(isnull(r.Debt, 0) - isnull(t.Invoiced, 0)) > 0.005",
     "client %1 owes %2, but his invoices make %3"},
    {"invoice's debts",
     "select top 1000 i.invNo,i.AmountInvoiced,isnull(d.Amount, 0) as Debts from BillsForClients i "
     "left join (select invNo,sum(Amount) as Amount from hDebtors group by invNo) d on d.invNo = i.invNo "
     "where abs(isnull(i.AmountInvoiced, 0) - isnull(d.Amount, 0)) > 0.005 "
     "and exists (select r.retainID from hRetainership r where r.retainCode = i.CoyCode)",
     "invoice %1: invoiced %2, but its debts make %3"},
    // An outlet's debt names its bill, a client's the client himself.
    {"debt without invoice",
     "select top 1000 d.SNo,d.Amount,d.invNo from hDebtors d where d.billNo = d.clientNo "
     "and not exists (select i.SNO from BillsForClients i where i.invNo = d.invNo)",
     "debt %1 of %2 is of the invoice %3, which is not there"},
    // The halves of a split bill make the whole: each of its items is on one of them, with its line.
    {"item of another bill",
     "select top 1000 d.SNo,d.billNo,a.consultID from BillingDetails d inner join BillAccum a on a.SNo = d.SNo "
     "where d.billNo <> a.consultID",
     "item %1 is on the bill %2, but of the visit %3"},
    {"split bill without its visit",
     "select top 1000 s.consultID from hRecords s where s.AttndStatus = 'SPLIT' "
     "and not exists (select h.recID from hRecords h where SUBSTRING(h.consultID, 1, 12) = "
     "SUBSTRING(s.consultID, 1, 12) and isnull(h.AttndStatus, '') <> 'SPLIT')",
     "bill %1 was split off a visit that is not there"},
};

constexpr Check notices[] = {
    {"invoice above its bills",
     "select top 1000 i.invNo,i.AmountInvoiced,isnull(l.SubTotal, 0) as Lines from BillsForClients i "
     "inner join " INVOICED_LINES
     " l on l.InvNo = i.invNo where isnull(i.AmountInvoiced, 0) - isnull(l.SubTotal, 0) > 0.005",
     "invoice %1: invoiced %2, but the lines of its bills make %3; likely cause: a line was removed from a processed "
     "bill"},
    {"bill in a past batch",
     "select top 1000 v.BillNo,v.batchNo,v.AmountBilled from vwBillingProcess v where v.AmountBilled > 0.005 and "
     "v.ClientCat <> 'PRIVATE' and v.batchVal < (select max(i.batchVal) from "
     "vwBillsForClientsBatchVal i)",
     "bill %1 waits in the batch %2 with %3, but a later month is processed, so it never will be; it can be shifted",
     3},
    {"processed bill without lines",
     "select top 1000 b.billNo,b.InvNo from Billing b where b.isProcess = 1 "
     "and not exists (select d.detID from BillingDetails d where d.billNo = b.billNo)",
     "bill %1 is in the invoice %2, but it has no lines"},
};

#undef INVOICED_LINES

} // namespace

std::span<const Check> monthChecks() {
    return checks;
}

std::span<const Check> monthNotices() {
    return notices;
}

} // namespace orvane
