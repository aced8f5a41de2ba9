#include "data/rows/SchemaSteps.h"

namespace orvane {

namespace {

// A step is never changed once a hospital has taken it: it makes what the schema files made at its number.
constexpr SchemaStep allSteps[] = {
    {2, "billing", "the table SavedActions, by which a save whose answer was lost is looked up", R"(
create table SavedActions (
    token varchar(36) not null primary key,
    savedAt datetime not null default getdate(),
    username nvarchar(50),
    workstation nvarchar(50),
    action nvarchar(50),
    document nvarchar(50),
    amount float
)
)"},
    {2, "billing", "the column BillingDetails.Charged: what the patient's account bears for a line", R"(
alter table BillingDetails add Charged float
)"},
    {2, "billing", "a category of clients may stand for several client types: key of billingPrice", R"(
create table billingPriceKept (clientCatID varchar(50) not null, clientType varchar(50) not null, pcent float, pvalue float)
go
insert into billingPriceKept (clientCatID, clientType, pcent, pvalue)
    select clientCatID, isnull(clientType, ''), pcent, pvalue from billingPrice
go
drop table billingPrice
go
create table billingPrice (
    clientCatID varchar(50) not null,
    clientType varchar(50) not null default '',
    pcent float,
    pvalue float,
    primary key (clientCatID, clientType)
)
go
insert into billingPrice (clientCatID, clientType, pcent, pvalue)
    select clientCatID, clientType, pcent, pvalue from billingPriceKept
go
drop table billingPriceKept
)"},
    {2, "billing", "columns of StockItemsRetail and working tables that statements of other modules name", R"(
alter table StockItemsRetail add drgName nvarchar(200)
go
alter table StockItemsRetail add drgCatName nvarchar(100)
go
alter table StockItemsRetail add qtyPerUnit float
go
alter table StockItemsRetail add Cost float
go
create table Patient (PNo varchar(50) not null primary key, fullname nvarchar(200))
go
create table Patients (PNo varchar(50) not null primary key, fullname nvarchar(200))
go
create table billoflading (BLNo varchar(50) not null primary key, jobcode varchar(50))
go
create table debitnote (SNo int identity(1,1) not null primary key, jobcode varchar(50))
)"},
    {2, "billing", "counters of receipts that nobody has started", R"(
insert into IDgen (DestName, ID) select 'Receipt', 0 where not exists
    (select ID from IDgen where DestName = 'Receipt')
go
insert into IDgen (DestName, ID) select 'RECEIPT2', 0 where not exists
    (select ID from IDgen where DestName = 'RECEIPT2')
)"},
    {2, "accounting", "the column TranxactionTemp.invNo", R"(
alter table TranxactionTemp add invNo varchar(50)
)"},
    {3, "billing", "the index by which the bills of a month are found", R"(
create index ixRecordsBatch on hRecords (convert(varchar(7), BillDate, 111), coyName)
)"},
    {4, "billing", "the index by which the bills between two days are found", R"(
create index ixRecordsBillDate on hRecords (BillDate, coyName)
)"},
    {5, "billing", "the table PostingNotes, by which a posting that was cut off is finished or dropped", R"(
create table PostingNotes (
    gTranID varchar(50) not null primary key,
    kind varchar(20) not null,
    source nvarchar(50),
    firstDay date,
    lastDay date,
    lastDetail int not null default 0,
    lastType int not null default 0,
    lastReceipt int not null default 0,
    username nvarchar(50),
    workstation nvarchar(50),
    notedAt datetime not null default getdate()
)
)"},
    {5, "accounting", "the amounts of the ledger are of the type money, whose sums are exact", R"(
create table TranxactionKept (
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
insert into TranxactionKept (TranID, AccountNo, TranNo, TranDate, CostCenterID, Amount, Description, TranCat, EntryDate, Period, userName)
    select TranID, AccountNo, TranNo, TranDate, CostCenterID, Amount, Description, TranCat, EntryDate, Period, userName from Tranxaction order by SNo
go
drop table Tranxaction
go
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
insert into Tranxaction (TranID, AccountNo, TranNo, TranDate, CostCenterID, Amount, Description, TranCat, EntryDate, Period, userName)
    select TranID, AccountNo, TranNo, TranDate, CostCenterID, Amount, Description, TranCat, EntryDate, Period, userName from TranxactionKept order by SNo
go
drop table TranxactionKept
go
create index ixLedgerTranID on Tranxaction (TranID)
go
create index ixLedgerDate on Tranxaction (TranDate)
go
create table TranxactionTempKept (
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
insert into TranxactionTempKept (TranID, AccountNo, TranNo, TranDate, CostCenterID, Amount, Description, TranCat, EntryDate, Period, userName, invNo)
    select TranID, AccountNo, TranNo, TranDate, CostCenterID, Amount, Description, TranCat, EntryDate, Period, userName, invNo from TranxactionTemp order by SNo
go
drop table TranxactionTemp
go
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
insert into TranxactionTemp (TranID, AccountNo, TranNo, TranDate, CostCenterID, Amount, Description, TranCat, EntryDate, Period, userName, invNo)
    select TranID, AccountNo, TranNo, TranDate, CostCenterID, Amount, Description, TranCat, EntryDate, Period, userName, invNo from TranxactionTempKept order by SNo
go
drop table TranxactionTempKept
go
create index ixLedgerTempTranID on TranxactionTemp (TranID)
go
create index ixLedgerTempDate on TranxactionTemp (TranDate)
)"},
    {5, "billing", "the index by which the lines of some days are found, for the revenue of these days", R"(
create index ixDetailsDate on BillingDetails (dtDate)
)"},
    {5, "accounting", "the indexes in which the ledger's reports read an account's entries, without its rows", R"(
create index ixLedgerAccount on Tranxaction (AccountNo, TranDate, SNo, Amount)
go
create index ixLedgerTempAccount on TranxactionTemp (AccountNo, TranDate, SNo, Amount)
)"},
    {5, "billing", "the indexes by which vouchers and what was paid on them are found", R"(
create index ixVoucherNo on hExpenseApprvFinal (vouchNo)
go
create index ixVoucherItemsNo on hExpenseDetailsApprvFinal (vouchNo)
go
create index ixVoucherPaidDate on hExpensePay (PayDate)
go
create index ixVoucherPaidItemsNo on hExpensePayDetails (vouchNo)
)"},
    {5, "billing",
     "the column StockEntryAcct.TranID, the transaction of the ledger that a supplier's entry is in, and indexes", R"(
alter table StockEntryAcct add TranID varchar(50)
go
create index ixStockEntryInvoiceDate on StockEntryAcct (InvoiceDate)
go
create index ixStockEntryDate on StockEntryAcct (EntryDate)
)"},
    {6, "billing", "the index of a month's bills with what the review needs of their visits", R"(
drop index ixRecordsBatch on hRecords
go
create index ixRecordsBatch on hRecords (convert(varchar(7), BillDate, 111), coyName, PNo, consultID, BillDate)
)"},
    {6, "billing", "the indexes by which prescriptions that wait, what was dispensed, and entries of stock are found",
     R"(
create index ixConsultingOpen on hconsulting (consultID) where attendedto = 0
go
create index ixDispensedConsultID on hConsultingDetails (consultID)
go
create index ixMedChartConsultID on hMedChartMonitor (consultID)
go
create index ixStockEntryRetailItem on StockEntryRetail (ItemID, EntryID)
)"},
    {6, "billing", "the indexes by which the laboratory's requests and findings are found", R"(
create index ixInvestigateDate on hInvestigate (invDate)
go
create index ixInvestigateLabNo on hInvestigate (labnum)
go
create index ixFindingsConsultID on hInvestigateFindings (consultID)
)"},
    {6, "billing",
     "SavedActions with the server's time and login, and the table SavedParts with what each save did to money", R"(
create table SavedActionsKept (token varchar(36) not null, savedAt datetime, username nvarchar(50), workstation nvarchar(50), action nvarchar(50), document nvarchar(50), amount float)
go
insert into SavedActionsKept (token, savedAt, username, workstation, action, document, amount)
    select token, savedAt, username, workstation, action, document, amount from SavedActions
go
drop table SavedActions
go
create table SavedActions (
    token varchar(36) not null primary key,
    savedAt datetime not null default sysdatetime(),
    login nvarchar(128) default suser_sname(),
    username nvarchar(50),
    workstation nvarchar(50),
    action nvarchar(50),
    document nvarchar(50),
    amount float,
    trailRows int
)
go
insert into SavedActions (token, savedAt, username, workstation, action, document, amount)
    select token, savedAt, username, workstation, action, document, amount from SavedActionsKept
go
drop table SavedActionsKept
go
create table SavedParts (
    SNo int identity(1,1) not null primary key,
    token varchar(36) not null,
    kind varchar(20) not null,
    document nvarchar(50) not null,
    counted int not null,
    amount float not null
)
go
insert into SavedActions (token, action) values ('opening-of-schema-6', 'OPENING')
go
insert into SavedParts (token, kind, document, counted, amount)
    select 'opening-of-schema-6', t.kind, isnull(t.document, ''), count(*), isnull(sum(t.amount), 0) from (
    select 'RECEIPT' as kind, ReceiptNo as document, AmountPaid as amount from Payments
    union all select 'BILL' as kind, billNo as document, 0 as amount from Billing
    union all select 'LINE' as kind, billNo as document, SubTotal as amount from BillingDetails
    union all select 'DISCOUNT' as kind, billNo as document, Amount as amount from billDiscounts
    ) t group by t.kind, isnull(t.document, '')
)"},
    {6, "audit", "the audit trail with the server's time and login, and the save that a row belongs to", R"(
create table AuditTrailKept (SNo int not null primary key, userName nvarchar(50), userAction nvarchar(1000), ActionDate date, ActionTime varchar(20), TranCode varchar(50), Remarks nvarchar(1000), Src nvarchar(100))
go
insert into AuditTrailKept (SNo, userName, userAction, ActionDate, ActionTime, TranCode, Remarks, Src)
    select SNo, userName, userAction, ActionDate, ActionTime, TranCode, Remarks, Src from AuditTrail
go
drop table AuditTrail
go
create table AuditTrail (
    SNo int identity(1,1) not null primary key,
    userName nvarchar(50),
    userAction nvarchar(1000),
    ActionDate date,
    ActionTime varchar(20),
    TranCode varchar(50),
    Remarks nvarchar(1000),
    Src nvarchar(100),
    saveToken varchar(36),
    savedAt datetime not null default sysdatetime(),
    login nvarchar(128) default suser_sname()
)
go
insert into AuditTrail (userName, userAction, ActionDate, ActionTime, TranCode, Remarks, Src)
    select userName, userAction, ActionDate, ActionTime, TranCode, Remarks, Src from AuditTrailKept order by SNo
go
drop table AuditTrailKept
)"},
};

} // namespace

QList<SchemaStep> schemaSteps(const QString& database, int from) {
    QList<SchemaStep> steps;
    for (const SchemaStep& step : allSteps)
        if (step.number > from && database == QLatin1StringView(step.database))
            steps += step;
    return steps;
}

} // namespace orvane
