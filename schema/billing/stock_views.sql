-- Views of dispensing and of the retail store.

-- A consultation whose prescription of injections or dressings nobody has dispensed yet, which sends the visit to
-- billing. remarks is the visit's purpose, "ADMISSION" while its patient is in a ward.
create view qryhConsultingPatListForInjAndDressingBill as
select c.consultID, p.psurname as pSurname, p.pfirstname, h.PNo as pno, h.clientCat as clientcat, c.injprescription,
    case when exists (select a.SNo from hAdmission a where a.consultID = c.consultID and a.DischDate is null)
        then 'ADMISSION' else h.Remarks end as remarks,
    c.treatedby, year(h.recDate) - year(p.DOB) - case
        when month(h.recDate) * 100 + day(h.recDate) < month(p.DOB) * 100 + day(p.DOB) then 1 else 0 end as Age
from hconsulting c
inner join hRecords h on h.consultID = c.consultID
left join hPatients p on p.PNo = h.PNo
where c.attendedto = 0 and c.injprescription <> ''
go
-- What came into the retail store, with who received it as the stock officers are listed.
create view qryStockEntryForGridRetail as
select s.EntryID, s.entryDate as EntryDate, s.ItemID as itemCode, s.Qty as qty,
    case when e.empID is null then s.ReceivedBy
        else isnull(e.LastName, '') + ' ' + isnull(e.firstname, '') + ' [' + e.empID + ']' end as receivedby,
    s.Comments as comments
from StockEntryRetail s
left join employees e on e.empID = s.ReceivedBy
go
-- Every item of the retail store.
create view qryStockItemsRetail as
select s.ItemID, s.ItemName as itemname, s.ItemCatID, s.QuantityPerUnit, s.UnitPrice, s.UnitsInStock, s.Reorderlevel
from StockItemsRetail s
go
