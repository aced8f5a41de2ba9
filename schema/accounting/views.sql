-- What each account moved on a day, whatever the period, with its name. The legs of a day are summed before they get the
-- name: an index holds them in this order, and coalesce keeps an engine from looking for the days in another one.
create view vwTrialBalanceByPeriod as
select t.AccountNo as Accountno, a.AccountName, t.Amount, t.Amount as Balance, t.TranDate
from (
    select AccountNo, coalesce(TranDate, TranDate) as TranDate, sum(Amount) as Amount from Tranxaction group by AccountNo, TranDate
    union all
    select AccountNo, coalesce(TranDate, TranDate) as TranDate, sum(Amount) as Amount from TranxactionTemp group by AccountNo, TranDate
) t
left join ChartOfAccounts a on a.AccountNo = t.AccountNo
go
-- Every entry of an account, whatever its period, in the order of the days; Place tells entries of one day apart.
create view vwGeneralLedger as
select t.AccountNo as Accountno, a.AccountName, t.TranDate, t.SNo as Place, t.TranID, t.Description, t.Amount
from Tranxaction t
left join ChartOfAccounts a on a.AccountNo = t.AccountNo
union all
select t.AccountNo as Accountno, a.AccountName, t.TranDate, t.SNo as Place, t.TranID, t.Description, t.Amount
from TranxactionTemp t
left join ChartOfAccounts a on a.AccountNo = t.AccountNo
go
