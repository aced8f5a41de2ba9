-- Every leg of the ledger with its account's name, whatever its period.
create view vwTrialBalanceByPeriod as
select t.AccountNo as Accountno, a.AccountName, t.Amount, t.Amount as Balance, t.TranDate
from Tranxaction t
left join ChartOfAccounts a on a.AccountNo = t.AccountNo
union all
select t.AccountNo as Accountno, a.AccountName, t.Amount, t.Amount as Balance, t.TranDate
from TranxactionTemp t
left join ChartOfAccounts a on a.AccountNo = t.AccountNo
go
