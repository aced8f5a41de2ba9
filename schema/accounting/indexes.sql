create unique index uxChartAccountNo on ChartOfAccounts (AccountNo)
go
create index ixChartGroup on ChartOfAccounts (groupID)
go
create index ixLedgerTranID on Tranxaction (TranID)
go
create index ixLedgerDate on Tranxaction (TranDate)
go
create index ixLedgerAccount on Tranxaction (AccountNo, TranDate, SNo, Amount)
go
create index ixLedgerTempTranID on TranxactionTemp (TranID)
go
create index ixLedgerTempDate on TranxactionTemp (TranDate)
go
create index ixLedgerTempAccount on TranxactionTemp (AccountNo, TranDate, SNo, Amount)
go
