-- Tables of the accounting database: the ledger that billing posts to. A debit is plus, a credit minus; amounts are of
-- the type money, whose sums are exact, since the legs of a transaction must make exactly 0.

-- The one row holds the current period.
create table AccountMonth (
    Period varchar(20) not null primary key
)
go
-- A period that may be posted to; PrdClose is its last day, PeriodVal its place in time.
create table AccountMonthOpen (
    Period varchar(20) not null primary key,
    PeriodVal int not null,
    PrdClose date not null,
    isClose smallint not null default 0
)
go
-- An account of the ledger.
create table ChartOfAccounts (
    SNo int identity(1,1) not null primary key,
    AccountNo varchar(50) not null,
    AccountName nvarchar(200),
    groupID varchar(50)
)
go
-- A counter: the last number given out under its name.
create table IDgen (
    DestName varchar(50) not null primary key,
    ID bigint not null default 0
)
go
-- One leg of a posted transaction, in the current period.
create table Tranxaction (
    SNo int identity(1,1) not null primary key,
    TranID varchar(50) not null,
    AccountNo varchar(50) not null,
    TranNo varchar(50),
    TranDate date,
    CostCenterID varchar(50),
    Amount money not null,
    Description nvarchar(200),
    TranCat varchar(50),
    EntryDate date,
    Period varchar(20),
    userName nvarchar(50)
)
go
-- One leg of a transaction posted to any other period.
create table TranxactionTemp (
    SNo int identity(1,1) not null primary key,
    TranID varchar(50) not null,
    AccountNo varchar(50) not null,
    TranNo varchar(50),
    TranDate date,
    CostCenterID varchar(50),
    Amount money not null,
    Description nvarchar(200),
    TranCat varchar(50),
    EntryDate date,
    Period varchar(20),
    userName nvarchar(50),
    invNo varchar(50)
)
go
-- One posting made by this program.
create table TranFromAppsTrail (
    SNo int identity(1,1) not null primary key,
    TranDate date,
    TranID varchar(50),
    TranNoApp nvarchar(200),
    Remarks nvarchar(1000)
)
go
