-- Views of the accounts.

-- Every billed line of the day dtDate with its client, its revenue type and who rendered it.
create view vwBillingDetailsForRev as
select d.SNo as SNO, d.dtDate as Date,
    isnull(p.fullname, (select max(q.fullname) from hPatientsPublic q where q.PNo = d.PNo)) as Fullname,
    d.drgName as Service, d.Qty, d.SubTotal as subTotal, d.revType, d.treatedBy,
    e.LastName + ' ' + e.firstname as Consultant,
    case when isnull(d.treatedBy, '') = '' then 'No consultant named'
        else isnull(e.LastName + ' ' + e.firstname, d.treatedBy) end as RenderedBy, r.retainName as Company, d.billNo as BillNO,
    isnull(h.clientCat, r.clientcatID) as clientCatID, d.BillType, r.retainCode as RetainCode,
    r.ClientType as clientType, t.AccountNo
from BillingDetails d
left join hPatients p on p.PNo = d.PNo
left join hRecords h on h.consultID = d.billNo
left join hRetainership r on r.retainID = isnull(case when d.coyName <> '' then d.coyName end, isnull(h.coyName,
    (select max(o.coyName) from hRecordsPublic o where o.consultID = d.billNo)))
left join hRevenueType t on t.revType = d.revType
left join employees e on e.empID = d.treatedBy
go
-- What receipts were given for, item by item, with the client of the visit paid for.
create view vwPaymentDetails as
select d.SNo, d.ReceiptDate, d.ReceiptNo, d.AmountPaid, d.revType as RevType, d.billNo as billNO, d.AmountToPay,
    d.AccountNo, d.BillItem, d.BillDate, d.isPost, r.retainName as Company, r.retainCode as RetainCode,
    r.ClientType as clientType
from PaymentDetails d
left join hRecords h on h.consultID = d.billNo
left join hRetainership r on r.retainID = isnull(h.coyName,
    (select max(o.coyName) from hRecordsPublic o where o.consultID = d.billNo))
go

-- Every bank's own row and its branches; BName is the bank's name as it stands now.
create view vwBanks as
select b.SNO, isnull(b.bankname, g.GroupName) as BankName, b.Branch, b.Location, b.bankcode as BankCode,
    b.branchcode as BranchCode, g.GroupName as BName, b.Status
from banks b
left join groupbank g on g.groupcode = b.bankcode
go
-- Every category's own row and its items; BName is the category's name.
create view vwItems as
select i.SNO, i.ItemName, i.Description, i.ItemCode, i.catcode as Catcode, c.catName as BName, i.Status
from hExpenseItems i
left join hExpenseCat c on c.catcode = i.catcode
go
-- The item codes in use as numbers.
create view vwItemCode as
select i.catcode as catCode, cast(i.ItemCode as bigint) as itemcode
from hExpenseItems i
go
-- The creditors.
create view vwsuppliers as
select s.supplierID, s.SupplierName, s.Category, s.Address, s.Phone, s.Email, s.ContactName as Contact, s.AccountNo
from suppliers s
go
-- The creditors' numbers.
create view vwSupplierCode as
select cast(s.supplierID as bigint) as supplierID
from suppliers s
go
-- Stock received on credit, with the account of its creditor and the name of the inventory account.
create view vwStockEntryAcct as
select e.SNO, e.EntryDate, e.InvoiceDate, e.InvoiceNo, s.SupplierName, isnull(e.AccountNo, s.AccountNo) as AccountNo,
    e.Amount, (select max(c.AccountName) from ChartOfAccounts c where c.AccountNo = e.InvAcctNo) as AccountName,
    e.InvAcctNo, e.POID, e.isPost, e.TranID
from StockEntryAcct e
left join suppliers s on s.supplierID = e.supplierID
go

-- The items of approved vouchers.
create view vwhExpenseApprvFinal as
select d.ExpID as SNo, d.ExpID, d.vouchNo as VouchNo, d.ExpDate, h.ApprvDate as Date, d.ItemCode, d.ItemName,
    d.Description, d.Qty, d.Price, d.SubTotal, d.SubTotal as Amount, d.RefNo, d.AcctID, h.Remarks, d.ispost as isPost
from hExpenseDetailsApprvFinal d
left join hExpenseApprvFinal h on h.vouchNo = d.vouchNo
go
-- The approved vouchers.
create view vwhExpenseApprvFinalHeader as
select h.SNo, h.ApprvDate as Date, h.ReceivedBy, h.vouchNo as VouchNo, h.Amount, h.AmountPaid, h.Remarks, h.ApprvBy,
    h.isPaid, h.Suppres
from hExpenseApprvFinal h
go
-- What was paid on vouchers; posted is a payment none of whose items waits.
create view vwhExpensePay as
select y.SNo, y.PayDate as Date, y.PayTime as Time, y.Amount,
    case when exists (select d.SNo from hExpensePayDetails d where d.vouchNo = y.vouchNo and d.isPost = 0) then 'NO'
        else 'YES' end as Posted,
    y.REcipient as Recipient, y.Description, y.vouchNo as VouchNo, y.Paidby as PaidBy, h.ApprvBy
from hExpensePay y
left join hExpenseApprvFinal h on h.vouchNo = y.vouchNo
go

-- Every receipt and reversal with the cashier who took it; a name that no user bears is the receipt's own word.
create view vwPaymentsByCashier as
select y.SNo, y.ReceivedBy as empID,
    isnull((select max(u.Fullname) from ApplicationUsers u where u.EmpID = y.ReceivedBy), y.ReceivedBy) as empName,
    y.ReceiptDate as receiptdate, y.ReceiptNo, y.rTime,
    isnull(p.fullname, (select max(q.fullname) from hPatientsPublic q where q.PNo = y.PNo)) as Fullname, y.PNo,
    y.billNo, y.PaymentFor, y.PayType, y.AmountPaid, y.Remarks
from Payments y
left join hPatients p on p.PNo = y.PNo
go
-- The ways by which each receipt was paid, with its cashier. A number that was entered twice on a day has one cashier.
create view vwPaymentsByCashierTypes as
select t.SNo, t.ReceiptDate as receiptdate, t.ReceiptNo, y.ReceivedBy as empID,
    isnull((select max(u.Fullname) from ApplicationUsers u where u.EmpID = y.ReceivedBy), y.ReceivedBy) as empName,
    t.PayType, isnull(p.fullname, (select max(q.fullname) from hPatientsPublic q where q.PNo = y.PNo)) as Fullname,
    t.AmountPaid, t.AccountNo
from PaymentTypes t
left join Payments y on y.SNo = (select min(f.SNo) from Payments f where f.ReceiptNo = t.ReceiptNo
    and f.ReceiptDate = t.ReceiptDate)
left join hPatients p on p.PNo = y.PNo
go
-- What the cashiers paid on vouchers, a payment a row.
create view vwhExpensePaySumm as
select y.SNo, y.PayDate as Date, y.PayTime as Time, y.vouchNo as Vouchers, y.REcipient as Recipient, y.Description,
    (select max(d.PayType) from hExpensePayDetails d where d.vouchNo = y.vouchNo and d.PayDate = y.PayDate) as PayType,
    (select max(d.ChequeNo) from hExpensePayDetails d where d.vouchNo = y.vouchNo and d.PayDate = y.PayDate) as ChequeNo,
    y.Amount, isnull((select max(u.Fullname) from ApplicationUsers u where u.Username = y.Paidby or u.EmpID = y.Paidby),
    y.Paidby) as PaidBy
from hExpensePay y
go
