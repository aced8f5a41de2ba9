-- Keys beside the primary ones, and an index for every column that a join or a screen's statement filters by.

create unique index uxUserRoles on UserRoles (Username, RoleID)
go
create index ixAppSettingsCode on appSettings (IDValCode)
go

create index ixPatientsOldPNo on hPatients (OldPNo)
go
-- Patients are searched by the first letters of a name.
create index ixPatientsSurname on hPatients (psurname)
go
create index ixPatientsFullname on hPatients (fullname)
go
-- Those with a valid card are counted.
create index ixPatientsExpiry on hPatients (expirydate)
go
create index ixPatientsClient on hPatients (coyName)
go
create index ixPatientsPublicPNo on hPatientsPublic (PNo)
go

-- One visit a number: two workstations that formed the same number must not both save.
create unique index uxRecordsConsultID on hRecords (consultID)
go
create index ixRecordsPNo on hRecords (PNo, recDate)
go
create index ixRecordsDate on hRecords (recDate)
go
create index ixRecordsUnbilled on hRecords (recDate) where BillDate is null
go
create index ixRecordsSerial on hRecords
    (SUBSTRING(consultID, 4, 3), SUBSTRING(consultID, 1, 3), cast(SUBSTRING(consultID, 7, 7) as bigint))
go
create index ixRecordsOldSerial on hRecords (SUBSTRING(consultID, 1, 3), SUBSTRING(consultID, 4, 7))
go
create index ixRecordsSplit on hRecords (SUBSTRING(consultID, 1, 12))
go
-- The bills of a month, and those of one client in it; with what the review needs of a visit before it looks at its
-- bill.
create index ixRecordsBatch on hRecords (convert(varchar(7), BillDate, 111), coyName, PNo, consultID, BillDate)
go
-- Those billed between two days.
create index ixRecordsBillDate on hRecords (BillDate, coyName)
go
create unique index uxRecordsPublicConsultID on hRecordsPublic (consultID)
go
create index ixRecordsPublicSerial on hRecordsPublic
    (SUBSTRING(consultID, 1, 3), cast(SUBSTRING(consultID, 8, 6) as bigint))
go
create index ixRecordsPublicDate on hRecordsPublic (recDate)
go
create index ixReferalDate on hreferal (ApptDate)
go
create index ixReferalConsultID on hreferal (ConsultID)
go
create index ixConsultingConsultID on hconsulting (consultID)
go
create index ixConsultingPNo on hconsulting (PNo)
go
-- Those that nobody has finished with.
create index ixConsultingOpen on hconsulting (consultID) where attendedto = 0
go
create index ixDispensedConsultID on hConsultingDetails (consultID)
go
create index ixMedChartConsultID on hMedChartMonitor (consultID)
go
create index ixStockEntryRetailItem on StockEntryRetail (ItemID, EntryID)
go
create index ixAdmissionConsultID on hAdmission (consultID)
go
create index ixAdmissionOpen on hAdmission (consultID) where DischDate is null
go
create index ixApprvCodeConsultID on hApprvCode (consultID)
go

create index ixAccumConsultID on BillAccum (consultID)
go
create index ixAccumPNo on BillAccum (PNo, consultID)
go
-- One bill a number, and one line of a bill for each item.
create unique index uxBillingBillNo on Billing (billNo)
go
create index ixBillingPNo on Billing (PNo)
go
create index ixBillingDate on Billing (bdate)
go
create index ixBillingInvNo on Billing (InvNo)
go
create unique index uxDetailsSNo on BillingDetails (SNo) where SNo is not null
go
create index ixDetailsBillNo on BillingDetails (billNo)
go
-- The revenue of some days.
create index ixDetailsDate on BillingDetails (dtDate)
go
create index ixAdjustBillNo on BillingDetailsAdjust (billNo)
go
create index ixBatchesNo on BillsForClients (BatchNo, CoyCode)
go
create index ixBatchesClient on BillsForClients (CoyCode)
go
create index ixBatchesInvNo on BillsForClients (invNo)
go
create index ixDebtorsInvNo on hDebtors (invNo)
go
create index ixDebtorsBillNo on hDebtors (billNo)
go

-- One receipt a number. A paper receipt, SN and its number, may be entered twice: it lies between the two keys.
create unique index uxPaymentsReceiptNoBelowSN on Payments (ReceiptNo) where ReceiptNo < 'SN'
go
create unique index uxPaymentsReceiptNoAboveSN on Payments (ReceiptNo) where ReceiptNo >= 'SO'
go
create index ixPaymentsReceiptNo on Payments (ReceiptNo)
go
create index ixPaymentsBillNo on Payments (billNo)
go
create index ixPaymentsDate on Payments (ReceiptDate)
go
create index ixPaymentsPNo on Payments (PNo)
go
create index ixPaymentsSerial on Payments
    (SUBSTRING(ReceiptNo, 4, 2), SUBSTRING(ReceiptNo, 1, 3), cast(SUBSTRING(ReceiptNo, 6, 7) as bigint))
go
create index ixPaymentsOldSerial on Payments (SUBSTRING(ReceiptNo, 1, 2), cast(SUBSTRING(ReceiptNo, 3, 7) as bigint))
go
create index ixPaymentTypesReceiptNo on PaymentTypes (ReceiptNo)
go
create index ixPaymentTypesDate on PaymentTypes (ReceiptDate)
go
create index ixPaymentDetailsReceiptNo on PaymentDetails (ReceiptNo)
go
create index ixPaymentDetailsBillNo on PaymentDetails (billNo)
go
create index ixPaymentDetailsDate on PaymentDetails (ReceiptDate)
go
create index ixTranxactionPNo on Tranxaction (PNo, SNo)
go
create index ixTranxactionBillNo on Tranxaction (billNo)
go

create unique index uxRevenueType on hRevenueType (revType)
go
create index ixClientsCode on hRetainership (retainCode)
go
create index ixClientsName on hRetainership (retainName)
go
create index ixSchemeClient on hRetainershipScheme (retainID)
go
create index ixDrugNHIS on DrugNHIS (drgName, company)
go
create index ixLabServiceNHIS on LabServiceNHIS (drgName, company)
go
create index ixServiceNHIS on hServiceNHIS (service, company)
go
create index ixLabservicesName on labservices (Drgname)
go
create index ixServicesName on hservices (service)
go
create unique index uxChartAccountNo on ChartOfAccounts (AccountNo)
go
create index ixChartGroup on ChartOfAccounts (groupID)
go

create index ixVoucherNo on hExpenseApprvFinal (vouchNo)
go
create index ixVoucherItemsNo on hExpenseDetailsApprvFinal (vouchNo)
go
create index ixVoucherPaidDate on hExpensePay (PayDate)
go
create index ixVoucherPaidItemsNo on hExpensePayDetails (vouchNo)
go
create index ixStockEntryInvoiceDate on StockEntryAcct (InvoiceDate)
go
create index ixStockEntryDate on StockEntryAcct (EntryDate)
go

-- The laboratory's requests by their day and by their number, and the findings of a visit.
create index ixInvestigateDate on hInvestigate (invDate)
go
create index ixInvestigateLabNo on hInvestigate (labnum)
go
create index ixFindingsConsultID on hInvestigateFindings (consultID)
go
