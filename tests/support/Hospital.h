#pragma once

#include "data/rows/Connection.h"

#include <QDate>
#include <QString>

namespace orvane {

/// Lays the least that the program starts and works with, as the owner of the database would: every start-up setting,
/// the hospital "001", the user "amina.b" (AMINA BELLO, roles BILLING and MANAGEMENT), clinics, outlets, revenue types,
/// a few items with their price templates, and these clients: "0001" private (PRIVATE), "0102" a company (MTHLY),
/// "0201" an HMO (HMO), "0301" a scheme (NHIS). Prices in naira, private / HMO: PARACETAMOL 500MG 50 / 40 (capitated),
/// AMOXICILLIN 500MG 120 / 0, ARTEMETHER INJECTION 850 / none, MALARIA PARASITE 1500 / 1200, FULL BLOOD COUNT 3500 /
/// none, WOUND DRESSING 2500 / none. Consultation: OPD 2000, ANTENATAL 1501.50.
void layHospital(Connection& billing, Connection& accounting);

struct TestPatient {
    QString pno = "P/0001";
    QString surname = "ADEYEMI";
    QString firstname = "BOLA";
    QString category = "PRIVATE";
    QString client = "0001";
    QString ref = "NO";
    QDate expiry = {};
    double debt = 0; ///< naira, minus is owed
};
void makePatient(Connection& billing, const TestPatient& patient = {});

/// A visit that a doctor has not seen yet.
struct TestVisit {
    QString consultID = "001OFL0000001";
    QString pno = "P/0001";
    QDate date = QDate(2026, 3, 14);
    QString category = "PRIVATE";
    QString client = "0001";
    QString clinic = "OPD";
    QString purpose = "CONSULTATION";
    QString referal = "NO";
};
void makeVisit(Connection& billing, const TestVisit& visit = {});

/// A doctor's consultation of a visit; a finished one makes the visit wait for billing.
struct TestConsultation {
    QString consultID = "001OFL0000001";
    QString pno = "P/0001";
    QDate date = QDate(2026, 3, 14);
    QString diagnosis = "MALARIA";
    QString prescription = "PARACETAMOL 500MG 2 TDS X 3/7";
    bool finished = true;
};
void makeConsultation(Connection& billing, const TestConsultation& consultation = {});

/// An item of a visit that waits for collation. Gives its SNo.
struct TestItem {
    QString consultID = "001OFL0000001";
    QString pno = "P/0001";
    QDate date = QDate(2026, 3, 14);
    QString name = "PARACETAMOL 500MG";
    QString billType = "DRUG";
    QString revType = "DRUGS";
    QString client = "0001";
    double price = 50; ///< naira
    double qty = 1;
    QString capitated = "NO";
};
qlonglong makeItem(Connection& billing, const TestItem& item = {});

/// A client's bill of one line, in naira, that waits for the month's run.
void makeMonthBill(Connection& billing, const QString& billNo, const QString& client, double amount,
                   QDate date = QDate(2026, 3, 14));
/// One more line of it, with its item.
void makeMonthLine(Connection& billing, const QString& billNo, const QString& client, double amount,
                   QDate date = QDate(2026, 3, 14));

} // namespace orvane
