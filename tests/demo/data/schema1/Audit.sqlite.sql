PRAGMA foreign_keys=OFF;
BEGIN TRANSACTION;
CREATE TABLE AuditTrail (
    SNo integer primary key autoincrement,
    userName text collate nocase,
    userAction text collate nocase,
    ActionDate date,
    ActionTime text collate nocase,
    TranCode text collate nocase,
    Remarks text collate nocase,
    Src text collate nocase
);
INSERT INTO AuditTrail VALUES(1,'chidi.o','Login Billing','2026-03-12','08:00','','','BILLING: from vm');
INSERT INTO AuditTrail VALUES(2,'chidi.o','insert BillAccum Item for OKAPI FIELDS HMO NHIS (DEMO)','2026-03-12','12:00','001OFL0000001','PARACETAMOL 1G/100ML INFUSION: 5,850.00','BILLING: from frmBillPat');
INSERT INTO AuditTrail VALUES(3,'chidi.o','insert BillDetails Item for OKAPI FIELDS HMO NHIS (DEMO)','2026-03-12','12:00','001OFL0000001','PARACETAMOL 1G/100ML INFUSION: 5,850.00','BILLING: from frmBillPat');
INSERT INTO AuditTrail VALUES(4,'chidi.o','insert BillAccum Item for OKAPI FIELDS HMO NHIS (DEMO)','2026-03-12','12:00','001OFL0000001','URINALYSIS: 975.00','BILLING: from frmBillPat');
INSERT INTO AuditTrail VALUES(5,'chidi.o','insert BillAccum Item for OKAPI FIELDS HMO NHIS (DEMO)','2026-03-12','12:00','001OFL0000001','ERYTHROCYTE SEDIMENTATION RATE (ESR): 1,300.00','BILLING: from frmBillPat');
INSERT INTO AuditTrail VALUES(6,'chidi.o','insert BillDetails Item for OKAPI FIELDS HMO NHIS (DEMO)','2026-03-12','12:00','001OFL0000001','ERYTHROCYTE SEDIMENTATION RATE (ESR): 1,300.00','BILLING: from frmBillPat');
INSERT INTO AuditTrail VALUES(7,'chidi.o','insert BillAccum Item for OKAPI FIELDS HMO (DEMO)','2026-03-12','12:12','001OFL0000002','FENTANYL 100MCG/2ML INJECTION: 15,050.00','BILLING: from frmBillPat');
INSERT INTO AuditTrail VALUES(8,'chidi.o','insert BillDetails Item for OKAPI FIELDS HMO (DEMO)','2026-03-12','12:12','001OFL0000002','FENTANYL 100MCG/2ML INJECTION: 15,050.00','BILLING: from frmBillPat');
INSERT INTO AuditTrail VALUES(9,'chidi.o','insert BillAccum Item for OKAPI FIELDS HMO (DEMO)','2026-03-12','12:12','001OFL0000002','QUININE 300MG TABLET: 170.00','BILLING: from frmBillPat');
INSERT INTO AuditTrail VALUES(10,'chidi.o','insert BillAccum Item for OKAPI FIELDS HMO (DEMO)','2026-03-12','12:12','001OFL0000002','LACTATE DEHYDROGENASE (LDH): 4,300.00','BILLING: from frmBillPat');
DELETE FROM sqlite_sequence;
INSERT INTO sqlite_sequence VALUES('AuditTrail',214);
COMMIT;
PRAGMA user_version=1;
