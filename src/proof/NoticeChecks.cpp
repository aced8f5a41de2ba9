// What the program's own actions leave behind and no one else tells: no faults, but differences that a person settles.
#include "proof/CheckTable.h"

namespace orvane {

namespace {

/// The code of the client under which patients pay for themselves.
#define PRIVATE_CLIENT "isnull((select max(s.idval) from AppDefaults s where s.ID = 'BillTo'), '0001')"

/// A balance of earlier visits, which the account has already.
#define CARRIED "drgName in ('PREVIOUS DEBT', 'PREVIOUS CREDIT')"

/// What the account bears for a line of an item.
#define BORNE                                                                                                          \
    "case when SNo < 0 or " CARRIED " then 0 when Charged is not null then Charged "                                   \
    "when billTo = " PRIVATE_CLIENT " then isnull(SubTotal, 0) else 0 end"

/// What the bill counts but nobody posts: a line without an item, a discount or a further charge.
#define LOOSE "case when SNo > 0 or " CARRIED " then 0 else isnull(SubTotal, 0) end"

/// Each bill of a registered patient by number: of a private visit or one that the account names.
#define BILLS_OF_PATIENTS                                                                                              \
    "(select PNo,billNo from Billing union select PNo,billNo from Tranxaction where isnull(billNo, '') <> '' "         \
    "union select PNo,consultID as billNo from hRecords where clientCat = 'PRIVATE')"

/// A bill beside its account entries. Loose: lines without an item. Paper: it has a receipt on paper beside lines.
/// Moved: it is no private patient's now but the account bears it, or the other way round.
#define BILLS_BESIDE_ACCOUNT                                                                                           \
    "(select k.PNo,k.billNo,isnull(a.Amount, 0) as Account,"                                                           \
    "isnull(y.Paid, 0) - case when d.billNo is null then isnull(b.Amountbilled, 0) "                                   \
    "else d.Borne + case when h.clientCat = 'PRIVATE' then d.Loose else 0 end end as Says,"                            \
    "case when d.Loose <> 0 and h.clientCat = 'PRIVATE' then 1 else 0 end as Loose,"                                   \
    "case when d.billNo is not null and y.Paper = 1 then 1 else 0 end as Paper,"                                       \
    "case when d.Borne <> 0 and isnull(a.Charges, 0) = 0 then 1 when d.Borne = 0 and a.Charges < 0 then 1 else 0 "     \
    "end as Moved from " BILLS_OF_PATIENTS " k inner join hPatients p on p.PNo = k.PNo "                               \
    "left join hRecords h on h.consultID = k.billNo left join Billing b on b.billNo = k.billNo "                       \
    "left join (select PNo,billNo,sum(Amount) as Amount,sum(case when Amount < 0 then Amount else 0 end) as Charges "  \
    "from Tranxaction group by PNo,billNo) a on a.PNo = k.PNo and a.billNo = k.billNo "                                \
    "left join (select billNo,sum(" BORNE ") as Borne,sum(" LOOSE ") as Loose "                                        \
    "from BillingDetails group by billNo) d on d.billNo = k.billNo "                                                   \
    "left join (select billNo,sum(AmountPaid) as Paid,max(case when ReceiptNo like 'SN%' then 1 else 0 end) as Paper " \
    "from Payments group by billNo) y on y.billNo = k.billNo)"

constexpr Check checks[] = {
    {"account beside bills",
     "select top 1000 PNo,sum(Account) as Account,sum(Says) as Says,sum(Account) - sum(Says) as Difference,"
     "min(billNo) as Bill,case when max(Paper) = 1 then 'a paper receipt on a bill that has lines' "
     "when max(Loose) = 1 then 'a discount or a further charge, which the account does not take' "
     "when max(Moved) = 1 then 'a move to another client' else 'not known' end as Cause "
     "from " BILLS_BESIDE_ACCOUNT " t where abs(Account - Says) >= 0.005 group by PNo order by PNo",
     "patient %1: the account stands at %2 for bills that say %3, %4 apart from the bill %5 on; likely cause: %6", 2},
    {"paper receipt on a bill that has lines",
     "select top 1000 b.billNo,b.Amountbilled,d.SubTotal from (select billNo,sum(SubTotal) as SubTotal from "
     "BillingDetails group by billNo) d inner join Billing b on b.billNo = d.billNo "
     "where b.billType = 'CASH' and abs(isnull(b.Amountbilled, 0) - isnull(d.SubTotal, 0)) >= 0.005",
     "bill %1: billed %2, but its lines make %3"},
    {"line below nothing",
     "select top 1000 d.billNo,d.drgName,d.SubTotal from BillingDetails d where d.SubTotal < 0 and not (d." CARRIED
     ") and not exists (select 1 from billDiscounts x where x.Remarks = d.drgName)",
     "bill %1: %2 is charged at %3, but it is no discount and no carried credit"},
    {"discount above its bill",
     "select top 1000 x.billNo,x.Amount,d.SubTotal from billDiscounts x inner join (select billNo,sum(SubTotal) as "
     "SubTotal from BillingDetails where SubTotal > 0 group by billNo) d on d.billNo = x.billNo where x.Amount > "
     "d.SubTotal",
     "bill %1: a discount of %2 on items of %3"},
    {"day out of bounds",
     "select top 1000 t.Kind,t.Number,t.Day from (select 'visit' as Kind,consultID as Number,recDate as Day from "
     "hRecords union all select 'bill' as Kind,billNo as Number,bdate as Day from Billing union all select 'receipt' "
     "as Kind,ReceiptNo as Number,ReceiptDate as Day from Payments union all select 'discount on bill' as Kind,billNo "
     "as Number,dtDate as Day from billDiscounts) t where year(t.Day) < 1990 or year(t.Day) > year(getdate()) + 1",
     "%1 %2 is dated %3"},
    // No statement rounds a balance that stands; the next entry of its account does.
    {"part of a kobo",
     "select top 1000 PNo,cast(DebtBF * 10000 as bigint) as Parts from hPatients "
     "where abs(DebtBF * 100 - round(DebtBF * 100, 0)) >= 0.01",
     "patient %1: the balance is of %2 hundredths of a kobo"},
};

#undef PRIVATE_CLIENT
#undef CARRIED
#undef BORNE
#undef LOOSE
#undef BILLS_OF_PATIENTS
#undef BILLS_BESIDE_ACCOUNT

} // namespace

std::span<const Check> noticeChecks() {
    return checks;
}

} // namespace orvane
