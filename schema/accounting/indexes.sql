create unique index uxChartAccountNo on ChartOfAccounts (AccountNo)
go
create index ixChartGroup on ChartOfAccounts (groupID)
go
create index ixLedgerTranID on Tranxaction (TranID)
go
create index ixLedgerDate on Tranxaction (TranDate)
go
create index ixLedgerTempTranID on TranxactionTemp (TranID)
go
create index ixLedgerTempDate on TranxactionTemp (TranDate)
go
