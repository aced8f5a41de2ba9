-- Views of the list reports, of the laboratory's results and of a bill by charge heads. A client who is not in the list
-- of clients any more is shown by his code, an officer who is no user any more by his name on the line.

-- Every bill of a visit or an outlet with the officer who collated it: the last one whom a line of it names, by his user
-- name or his number. What stands once a bill comes by subqueries, since a server may else read every patient.
create view vwBillsByBillingOfficers as
select isnull(u.EmpID, d.BillBy) as empID, isnull(u.Fullname, isnull((select max(e.Fullname) from ApplicationUsers e
    where e.EmpID = d.BillBy), isnull(d.BillBy, 'Not recorded'))) as empName, h.recDate, h.BillDate,
    h.consultID as billNo, h.PNo, isnull((select p.fullname from hPatients p where p.PNo = h.PNo), h.PNo) as Fullname,
    isnull(r.retainName, h.coyName) as Company,
    (select b.Amountbilled from Billing b where b.billNo = h.consultID) as Amount
from hRecords h
left join BillingDetails d on d.detID = (select max(l.detID) from BillingDetails l where l.billNo = h.consultID
    and l.BillBy is not null)
left join ApplicationUsers u on u.Username = d.BillBy
left join hRetainership r on r.retainID = h.coyName
where d.detID is not null or exists (select l.detID from BillingDetails l where l.billNo = h.consultID)
union all
select isnull(u.EmpID, d.BillBy) as empID, isnull(u.Fullname, isnull((select max(e.Fullname) from ApplicationUsers e
    where e.EmpID = d.BillBy), isnull(d.BillBy, 'Not recorded'))) as empName, h.recDate,
    (select b.bdate from Billing b where b.billNo = h.consultID) as BillDate, h.consultID as billNo, h.PNo,
    (select max(q.fullname) from hPatientsPublic q where q.PNo = h.PNo) as Fullname,
    isnull(r.retainName, h.coyName) as Company,
    (select b.Amountbilled from Billing b where b.billNo = h.consultID) as Amount
from hRecordsPublic h
left join BillingDetails d on d.detID = (select max(l.detID) from BillingDetails l where l.billNo = h.consultID
    and l.BillBy is not null)
left join ApplicationUsers u on u.Username = d.BillBy
left join hRetainership r on r.retainID = h.coyName
where d.detID is not null or exists (select l.detID from BillingDetails l where l.billNo = h.consultID)
go
-- Every billed line of the day dtDate with the client who bears it: the line's own, else the visit's.
create view vwOrderDetails as
select d.billNo as billno, d.detID as SNO, d.dtDate, d.PNo, isnull((select p.fullname from hPatients p
    where p.PNo = d.PNo), (select max(q.fullname) from hPatientsPublic q where q.PNo = d.PNo)) as Fullname,
    isnull(r.retainName, isnull(case when d.coyName <> '' then d.coyName end,
        isnull((select h.coyName from hRecords h where h.consultID = d.billNo), 'No client'))) as coyfullname,
    d.drgName as Service, d.Qty, d.Price, d.SubTotal, d.revType
from BillingDetails d
left join hRetainership r on r.retainID = isnull(case when d.coyName <> '' then d.coyName end,
    isnull((select h.coyName from hRecords h where h.consultID = d.billNo),
        (select max(o.coyName) from hRecordsPublic o where o.consultID = d.billNo)))
go
-- The visits with items whose bill nobody has saved, and the outlets' that nobody has collated; Amount is what their
-- items come to so far.
create view vwBillAccumUnAttndTo as
select h.recDate as Date, h.htime as Time, h.consultID as billno, h.PNo, isnull(p.fullname, '') as fullname,
    isnull(r.retainName, isnull(h.coyName, p.coyName)) as Company, h.clientCat as clientcatID, h.clinicType,
    case when h.attendedtoByDoc = 1 then 'YES' else 'NO' end as Seen, 0 as isbilled,
    (select count(*) from BillAccum a where a.consultID = h.consultID) as Items,
    (select sum(a.SubTotal) from BillAccum a where a.consultID = h.consultID) as Amount
from hRecords h
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = isnull(h.coyName, p.coyName)
where h.BillDate is null and exists (select a.SNo from BillAccum a where a.consultID = h.consultID)
union all
select h.recDate as Date, h.htime as Time, h.consultID as billno, h.PNo,
    (select max(q.fullname) from hPatientsPublic q where q.PNo = h.PNo) as fullname,
    isnull(r.retainName, h.coyName) as Company, h.clientCat as clientcatID, h.clinicType, '' as Seen, 0 as isbilled,
    (select count(*) from BillAccum a where a.consultID = h.consultID) as Items,
    (select sum(a.SubTotal) from BillAccum a where a.consultID = h.consultID) as Amount
from hRecordsPublic h
left join hRetainership r on r.retainID = h.coyName
where not exists (select b.ID from Billing b where b.billNo = h.consultID)
    and exists (select a.SNo from BillAccum a where a.consultID = h.consultID)
go

-- The laboratory
-- --------------
-- A request (hInvestigate) bears a number of the laboratory, its findings stand by the visit; an outlet's visit, whose
-- number has "/" as its seventh character, is one request. The result "XXX" says that there is none yet. Findings of the
-- categories WIDAL (an antigen and its titre) and HISTOPATHOLOGY (a part of the report) have pages of their own.

create view vwInvFindings as
select f.SNo as id, i.labnum as Labno, isnull(i.conID, 0) as conID, i.consultID, i.PNo,
    isnull(p.fullname, (select max(q.fullname) from hPatientsPublic q where q.PNo = i.PNo)) as fullName,
    isnull(p.sex, (select max(q.sex) from hPatientsPublic q where q.PNo = i.PNo)) as sex,
    isnull(cast(year(i.invDate) - year(p.DOB) as varchar(10)),
        (select max(q.Age) from hPatientsPublic q where q.PNo = i.PNo)) as Age,
    isnull(r.retainName, h.coyName) as Company, i.invDate,
    (select max(c.treatedby) from hconsulting c where c.consultID = i.consultID) as Doctor,
    isnull(f.sympItemCat, isnull(f.Category, '')) as Section, isnull(f.sympItem, f.drgName) as Test, f.Result,
    case when f.Remarks = f.sympItemCat then '' else f.Remarks end as Remarks,
    isnull(e.LastName + ' ' + e.firstname, f.empID) as Scientist,
    case when SUBSTRING(i.consultID, 7, 1) = '/' then 1 else 0 end as isPublic,
    case when isnull(f.Result, '') in ('', 'XXX') then 0 else 1 end as isReady
from hInvestigate i
inner join hInvestigateFindings f on f.consultID = i.consultID
    and (isnull(f.conID, 0) = isnull(i.conID, 0) or SUBSTRING(i.consultID, 7, 1) = '/')
left join hPatients p on p.PNo = i.PNo
left join hRecords h on h.consultID = i.consultID
left join hRetainership r on r.retainID = isnull(h.coyName, p.coyName)
left join employees e on e.empID = f.empID
go
-- Every finding that has a result.
create view vwInvResultForRptAlt as
select v.id, v.Labno, v.conID, v.consultID, v.PNo, v.fullName, v.invDate
from vwInvFindings v
where v.isReady = 1
go
-- The findings of a hospital's visit as they are printed.
create view vwInvResultForRpt as
select v.id, v.Labno, v.conID, v.consultID, v.PNo, v.fullName, v.sex, v.Age, v.Company, v.invDate, v.Doctor, v.Section,
    v.Test, case when v.isReady = 1 then v.Result else 'to follow' end as Result, v.Remarks, v.Scientist
from vwInvFindings v
where v.isPublic = 0 and v.Section not in ('WIDAL', 'HISTOPATHOLOGY')
go
-- The same of an outlet's visit.
create view vwInvResultForRptPublic as
select v.id, v.Labno, v.conID, v.consultID, v.PNo, v.fullName, v.sex, v.Age, v.Company, v.invDate, v.Doctor, v.Section,
    v.Test, case when v.isReady = 1 then v.Result else 'to follow' end as Result, v.Remarks, v.Scientist
from vwInvFindings v
where v.isPublic = 1 and v.Section not in ('WIDAL', 'HISTOPATHOLOGY')
go
-- The titres of a WIDAL reaction, of either.
create view vwWidal as
select v.id, v.Labno, v.conID, v.consultID, v.PNo, v.fullName, v.sex, v.Age, v.Company, v.invDate, v.Doctor, v.Section,
    v.Test, v.Result, v.Remarks, v.Scientist
from vwInvFindings v
where v.Section = 'WIDAL' and v.isReady = 1
go
-- The parts of a report on tissue: the specimen, what is seen and what it is.
create view vwHistPathology as
select v.id, v.Labno, v.conID, v.consultID, v.PNo, v.fullName, v.sex, v.Age, v.Company, v.invDate, v.Doctor, v.Section,
    v.Test, v.Result, v.Remarks, v.Scientist
from vwInvFindings v
where v.Section = 'HISTOPATHOLOGY' and v.isReady = 1 and v.isPublic = 0
go
create view vwHistPathologyPublic as
select v.id, v.Labno, v.conID, v.consultID, v.PNo, v.fullName, v.sex, v.Age, v.Company, v.invDate, v.Doctor, v.Section,
    v.Test, v.Result, v.Remarks, v.Scientist
from vwInvFindings v
where v.Section = 'HISTOPATHOLOGY' and v.isReady = 1 and v.isPublic = 1
go

-- A bill by charge heads
-- ----------------------

-- The lines of a bill with the head under which the in-patient's form shows them, by the item's category, its words and
-- its revenue type.
create view vwBillChargeHeads as
select d.billNo, d.SubTotal, case
    when d.drgName like '%TELEPHONE%' then 'Telephone'
    when d.drgName like '%TELEVISION%' then 'TELEVISION'
    when d.drgName like '%VIDEO%' then 'VIDEO'
    when d.drgName like '%SPECIAL%DIET%' then 'accommodation_specialist_diet'
    when d.drgName like 'FEEDING%' then 'accommodation_food'
    when d.drgName like 'PHOTOTHERAPY%' then 'PHOTOTHERAPY'
    when d.drgName like '%IMMUNI%ATION%' or a.Category = 'VACCINES' then 'IMMUNIZATION'
    when d.drgName like '%BLOOD TRANSFUSION%' then 'infusion_blood_transfusion'
    when d.drgName like 'ORAL REHYDRATION%' then 'infusion_oral_fluid'
    when d.drgName like '%SPECIAL%INFUSION%' then 'infusion_special'
    when a.Category = 'INFUSION' then 'infusion_Regular'
    when d.drgName like 'MANIPULATION UNDER%' then 'manipulation_under_anaesth'
    when d.drgName like 'ANAESTHE%FEE%' then 'anaesthetic_fee'
    when d.drgName like 'ANAESTHE%' then 'anaesthetic_drugs'
    when d.drgName like 'THEATRE%' then 'theatre_use'
    when d.drgName like '%CIRCUMCISION%' then 'CIRCUMCISION'
    when d.drgName like '%CERVICAL LACERATION%' then 'CERVICAL_LACERATION'
    when d.drgName like 'SUTUR%' then 'suturing'
    when d.drgName like '%PLASTER OF PARIS%' or d.drgName like '% POP %' then 'plaster_of_paris'
    when d.drgName like '%GENERAL SURGEON%' then 'general_surgeon_fee'
    when d.drgName like '%ORTHOPAEDIC SURGEON%' then 'orthopaedic_surgeon_fee'
    when d.drgName like 'ANTE%NATAL%' then 'ANTENATAL'
    when d.drgName like '%ASSISTED%DELIVERY%' then 'DELIVERY_ASSISTED'
    when d.drgName like '%NORMAL%DELIVERY%' then 'DELIVERY_NORMAL'
    when d.drgName like '%DELIVERY%' or d.drgName like '%CAESAREAN%' then 'DELIVERY_ABNORMAL'
    when a.Category = 'DRESSING' or d.drgName like '%DRESSING%' then 'dressing'
    when a.Category = 'INJECTIONS' then 'Injections'
    when d.drgName like '%URIN%' and d.revType = 'LABORATORY' then 'LAB_URINE'
    when d.drgName like '%STOOL%' and d.revType = 'LABORATORY' then 'LAB_STOOL'
    when d.drgName like '%FUNG%' and d.revType = 'LABORATORY' then 'LAB_MYCOLOGY'
    when a.Category = 'HORMONES' then 'LAB_HORMONAL_ASSAY'
    when a.Category in ('HAEMATOLOGY', 'BLOOD BANK') then 'LAB_BLOOD'
    when a.Category = 'ULTRASOUND' then 'LAB_USS_ULTRASOUND'
    when d.drgName like 'SPECIAL %' then 'special_treatment'
    when d.revType = 'CONSULTATION' then 'consultation'
    when d.revType = 'REGISTRATION' then 'Registration'
    when d.revType = 'WARD' then 'accommodation_room'
    when d.revType = 'THEATRE' then 'surgeons_fee'
    when d.revType = 'EYE' then 'opthalmologist_fee'
    when d.revType = 'DENTAL' then 'dental_surgeon'
    when d.revType = 'PHYSIOTHERAPY' then 'physiotherapist_fee'
    when a.Category like 'SPECIAL%' then 'special_drugs'
    when d.revType in ('PHARMACY', 'DRUGS') then 'medication'
    when d.revType in ('LABORATORY', 'RADIOLOGY') then 'LAB_OTHERS'
    else 'others' end as ChargeHead
from BillingDetails d
left join BillAccum a on a.SNo = d.SNo
go
-- A bill with what stands under each head; what stands under none of them is among the others, so that all heads make
-- the total, but for the consultation fee of a client who is not to see it.
create view qryBillingForPrivateInPatientInvoice as
select h.consultID as billno, h.PNo, p.fullname as fullName, p.empNo, h.clientCat as clientcatID, h.coyName as clientID,
    isnull(r.retainName, h.coyName) as clientName, h.recDate, b.bdate, b.admdate, b.DischDate, b.diagnosis,
    (select sum(d.SubTotal) from BillingDetails d where d.billNo = h.consultID) as Total,
    isnull(b.AmountPaid, 0) as Deduction,
    (select sum(d.SubTotal) from BillingDetails d where d.billNo = h.consultID) - isnull(b.AmountPaid, 0) as AmountDue,
    case when exists (select e.retainID from hretainershipExempt e where e.retainID = h.coyName) then null else
        (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'consultation')
        end as consultation,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'medication') as medication,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'special_drugs') as special_drugs,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'Registration') as Registration,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'Injections') as Injections,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'dressing') as dressing,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'accommodation_room') as accommodation_room,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'accommodation_food') as accommodation_food,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'accommodation_specialist_diet') as accommodation_specialist_diet,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'theatre_use') as theatre_use,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'surgeons_fee') as surgeons_fee,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'general_surgeon_fee') as general_surgeon_fee,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'orthopaedic_surgeon_fee') as orthopaedic_surgeon_fee,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'opthalmologist_fee') as opthalmologist_fee,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'dental_surgeon') as dental_surgeon,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'anaesthetic_fee') as anaesthetic_fee,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'anaesthetic_drugs') as anaesthetic_drugs,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'manipulation_under_anaesth') as manipulation_under_anaesth,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'infusion_Regular') as infusion_Regular,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'infusion_special') as infusion_special,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'infusion_oral_fluid') as infusion_oral_fluid,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'infusion_blood_transfusion') as infusion_blood_transfusion,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'suturing') as suturing,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'plaster_of_paris') as plaster_of_paris,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'special_treatment') as special_treatment,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'physiotherapist_fee') as physiotherapist_fee,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'ANTENATAL') as ANTENATAL,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'DELIVERY_NORMAL') as DELIVERY_NORMAL,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'DELIVERY_ASSISTED') as DELIVERY_ASSISTED,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'DELIVERY_ABNORMAL') as DELIVERY_ABNORMAL,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'CERVICAL_LACERATION') as CERVICAL_LACERATION,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'CIRCUMCISION') as CIRCUMCISION,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'IMMUNIZATION') as IMMUNIZATION,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'PHOTOTHERAPY') as PHOTOTHERAPY,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'LAB_BLOOD') as LAB_BLOOD,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'LAB_URINE') as LAB_URINE,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'LAB_STOOL') as LAB_STOOL,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'LAB_HORMONAL_ASSAY') as LAB_HORMONAL_ASSAY,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'LAB_MYCOLOGY') as LAB_MYCOLOGY,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'LAB_USS_ULTRASOUND') as LAB_USS_ULTRASOUND,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'LAB_OTHERS') as LAB_OTHERS,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'Telephone') as Telephone,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'TELEVISION') as TELEVISION,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'VIDEO') as VIDEO,
    (select sum(k.SubTotal) from vwBillChargeHeads k where k.billNo = h.consultID and k.ChargeHead = 'others') as others
from hRecords h
left join Billing b on b.billNo = h.consultID
left join hPatients p on p.PNo = h.PNo
left join hRetainership r on r.retainID = h.coyName
go
