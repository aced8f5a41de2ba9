// The ledger of the accounting database.
#include "proof/CheckTable.h"

namespace orvane {

namespace {

#define EVERY_LEG                                                                                                      \
    "(select TranID,AccountNo,Amount,Period from Tranxaction union all select TranID,AccountNo,Amount,Period from "    \
    "TranxactionTemp)"

constexpr Check checks[] = {
    {"ledger transaction",
     "select top 1000 TranID,sum(Amount) as Total from " EVERY_LEG " t group by TranID having sum(Amount) <> 0",
     "the legs of transaction %1 make %2 instead of nothing"},
    {"ledger entry without its source",
     "select top 1000 TranID,count(*) as Legs from " EVERY_LEG
     " t where not exists (select a.SNo from TranFromAppsTrail a where a.TranID = t.TranID) group by TranID",
     "transaction %1 has %2 legs, but nothing tells where it comes from"},
    {"posting without its entry",
     "select top 1000 a.TranID,a.TranNoApp,a.Remarks from TranFromAppsTrail a where not exists (select t.SNo from "
     "Tranxaction t where t.TranID = a.TranID) and not exists (select t.SNo from TranxactionTemp t where t.TranID = "
     "a.TranID)",
     "transaction %1 (%3 %2) was posted, but has no legs"},
    {"source posted twice",
     "select top 1000 TranNoApp,Remarks,count(*) as Times from TranFromAppsTrail where Remarks in ('RECEIVABLE', "
     "'EXPENSE') group by TranNoApp,Remarks having count(*) > 1",
     "%2 %1 was posted %3 times"},
    {"leg of another period",
     "select top 1000 TranID,Period from (select TranID,Period from Tranxaction where Period <> (select Period from "
     "AccountMonth) union all select TranID,Period from TranxactionTemp where Period = (select Period from "
     "AccountMonth)) t",
     "a leg of transaction %1 is of the period %2, and does not lie where that period's legs do"},
    {"gap between periods",
     "select top 1000 p.Period from AccountMonthOpen p where p.PeriodVal < (select max(PeriodVal) from "
     "AccountMonthOpen) and not exists (select n.Period from AccountMonthOpen n where n.PeriodVal = case when "
     "p.PeriodVal % 100 = 12 then p.PeriodVal + 89 else p.PeriodVal + 1 end)",
     "the period behind %1 is not there"},
    {"period closed out of turn",
     "select top 1000 c.Period from AccountMonthOpen c where c.isClose = 1 and exists (select o.Period from "
     "AccountMonthOpen o where o.isClose = 0 and o.PeriodVal < c.PeriodVal)",
     "the period %1 is closed, but an earlier one is open"},
};

constexpr Check notices[] = {
    {"account unknown to the chart",
     "select top 1000 t.AccountNo,sum(t.Amount) as Total from " EVERY_LEG
     " t where not exists (select c.SNo from ChartOfAccounts c where c.AccountNo = t.AccountNo) group by t.AccountNo",
     "the account %1 holds %2, but the chart of accounts does not have it"},
};

#undef EVERY_LEG

} // namespace

std::span<const Check> ledgerChecks() {
    return checks;
}

std::span<const Check> ledgerNotices() {
    return notices;
}

} // namespace orvane
