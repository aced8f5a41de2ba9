-- Views of the service outlets.

-- Every item that was taken down, of the hospital's visits and the outlets', whether it is billed or waits.
create view vwBillAccumUnion as
select h.consultID as BillNo, b.dtDate as Date, p.fullname as Fullname, b.drgName as Service, b.billType as BillType,
    b.Price as UnitPrice, b.Qty, b.SubTotal, b.revType as RevType, r.retainName as Company,
    case when b.attendedto = 1 then 'YES' else 'NO' end as Billed, b.SNo
from hRecords h
inner join BillAccum b on b.consultID = h.consultID
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = isnull(h.coyName, p.coyName)
union all
select h.consultID as BillNo, b.dtDate as Date,
    (select max(q.fullname) from hPatientsPublic q where q.PNo = h.PNo) as Fullname, b.drgName as Service,
    b.billType as BillType, b.Price as UnitPrice, b.Qty, b.SubTotal, b.revType as RevType, r.retainName as Company,
    case when b.attendedto = 1 then 'YES' else 'NO' end as Billed, b.SNo
from hRecordsPublic h
inner join BillAccum b on b.consultID = h.consultID
left join hRetainership r on r.retainID = h.coyName
go
-- Every visit with items, of the hospital and the outlets: what they come to, what was billed and paid.
create view vwBillAccumUnionRpt as
select h.recDate as Date, h.htime as Time, p.fullname as Fullname, h.consultID as BillNo, r.retainName as Company,
    (select sum(a.SubTotal) from BillAccum a where a.consultID = h.consultID) as AmountGenerated,
    isnull(b.Amountbilled, 0) as AmountBilled, isnull(b.AmountPaid, 0) as AmountPaid,
    case when abs(isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0)) < 0.005 then 0
        else isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0) end as Balance
from hRecords h
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = isnull(h.coyName, p.coyName)
left join Billing b on b.billNo = h.consultID
where exists (select a.SNo from BillAccum a where a.consultID = h.consultID)
union all
select h.recDate as Date, h.htime as Time,
    (select max(q.fullname) from hPatientsPublic q where q.PNo = h.PNo) as Fullname, h.consultID as BillNo,
    r.retainName as Company, (select sum(a.SubTotal) from BillAccum a where a.consultID = h.consultID) as AmountGenerated,
    isnull(b.Amountbilled, 0) as AmountBilled, isnull(b.AmountPaid, 0) as AmountPaid,
    case when abs(isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0)) < 0.005 then 0
        else isnull(b.Amountbilled, 0) - isnull(b.AmountPaid, 0) end as Balance
from hRecordsPublic h
left join hRetainership r on r.retainID = h.coyName
left join Billing b on b.billNo = h.consultID
where exists (select a.SNo from BillAccum a where a.consultID = h.consultID)
go
-- The numbers of every receipt behind its code, whoever gave it: seven digits.
create view vwReceiptNoExt as
select y.ReceiptNo, SUBSTRING(y.ReceiptNo, 1, 3) as HospID, SUBSTRING(y.ReceiptNo, 4, 2) as RctCode,
    SUBSTRING(y.ReceiptNo, 6, 7) as Digits
from Payments y
where len(y.ReceiptNo) = 12
go
