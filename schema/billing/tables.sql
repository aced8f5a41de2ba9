-- Tables of the billing database. A flag is a smallint of 0 or 1, money and quantities are float, a time of day is the
-- text that the screen wrote. Statements end at a line that holds only "go". Each change of the schema raises its number
-- and brings a step that makes it in a database that is there (src/data/rows/SchemaSteps.cpp).

-- A start-up setting by its name.
create table AppDefaults (
    ID varchar(50) not null primary key,
    idval nvarchar(200)
)
go
-- Headings of the printed receipts: BILL and LAB for the start-up, one row a receipt code for the printouts.
create table appSettings (
    ID varchar(50) not null primary key,
    IDValCode varchar(20),
    idval nvarchar(200),
    idval2 nvarchar(200),
    idval3 nvarchar(200),
    idval4 nvarchar(200),
    idval5 nvarchar(200),
    idvalPix nvarchar(200)
)
go
-- A counter: the last number given out under its name.
create table IDgen (
    DestName varchar(50) not null primary key,
    ID bigint not null default 0
)
go
-- A hospital of the group; hospID is the three-character code at the head of its numbers.
create table HospList (
    hospID varchar(10) not null primary key,
    Hname nvarchar(200),
    hname2 nvarchar(200)
)
go
-- A user account. One without hospID belongs to the first hospital of HospList.
create table ApplicationUsers (
    Username nvarchar(50) not null primary key,
    Fullname nvarchar(200),
    Password nvarchar(200),
    AccountStatus varchar(20),
    BranchCode varchar(50),
    EmpID varchar(50),
    hospID varchar(10)
)
go
-- A role; users are let into this program by the role BILLING.
create table Roles (
    RoleID int not null primary key,
    LoginRole nvarchar(50)
)
go
-- A user holds a role.
create table UserRoles (
    SNo int identity(1,1) not null primary key,
    RoleID int not null,
    Username nvarchar(50) not null
)
go
-- A user who sees the Accounts menu.
create table UsersForAccts (
    username nvarchar(50) not null primary key
)
go
-- A branch code that may be given to an account.
create table LagosBranches (
    BranchCode varchar(50) not null primary key
)
go
-- One session of a user.
create table UserActivities (
    SNo int identity(1,1) not null primary key,
    username nvarchar(50),
    LoginDate date,
    LoginTime varchar(20),
    islogout smallint not null default 0,
    LogoutDate date,
    LogoutTime varchar(20),
    AutoLogoff smallint not null default 0,
    Remarks nvarchar(1000)
)
go
-- One log-on attempt; written by position.
create table LoginTrail (
    SNo int identity(1,1) not null primary key,
    LoginName nvarchar(50),
    LoginAction varchar(50),
    LoginDate date,
    LoginTime varchar(20)
)
go
-- A member of staff.
create table employees (
    empID varchar(50) not null primary key,
    LastName nvarchar(100),
    firstname nvarchar(100),
    deptID varchar(50),
    designation nvarchar(100)
)
go
-- A clinic with its consultation fee; rctCode is the two-character code in the numbers of its receipts.
create table clinicTypes (
    ClinicID varchar(50) not null primary key,
    ConFee float,
    Code varchar(20),
    rctCode varchar(20)
)
go
-- A service outlet; ItemCode is the two-character code in the numbers of its receipts.
create table hOutletTypes (
    ItemName varchar(50) not null primary key,
    ItemCode varchar(20)
)
go
-- A patient, registered by another module. DebtBF is the balance of the running account: minus is owed.
create table hPatients (
    PNo varchar(50) not null primary key,
    OldPNo varchar(50),
    psurname nvarchar(100) not null,
    pfirstname nvarchar(100),
    fullname as (rtrim(psurname + ' ' + isnull(pfirstname, ''))) persisted,
    clientcatID varchar(50),
    coyName varchar(50),
    pCatID varchar(50),
    ref varchar(10),
    DebtBF float default 0,
    latestBillno varchar(50),
    policyType nvarchar(100),
    cardType nvarchar(100),
    regdate date,
    expirydate date,
    DOB date,
    sex varchar(20),
    email nvarchar(200),
    pPhoneNo varchar(50),
    homeAddress nvarchar(500),
    officeAddress nvarchar(500),
    occupation nvarchar(200),
    religion nvarchar(100),
    empNo varchar(50),
    branch nvarchar(100),
    status nvarchar(100),
    relationToStaff nvarchar(100),
    introducedby nvarchar(200),
    pMembers nvarchar(1000),
    bloodGroup varchar(20),
    genotype varchar(20),
    nextOfKin nvarchar(200),
    relationToKin nvarchar(100),
    kinAddress nvarchar(500),
    FileDuration varchar(50)
)
go
-- A person served at an outlet who is no registered patient.
create table hPatientsPublic (
    SNo int identity(1,1) not null primary key,
    PNo varchar(50),
    pSurname nvarchar(100) not null,
    pfirstname nvarchar(100),
    fullname as (rtrim(pSurname + ' ' + isnull(pfirstname, ''))) persisted,
    pPhoneNo varchar(50),
    Maturity varchar(50),
    Age varchar(20),
    sex varchar(20),
    coyName varchar(50)
)
go
-- A visit. BillDate is null until its bill was saved; Remarks is the purpose of the visit.
create table hRecords (
    recID int identity(1,1) not null primary key,
    consultID varchar(50) not null,
    PNo varchar(50) not null,
    recDate date not null,
    htime varchar(20),
    clientCat varchar(50),
    coyName varchar(50),
    clinicType varchar(50),
    referal varchar(10),
    Remarks nvarchar(1000),
    empID varchar(50),
    diagnosis nvarchar(max),
    exitDate date,
    BillDate date,
    attendedto smallint not null default 0,
    attendedtoByDoc smallint not null default 0,
    attendedToByNurse smallint not null default 0,
    suppres smallint not null default 0,
    AttndStatus varchar(50)
)
go
-- A visit of an outlet's customer.
create table hRecordsPublic (
    ID int identity(1,1) not null primary key,
    consultID varchar(50) not null,
    PNo varchar(50),
    recDate date,
    htime varchar(20),
    clientCat varchar(50),
    coyName varchar(50),
    clinicType varchar(50),
    referal varchar(10),
    Remarks nvarchar(1000),
    empID varchar(50),
    conIdVal varchar(50),
    attendedto smallint not null default 0
)
go
-- An appointment that a doctor gave at the visit ConsultID, a follow-up included.
create table hreferal (
    SNo int identity(1,1) not null primary key,
    ConsultID varchar(50),
    PNo varchar(50),
    ApptDate date,
    clinicType varchar(50),
    Remarks nvarchar(1000),
    attendedTo smallint not null default 0
)
go
-- One consultation of a visit; attendedto 1 means that the doctor has finished with it.
create table hconsulting (
    SNo int identity(1,1) not null primary key,
    consultID varchar(50) not null,
    billno varchar(50),
    PNo varchar(50),
    CDate date,
    cTime varchar(20),
    Diagnosis nvarchar(max),
    prescription nvarchar(max),
    injprescription nvarchar(max),
    treatplan nvarchar(max),
    Investigate nvarchar(max),
    services nvarchar(max),
    billRemarks nvarchar(max),
    treatedby nvarchar(200),
    attendedto smallint not null default 0
)
go
-- One item that was dispensed on a consultation.
create table hConsultingDetails (
    SNo int identity(1,1) not null primary key,
    consultID varchar(50),
    dtDate date,
    PNo varchar(50),
    drgName nvarchar(200),
    drgCatName nvarchar(100),
    Qty float,
    usage nvarchar(1000)
)
go
-- One stay of a patient in a ward; DischDate is null while it lasts.
create table hAdmission (
    SNo int identity(1,1) not null primary key,
    consultID varchar(50) not null,
    PNo varchar(50),
    admdate date,
    DischDate date,
    wardid varchar(50),
    Remarks nvarchar(1000)
)
go
-- An approval code of an HMO or scheme for a visit.
create table hApprvCode (
    SNO int identity(1,1) not null primary key,
    ApprvDate date,
    consultID varchar(50),
    billno varchar(50),
    PNo varchar(50),
    ApprvCode nvarchar(200),
    billType varchar(50),
    Remarks nvarchar(1000)
)
go
-- A request for laboratory investigations.
create table hInvestigate (
    SNo int identity(1,1) not null primary key,
    consultID varchar(50),
    conID int,
    PNo varchar(50),
    invDate date,
    labnum varchar(50),
    investigate nvarchar(max),
    clientCat varchar(50),
    attendedto smallint not null default 0,
    attendedTobyLab smallint not null default 0
)
go
-- One requested laboratory item with its result.
create table hInvestigateFindings (
    SNo int identity(1,1) not null primary key,
    consultID varchar(50),
    conID int,
    PNo varchar(50),
    invDate date,
    dtDate date,
    drgName nvarchar(200),
    sympItem nvarchar(200),
    sympItemCat nvarchar(100),
    Category nvarchar(100),
    billType varchar(50),
    clientCat varchar(50),
    Capitated varchar(10),
    revType nvarchar(100),
    Price float,
    Qty float,
    SubTotal float,
    Result nvarchar(max),
    Remarks nvarchar(1000),
    empID varchar(50),
    attendedto smallint not null default 0,
    attendedTobyLab smallint not null default 0,
    suppres smallint not null default 0
)
go
-- An injection or dressing that is to be given.
create table hInjAndDressing (
    SNo int identity(1,1) not null primary key,
    consultID varchar(50),
    PNo varchar(50),
    dtDate date,
    injdate date,
    injTime varchar(20),
    injname nvarchar(200),
    drgCatName nvarchar(100),
    dosage nvarchar(1000),
    numOfTimes varchar(20),
    numtaken varchar(20),
    clientCat varchar(50),
    Price float,
    Qty float,
    attendedto smallint not null default 0
)
go
-- A line of the ward's medication chart.
create table hMedChartMonitor (
    SNo int identity(1,1) not null primary key,
    consultID varchar(50),
    PNo varchar(50),
    mdate date,
    mtime varchar(20),
    drgName nvarchar(200),
    drgCatName nvarchar(100),
    dosage nvarchar(1000),
    numOfTimes varchar(20),
    numtaken varchar(20),
    clientCat varchar(50),
    attendedto smallint not null default 0
)
go
-- One item of a visit, from every source. consultID is '' while an outlet's item waits for the patient's next visit.
-- Deleting a visit leaves its items, so nothing refers to hRecords.
create table BillAccum (
    SNo int identity(1,1) not null primary key,
    dtDate date,
    PNo varchar(50),
    consultID varchar(50),
    drgName nvarchar(200),
    Category nvarchar(100),
    Price float,
    Qty float,
    SubTotal float,
    usage nvarchar(1000),
    dosage nvarchar(1000),
    billType varchar(50),
    billTo varchar(50),
    coyName varchar(50),
    revType nvarchar(100),
    conID int,
    Capitated varchar(10),
    BillBy nvarchar(50),
    treatedBy varchar(50),
    attendedto smallint not null default 0,
    isBilled smallint not null default 0,
    isRct smallint not null default 0,
    suppres smallint not null default 0
)
go
-- One bill. billNo is the visit's consultID, with a letter behind it on a split bill.
create table Billing (
    ID int identity(1,1) not null primary key,
    billNo varchar(50) not null,
    bdate date,
    PNo varchar(50),
    clientID varchar(50),
    Amountbilled float default 0,
    AmountBIlledInWord nvarchar(1000),
    AmountPaid float default 0,
    AmtBF float default 0,
    profFee float default 0,
    billingMonth varchar(20),
    billingYear varchar(10),
    diagnosis nvarchar(max),
    billType varchar(50),
    admdate date,
    DischDate date,
    InvNo varchar(50),
    isProcess smallint not null default 0,
    isPaid smallint not null default 0
)
go
-- One item on a bill. SNo is the SNo of its BillAccum row; a line that has none (a discount) takes minus its own detID,
-- which no BillAccum row can bear. detID is this table's own key. Charged is what the patient's running account bears for
-- the line, in naira; null where nobody noted it: then it is the SubTotal of a line of the private client, else nothing.
create table BillingDetails (
    detID int identity(1,1) not null primary key,
    SNo int,
    billNo varchar(50) not null,
    dtDate date,
    PNo varchar(50),
    drgName nvarchar(200),
    Price float,
    Qty float,
    SubTotal float,
    BillType varchar(50),
    BillHead nvarchar(200),
    conID int,
    dosage nvarchar(1000),
    coyName varchar(50),
    billTo varchar(50),
    revType nvarchar(100),
    BillBy nvarchar(50),
    treatedBy varchar(50),
    Capitated varchar(10),
    isRct smallint not null default 0,
    isPost smallint not null default 0,
    Charged float
)
go
-- One change of a billed item, old and new.
create table BillingDetailsAdjust (
    SNo int identity(1,1) not null primary key,
    AdjustDate date,
    AdjustTime varchar(20),
    billNo varchar(50),
    PNo varchar(50),
    BillItem nvarchar(200),
    drgName nvarchar(200),
    OldQty varchar(50),
    newQty varchar(50),
    OldPrice float,
    newPrice float,
    AdjustBy nvarchar(50),
    Remarks nvarchar(1000)
)
go
-- One discount given on a bill.
create table billDiscounts (
    SNo int identity(1,1) not null primary key,
    dtDate date,
    dtTime varchar(20),
    billNo varchar(50),
    Amount float,
    Remarks nvarchar(1000),
    entryBy nvarchar(50)
)
go
-- A request to change a price of the tariff.
create table TariffAdjust (
    adjID int identity(1,1) not null primary key,
    SNo int,
    billNo varchar(50),
    ItemName nvarchar(200),
    OldPrice float,
    newPrice float,
    revType nvarchar(100),
    coyName varchar(50),
    Category nvarchar(100)
)
go
-- A correction of a brought-forward line of a bill.
create table hDebtReview (
    SNo int identity(1,1) not null primary key,
    billNo varchar(50),
    PNo varchar(50),
    dtDate date,
    Debt float,
    adjustTo float,
    SubTotal float,
    attendedto smallint not null default 0
)
go
-- A category of clients with its mark-up in percent and as a factor; it may stand for clients of several types.
create table billingPrice (
    clientCatID varchar(50) not null,
    clientType varchar(50) not null default '',
    pcent float,
    pvalue float,
    primary key (clientCatID, clientType)
)
go
-- A type of client.
create table hClientType (
    ClientType varchar(50) not null primary key
)
go
-- A client: the company, HMO or scheme whose patients are billed on account, and the private account "0001".
-- BillEndDate is the day of the month on which its billing month ends.
create table hRetainership (
    retainID varchar(50) not null primary key,
    retainCode varchar(50),
    retainName nvarchar(200),
    coycode varchar(50),
    ClientType varchar(50),
    clientcatID varchar(50),
    Contact nvarchar(200),
    Address nvarchar(500),
    PhoneNo varchar(50),
    Email nvarchar(200),
    Active varchar(10),
    BillEndDate int default 31,
    AcctID varchar(50),
    Debt float default 0
)
go
-- A client whose consultation fee is not displayed on a bill.
create table hretainershipExempt (
    retainID varchar(50) not null primary key
)
go
-- A scheme of a client.
create table hRetainershipScheme (
    SNo int identity(1,1) not null primary key,
    retainID varchar(50),
    SchemeName nvarchar(200)
)
go
-- A payer of the panel printouts.
create table clients (
    ClientID varchar(50) not null primary key,
    ClientNAme nvarchar(200)
)
go
-- The invoice of one client for one batch.
create table BillsForClients (
    SNO int identity(1,1) not null primary key,
    BatchNo varchar(20),
    CoyCode varchar(50),
    invNo varchar(50),
    invDate date,
    AmountInvoiced float,
    Amountbilled float,
    AmountPaid float default 0,
    AmountBIlledInWord nvarchar(1000),
    BillMonth varchar(20),
    BillYear varchar(10),
    isPaid smallint not null default 0,
    isOLD smallint not null default 0,
    isPost smallint not null default 0
)
go
-- An invoiced debt: of a client by its batch, or of an outlet's customer.
create table hDebtors (
    SNo int identity(1,1) not null primary key,
    entryDate date,
    billNo varchar(50),
    clientNo varchar(50),
    invNo varchar(50),
    Amount float,
    AmountPaid float default 0,
    DEBT float,
    isPaid smallint not null default 0,
    Remarks nvarchar(1000)
)
go
-- One receipt, or one reversal of a receipt with negative amounts.
create table Payments (
    SNo int identity(1,1) not null primary key,
    ReceiptDate date,
    ReceiptNo varchar(50),
    ClinicID varchar(50),
    billNo varchar(50),
    PNo varchar(50),
    PaymentFor nvarchar(200),
    Amountbilled float,
    AmountPaid float,
    AmountInWord nvarchar(1000),
    ReceivedBy nvarchar(50),
    PayType varchar(100),
    ChequeNo varchar(50),
    rTime varchar(20),
    Remarks nvarchar(1000),
    isPost smallint not null default 0
)
go
-- The part of a receipt that came through one means of payment.
create table PaymentTypes (
    SNo int identity(1,1) not null primary key,
    ReceiptDate date,
    ReceiptNo varchar(50),
    AmountPaid float,
    PayType varchar(100),
    AccountNo varchar(50),
    isPost smallint not null default 0
)
go
-- The part of a receipt that covers one item of the bill; snoID is the item's SNo, 0 on a deposit or balance row.
create table PaymentDetails (
    SNo int identity(1,1) not null primary key,
    snoID int,
    ReceiptDate date,
    BillDate date,
    ReceiptNo varchar(50),
    billNo varchar(50),
    AmountPaid float,
    AmountToPay float,
    AccountNo varchar(50),
    revType nvarchar(100),
    BillItem nvarchar(200),
    isPost smallint not null default 0
)
go
-- The revenue type of a receipt's items by means of payment.
create table PaymentTypeDetails (
    SNo int identity(1,1) not null primary key,
    ReceiptDate date,
    ReceiptNo varchar(50),
    billNo varchar(50),
    billItem nvarchar(200),
    revType nvarchar(100),
    PayType varchar(100),
    AmountPaid float
)
go
-- One event on a patient's running account: minus is a charge, plus money received. SNo is the account's order.
create table Tranxaction (
    SNo int identity(1,1) not null primary key,
    entryDate date,
    PNo varchar(50),
    billNo varchar(50),
    Amount float,
    RunningTotal float,
    Remarks nvarchar(1000)
)
go
-- A revenue type with its ledger account.
create table hRevenueType (
    SNo int identity(1,1) not null primary key,
    revType nvarchar(100) not null,
    CatRemarks nvarchar(200),
    Active varchar(10),
    AccountNo varchar(50)
)
go
-- The drug master's revenue types.
create table drugMaster (
    drgName nvarchar(200) not null primary key,
    drgCatName nvarchar(100),
    revType nvarchar(100)
)
go
-- A drug with its base private cost.
create table drugs (
    drgName nvarchar(200) not null primary key,
    ItemID nvarchar(200),
    drgCatName nvarchar(100),
    qtyPerUnit float,
    Cost float,
    Capitated varchar(10),
    reorderlevel float
)
go
-- A price load that waits to be taken into drugs.
create table drugsxxx (
    drgName nvarchar(200) not null primary key,
    drgCatName nvarchar(100),
    qtyPerUnit float,
    Cost float
)
go
-- A category of drugs; catremarks groups them.
create table drugcategories (
    drgCatname nvarchar(100) not null primary key,
    catremarks nvarchar(100)
)
go
-- A laboratory item.
create table labservices (
    SNo int identity(1,1) not null primary key,
    Drgname nvarchar(200) not null,
    drgCatName nvarchar(100),
    Capitated varchar(10),
    revType nvarchar(100),
    coyID varchar(50),
    Cost float
)
go
-- A service.
create table hservices (
    SNo int identity(1,1) not null primary key,
    service nvarchar(200) not null,
    Category nvarchar(100),
    Capitated varchar(10),
    revType nvarchar(100),
    coyID varchar(50),
    Cost float
)
go
-- The price of a drug for one client, the private account included.
create table DrugNHIS (
    SNo int identity(1,1) not null primary key,
    drgName nvarchar(200) not null,
    company varchar(50) not null,
    Price float,
    Capitated varchar(10),
    RevType nvarchar(100)
)
go
-- The price of a laboratory item for one client.
create table LabServiceNHIS (
    SNo int identity(1,1) not null primary key,
    drgName nvarchar(200) not null,
    company varchar(50) not null,
    Price float,
    Capitated varchar(10),
    RevType nvarchar(100)
)
go
-- The price of a service for one client.
create table hServiceNHIS (
    SNo int identity(1,1) not null primary key,
    service nvarchar(200) not null,
    company varchar(50) not null,
    Price float,
    Capitated varchar(10),
    RevType nvarchar(100)
)
go
-- An item of the bulk store.
create table StockItems (
    ItemID nvarchar(200) not null primary key,
    ItemName nvarchar(200),
    ItemCatID nvarchar(100),
    QuantityPerUnit varchar(50),
    UnitPrice float,
    UnitsInStock float,
    Reorderlevel float
)
go
-- An item of the retail store with its stock; ItemID is the drug's name.
create table StockItemsRetail (
    ItemID nvarchar(200) not null primary key,
    ItemName nvarchar(200),
    ItemCatID nvarchar(100),
    QuantityPerUnit varchar(50),
    UnitPrice float,
    UnitsInStock float,
    Reorderlevel float,
    drgName nvarchar(200),
    drgCatName nvarchar(100),
    qtyPerUnit float,
    Cost float
)
go
-- One receipt of goods into the retail store.
create table StockEntryRetail (
    EntryID int identity(1,1) not null primary key,
    entryDate date,
    ItemID nvarchar(200),
    Qty float,
    ReceivedBy varchar(50),
    Comments nvarchar(1000)
)
go
-- One issue of goods from the retail store.
create table StockIssueRetail (
    IssueID int identity(1,1) not null primary key,
    issueDate date,
    ItemID nvarchar(200),
    Qty float,
    IssuedTo varchar(50),
    Comments nvarchar(1000)
)
go
-- Stock received on credit, to be posted to the accounts; TranID is the transaction of the ledger that it was posted in.
create table StockEntryAcct (
    SNO int identity(1,1) not null primary key,
    EntryDate date,
    InvoiceDate date,
    InvoiceNo varchar(50),
    POID varchar(50),
    supplierID varchar(50),
    AccountNo varchar(50),
    InvAcctNo varchar(50),
    Amount float,
    isPost smallint not null default 0,
    TranID varchar(50)
)
go
-- A purchase order.
create table PurchaseOrder (
    POID varchar(50) not null primary key
)
go
-- A creditor: supplier, contractor or consultant.
create table suppliers (
    supplierID varchar(50) not null primary key,
    SupplierName nvarchar(200),
    ContactName nvarchar(200),
    Address nvarchar(500),
    Category nvarchar(100),
    Phone varchar(50),
    Email nvarchar(200),
    AccountNo varchar(50)
)
go
-- A deleted creditor. Column for column like suppliers; a number may come back, so it is no key here.
create table SuppliersArchive (
    supplierID varchar(50),
    SupplierName nvarchar(200),
    ContactName nvarchar(200),
    Address nvarchar(500),
    Category nvarchar(100),
    Phone varchar(50),
    Email nvarchar(200),
    AccountNo varchar(50)
)
go
-- A parent bank.
create table groupbank (
    ID int identity(1,1) not null primary key,
    groupcode varchar(50) not null,
    GroupName nvarchar(200)
)
go
-- A branch of a bank, or the parent's own row.
create table banks (
    SNO int identity(1,1) not null primary key,
    bankcode varchar(50),
    branchcode varchar(50),
    bankname nvarchar(200),
    Branch nvarchar(200),
    Location nvarchar(200),
    GroupName nvarchar(200),
    Status varchar(20)
)
go
-- A category of expenses.
create table hExpenseCat (
    ID int identity(1,1) not null primary key,
    catcode varchar(50) not null,
    catName nvarchar(200)
)
go
-- An item of expense.
create table hExpenseItems (
    SNO int identity(1,1) not null primary key,
    catcode varchar(50),
    ItemCode varchar(50),
    ItemName nvarchar(200),
    Description nvarchar(1000),
    Status varchar(20)
)
go
-- An approved payment voucher.
create table hExpenseApprvFinal (
    SNo int identity(1,1) not null primary key,
    vouchNo varchar(50) not null,
    ApprvDate date,
    ReceivedBy nvarchar(200),
    ApprvBy nvarchar(50),
    Amount float,
    AmountPaid float default 0,
    Bal float,
    Paidby nvarchar(50),
    Remarks nvarchar(1000),
    isPaid smallint not null default 0,
    isDone smallint not null default 0,
    Suppres smallint not null default 0
)
go
-- An item of an approved voucher.
create table hExpenseDetailsApprvFinal (
    ExpID int identity(1,1) not null primary key,
    vouchNo varchar(50),
    ExpDate date,
    ItemCode varchar(50),
    ItemName nvarchar(200),
    Description nvarchar(1000),
    Qty float,
    Price float,
    SubTotal float,
    RefNo varchar(50),
    AcctID varchar(50),
    AttendedTo smallint not null default 0,
    isApprv smallint not null default 0,
    ispost smallint not null default 0
)
go
-- One payment of a voucher.
create table hExpensePay (
    SNo int identity(1,1) not null primary key,
    vouchNo varchar(50),
    PayDate date,
    PayTime varchar(20),
    Amount float,
    Paidby nvarchar(50),
    Description nvarchar(1000),
    REcipient nvarchar(200),
    Remarks nvarchar(1000)
)
go
-- One item of a voucher's payment.
create table hExpensePayDetails (
    SNo int identity(1,1) not null primary key,
    vouchNo varchar(50),
    PayDate date,
    PayTime varchar(20),
    Description nvarchar(1000),
    Qty float,
    Price float,
    Amount float,
    AcctNoDebit varchar(50),
    AcctNoCreit varchar(50),
    ChequeNo varchar(50),
    ValueDate date,
    PayType varchar(20),
    ItemCode varchar(50),
    Remarks nvarchar(1000),
    isPost smallint not null default 0
)
go
-- The current period. Its home is the accounting database; it is repeated here (SharedTables.h) because the start-up
-- reads it over the billing connection.
create table AccountMonth (
    Period varchar(20) not null primary key
)
go
-- The chart of accounts. Its home is the accounting database; it is repeated here (SharedTables.h) for the pick lists,
-- which read it over the billing connection.
create table ChartOfAccounts (
    SNo int identity(1,1) not null primary key,
    AccountNo varchar(50) not null,
    AccountName nvarchar(200),
    groupID varchar(50)
)
go
-- What a save wrote of itself in its own transaction: a commit whose answer was lost is looked up by its token. The time
-- and the login are the server's word; trailRows says how many rows of the audit trail name the token.
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
-- What a save added to the rows of money, or took from them (minus): how many rows of a kind, and how much. All parts of
-- a document make what its rows are; those of the action OPENING stand for what was there before parts were kept.
create table SavedParts (
    SNo int identity(1,1) not null primary key,
    token varchar(36) not null,
    kind varchar(20) not null,
    document nvarchar(50) not null,
    counted int not null,
    amount float not null
)
go
-- Working tables of job lists and reports that other programs fill; this one reads them whole, if at all.
create table Patient (
    PNo varchar(50) not null primary key,
    fullname nvarchar(200)
)
go
create table Patients (
    PNo varchar(50) not null primary key,
    fullname nvarchar(200)
)
go
create table billoflading (
    BLNo varchar(50) not null primary key,
    jobcode varchar(50)
)
go
create table debitnote (
    SNo int identity(1,1) not null primary key,
    jobcode varchar(50)
)
go
-- What a posting under way is about to flag as posted, noted before the ledger commits and struck when it is flagged: a
-- note that is left over tells what was cut off. The last numbers are those of the rows that it had read.
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
go
