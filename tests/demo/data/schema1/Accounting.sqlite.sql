PRAGMA foreign_keys=OFF;
BEGIN TRANSACTION;
CREATE TABLE AccountMonth (
    Period text collate nocase not null primary key
);
INSERT INTO AccountMonth VALUES('202603');
CREATE TABLE AccountMonthOpen (
    Period text collate nocase not null primary key,
    PeriodVal integer not null,
    PrdClose date not null,
    isClose integer not null default (0)
);
INSERT INTO AccountMonthOpen VALUES('202603',202603,'2026-03-31',0);
CREATE TABLE ChartOfAccounts (
    SNo integer primary key autoincrement,
    AccountNo text collate nocase not null,
    AccountName text collate nocase,
    groupID text collate nocase
);
INSERT INTO ChartOfAccounts VALUES(13,'1210010','MAIN CASH ACCOUNT','1210000');
INSERT INTO ChartOfAccounts VALUES(14,'1210020','PETTY CASH','1210000');
INSERT INTO ChartOfAccounts VALUES(15,'1210030','CASH POINT OUT-PATIENT','1210000');
INSERT INTO ChartOfAccounts VALUES(16,'1210040','CASH POINT PHARMACY','1210000');
INSERT INTO ChartOfAccounts VALUES(17,'1210050','CASH POINT LABORATORY','1210000');
INSERT INTO ChartOfAccounts VALUES(18,'1220010','BANK CURRENT ACCOUNT A','1220000');
INSERT INTO ChartOfAccounts VALUES(19,'1220020','BANK CURRENT ACCOUNT B','1220000');
INSERT INTO ChartOfAccounts VALUES(20,'1220030','BANK POS COLLECTION ACCOUNT','1220000');
INSERT INTO ChartOfAccounts VALUES(21,'1220040','BANK SALARY ACCOUNT','1220000');
INSERT INTO ChartOfAccounts VALUES(22,'1220050','BANK FIXED DEPOSIT ACCOUNT','1220000');
INSERT INTO ChartOfAccounts VALUES(23,'1230010','PRIVATE PATIENTS RECEIVABLE','1230000');
INSERT INTO ChartOfAccounts VALUES(24,'1230020','HMO RECEIVABLES','1230000');
INSERT INTO ChartOfAccounts VALUES(25,'1230030','NHIS CAPITATION RECEIVABLE','1230000');
INSERT INTO ChartOfAccounts VALUES(26,'1230040','NHIS FEE FOR SERVICE RECEIVABLE','1230000');
INSERT INTO ChartOfAccounts VALUES(27,'1230050','CORPORATE CLIENTS RECEIVABLE','1230000');
INSERT INTO ChartOfAccounts VALUES(28,'1230060','STAFF MEDICAL RECEIVABLE','1230000');
INSERT INTO ChartOfAccounts VALUES(29,'1240010','STAFF LOANS AND ADVANCES','1240000');
INSERT INTO ChartOfAccounts VALUES(30,'1240020','WITHHOLDING TAX RECOVERABLE','1240000');
INSERT INTO ChartOfAccounts VALUES(31,'1250010','PREPAID RENT','1250000');
INSERT INTO ChartOfAccounts VALUES(32,'1250020','PREPAID INSURANCE','1250000');
INSERT INTO ChartOfAccounts VALUES(33,'1260010','PHARMACY STORE INVENTORY','1260000');
INSERT INTO ChartOfAccounts VALUES(34,'1260020','DISPENSARY INVENTORY','1260000');
INSERT INTO ChartOfAccounts VALUES(35,'1260030','LABORATORY REAGENTS INVENTORY','1260000');
INSERT INTO ChartOfAccounts VALUES(36,'1260040','MEDICAL CONSUMABLES INVENTORY','1260000');
INSERT INTO ChartOfAccounts VALUES(37,'1260050','THEATRE STORE INVENTORY','1260000');
INSERT INTO ChartOfAccounts VALUES(38,'1260060','GENERAL STORE INVENTORY','1260000');
INSERT INTO ChartOfAccounts VALUES(52,'4110010','CONSULTATION INCOME','4110000');
INSERT INTO ChartOfAccounts VALUES(53,'4110020','REGISTRATION AND RECORDS INCOME','4110000');
INSERT INTO ChartOfAccounts VALUES(54,'4110030','WARD AND ACCOMMODATION INCOME','4110000');
INSERT INTO ChartOfAccounts VALUES(55,'4110040','NURSING CARE INCOME','4110000');
INSERT INTO ChartOfAccounts VALUES(56,'4110050','THEATRE AND SURGERY INCOME','4110000');
INSERT INTO ChartOfAccounts VALUES(57,'4110060','MATERNITY INCOME','4110000');
INSERT INTO ChartOfAccounts VALUES(58,'4110070','DENTAL INCOME','4110000');
INSERT INTO ChartOfAccounts VALUES(59,'4110080','EYE CLINIC INCOME','4110000');
INSERT INTO ChartOfAccounts VALUES(60,'4110090','PHYSIOTHERAPY INCOME','4110000');
INSERT INTO ChartOfAccounts VALUES(61,'4120010','PHARMACY SALES INCOME','4120000');
INSERT INTO ChartOfAccounts VALUES(62,'4120020','LABORATORY INCOME','4120000');
INSERT INTO ChartOfAccounts VALUES(63,'4120030','RADIOLOGY AND ULTRASOUND INCOME','4120000');
INSERT INTO ChartOfAccounts VALUES(64,'4120040','NHIS CAPITATION INCOME','4120000');
INSERT INTO ChartOfAccounts VALUES(67,'4210030','SUNDRY INCOME','4210000');
CREATE TABLE IDgen (
    DestName text collate nocase not null primary key,
    ID integer not null default (0)
);
CREATE TABLE Tranxaction (
    SNo integer primary key autoincrement,
    TranID text collate nocase not null,
    AccountNo text collate nocase not null,
    TranNo text collate nocase,
    TranDate date,
    CostCenterID text collate nocase,
    Amount real not null,
    Description text collate nocase,
    TranCat text collate nocase,
    EntryDate date,
    Period text collate nocase,
    userName text collate nocase
);
CREATE TABLE TranxactionTemp (
    SNo integer primary key autoincrement,
    TranID text collate nocase not null,
    AccountNo text collate nocase not null,
    TranNo text collate nocase,
    TranDate date,
    CostCenterID text collate nocase,
    Amount real not null,
    Description text collate nocase,
    TranCat text collate nocase,
    EntryDate date,
    Period text collate nocase,
    userName text collate nocase
);
CREATE TABLE TranFromAppsTrail (
    SNo integer primary key autoincrement,
    TranDate date,
    TranID text collate nocase,
    TranNoApp text collate nocase,
    Remarks text collate nocase
);
DELETE FROM sqlite_sequence;
INSERT INTO sqlite_sequence VALUES('ChartOfAccounts',94);
CREATE UNIQUE INDEX uxChartAccountNo on ChartOfAccounts (AccountNo);
CREATE INDEX ixChartGroup on ChartOfAccounts (groupID);
CREATE INDEX ixLedgerTranID on Tranxaction (TranID);
CREATE INDEX ixLedgerDate on Tranxaction (TranDate);
CREATE INDEX ixLedgerTempTranID on TranxactionTemp (TranID);
CREATE INDEX ixLedgerTempDate on TranxactionTemp (TranDate);
CREATE VIEW vwTrialBalanceByPeriod as select t.AccountNo as Accountno, a.AccountName, t.Amount, t.Amount as Balance, t.TranDate from Tranxaction t left join ChartOfAccounts a on a.AccountNo = t.AccountNo union all select t.AccountNo as Accountno, a.AccountName, t.Amount, t.Amount as Balance, t.TranDate from TranxactionTemp t left join ChartOfAccounts a on a.AccountNo = t.AccountNo;
COMMIT;
PRAGMA user_version=1;
