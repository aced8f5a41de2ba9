// The patients' running accounts and the corrections of balances that bills carry.
#include "proof/CheckTable.h"

namespace orvane {

namespace {

/// Every line, waiting item and trace of a change that bears the name of a balance carried from earlier visits.
#define CARRIED_BALANCES                                                                                               \
    "(select consultID as billNo,drgName as Item from BillAccum "                                                      \
    "where drgName in ('PREVIOUS DEBT', 'PREVIOUS CREDIT') "                                                           \
    "union all select billNo,drgName as Item from BillingDetails "                                                     \
    "where drgName in ('PREVIOUS DEBT', 'PREVIOUS CREDIT') "                                                           \
    "union all select billNo,BillItem as Item from BillingDetailsAdjust "                                              \
    "where BillItem in ('PREVIOUS DEBT', 'PREVIOUS CREDIT'))"

constexpr Check checks[] = {
    {"running account",
     "select top 1000 PNo,SNo,RunningTotal,Expected from (select PNo,SNo,RunningTotal,"
     "Amount + isnull(lag(RunningTotal) over (partition by PNo order by SNo), 0) as Expected from Tranxaction) t "
     "where abs(RunningTotal - Expected) > 0.005 order by SNo",
     "patient %1: the balance of entry %2 is %3, but the balance before it and its amount make %4"},
    {"patient's balance",
     "select top 1000 p.PNo,p.DebtBF,t.RunningTotal from (select PNo,max(SNo) as SNo from Tranxaction group by PNo) l "
     "inner join Tranxaction t on t.SNo = l.SNo inner join hPatients p on p.PNo = l.PNo "
     "where abs(isnull(p.DebtBF, 0) - isnull(t.RunningTotal, 0)) > 0.005",
     "patient %1: the balance in the patient's row is %2, but the last entry of the account says %3"},
    {"account without patient",
     "select top 1000 t.PNo,count(*) as N from Tranxaction t where not exists (select p.PNo from hPatients p where "
     "p.PNo = t.PNo) "
     "and not exists (select q.SNo from hPatientsPublic q where q.PNo = t.PNo) group by t.PNo",
     "%2 account entries are of the patient %1, whom nobody registered"},
    {"correction without patient",
     "select top 1000 r.SNo,r.billNo,r.PNo,r.Debt from hDebtReview r "
     "where not exists (select p.PNo from hPatients p where p.PNo = r.PNo) "
     "and not exists (select q.SNo from hPatientsPublic q where q.PNo = r.PNo)",
     "correction %1 of %4 on the bill %2 is of the patient %3, whom nobody registered"},
    // A deleted visit is known by what it leaves: items, and the traces of those that were removed.
    {"correction without bill",
     "select top 1000 r.SNo,r.billNo,r.Debt from hDebtReview r "
     "where not exists (select h.recID from hRecords h where h.consultID = r.billNo) "
     "and not exists (select q.ID from hRecordsPublic q where q.consultID = r.billNo) "
     "and not exists (select b.ID from Billing b where b.billNo = r.billNo) "
     "and not exists (select a.SNo from BillAccum a where a.consultID = r.billNo) "
     "and not exists (select j.SNo from BillingDetailsAdjust j where j.billNo = r.billNo)",
     "correction %1 of %3 is of the bill %2, which is not there"},
    // A debt carried is minus; a credit stands as its price does. A line that was renamed leaves a correction of either
    // sign, and where a bill carries both names the row does not say of which it is.
    {"correction's sign",
     "select top 1000 r.SNo,r.billNo,r.Debt,c.Item from hDebtReview r "
     "inner join (select billNo,min(Debt) as Lowest,max(Debt) as Highest from hDebtReview group by billNo) s "
     "on s.billNo = r.billNo inner join (select billNo,min(Item) as Item from " CARRIED_BALANCES " l group by billNo "
     "having min(Item) = max(Item)) c on c.billNo = r.billNo where (s.Lowest >= 0 or s.Highest <= 0) "
     "and c.Item = 'PREVIOUS DEBT' and r.Debt > 0",
     "correction %1 of %3 on the bill %2 has the wrong sign for its %4"},
};

#undef CARRIED_BALANCES

} // namespace

std::span<const Check> accountChecks() {
    return checks;
}

} // namespace orvane
