// Receipts, their ways of payment and what they cover.
#include "proof/CheckTable.h"

namespace orvane {

namespace {

/// The receipts that take another one back, with the number of that one, which stands behind the 20 letters of the
/// mark.
#define REVERSALS                                                                                                      \
    "(select ReceiptNo,billNo,AmountPaid,SUBSTRING(Remarks, 21, 50) as Reversed from Payments "                        \
    "where Remarks like 'REVERSAL for RctNo: %')"

constexpr Check checks[] = {
    {"amount paid",
     "select top 1000 b.billNo,b.AmountPaid,y.AmountPaid as Receipts from (select billNo,sum(AmountPaid) as AmountPaid "
     "from Payments "
     "group by billNo) y inner join Billing b on b.billNo = y.billNo "
     "where abs(isnull(b.AmountPaid, 0) - isnull(y.AmountPaid, 0)) > 0.005",
     "bill %1: paid %2, but its receipts make %3"},
    // A paper receipt's number may come twice, so its parts cannot be told apart.
    {"ways of payment",
     "select top 1000 y.ReceiptNo,y.AmountPaid,t.AmountPaid as Parts from (select ReceiptNo,sum(AmountPaid) as "
     "AmountPaid "
     "from PaymentTypes group by ReceiptNo) t inner join Payments y on y.ReceiptNo = t.ReceiptNo "
     "where y.ReceiptNo not like 'SN%' and abs(isnull(y.AmountPaid, 0) - isnull(t.AmountPaid, 0)) > 0.005",
     "receipt %1: paid %2, but its ways of payment make %3"},
    {"receipt's items",
     "select top 1000 y.ReceiptNo,y.AmountPaid,t.AmountPaid as Parts from (select ReceiptNo,sum(AmountPaid) as "
     "AmountPaid "
     "from PaymentDetails group by ReceiptNo) t inner join Payments y on y.ReceiptNo = t.ReceiptNo "
     "where y.ReceiptNo not like 'SN%' and abs(isnull(y.AmountPaid, 0) - isnull(t.AmountPaid, 0)) > 0.005",
     "receipt %1: paid %2, but its items make %3"},
    {"way of payment without receipt",
     "select top 1000 t.SNo,t.ReceiptNo,t.AmountPaid from PaymentTypes t "
     "where not exists (select y.SNo from Payments y where y.ReceiptNo = t.ReceiptNo)",
     "payment %1 of %3 is of the receipt %2, which is not there"},
    {"receipt's item without receipt",
     "select top 1000 t.SNo,t.ReceiptNo,t.AmountPaid from PaymentDetails t "
     "where not exists (select y.SNo from Payments y where y.ReceiptNo = t.ReceiptNo)",
     "item %1 of %3 is of the receipt %2, which is not there"},
    // A visit takes receipts before its bill is made.
    {"receipt without bill",
     "select top 1000 y.ReceiptNo,y.billNo,y.AmountPaid from Payments y "
     "where not exists (select b.ID from Billing b where b.billNo = y.billNo) "
     "and not exists (select h.recID from hRecords h where h.consultID = y.billNo) "
     "and not exists (select q.ID from hRecordsPublic q where q.consultID = y.billNo)",
     "receipt %1 of %3 is for the bill %2, which is neither a bill nor a visit"},
    {"reversal without receipt",
     "select top 1000 r.ReceiptNo,r.AmountPaid,r.billNo,r.Reversed from " REVERSALS " r "
     "where not exists (select y.SNo from Payments y where y.ReceiptNo = r.Reversed and y.billNo = r.billNo)",
     "receipt %1 of %2 reverses the receipt %4, which the bill %3 does not have"},
    // A reversal is rounded to the kobo, so it may differ by half of one.
    {"reversal's amount",
     "select top 1000 ReceiptNo,AmountPaid,Reversed,Paid from (select r.ReceiptNo,r.AmountPaid,r.Reversed,"
     "(select max(y.AmountPaid) from Payments y where y.ReceiptNo = r.Reversed and y.billNo = r.billNo) as Paid "
     "from " REVERSALS " r where not exists (select y.SNo from Payments y where y.ReceiptNo = r.Reversed "
     "and y.billNo = r.billNo and abs(y.AmountPaid + r.AmountPaid) < 0.006)) t where Paid is not null",
     "receipt %1 reverses the receipt %3 with %2, but that one is of %4"},
    // The number of a paper receipt may come twice; each of them may be reversed once.
    {"receipt reversed again",
     "select top 1000 t.Reversed,t.billNo,t.Reversals,t.Total from (select Reversed,billNo,count(*) as Reversals,"
     "sum(AmountPaid) as Total from " REVERSALS " r where AmountPaid < 0 group by Reversed,billNo "
     "having count(*) > 1) t where t.Reversals > (select count(*) from Payments y "
     "where y.ReceiptNo = t.Reversed and y.billNo = t.billNo)",
     "receipt %1 of the bill %2 is reversed %3 times, with %4 in all"},
};

#undef REVERSALS

} // namespace

std::span<const Check> receiptChecks() {
    return checks;
}

} // namespace orvane
