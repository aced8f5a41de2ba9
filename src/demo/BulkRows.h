#pragma once

#include "demo/BulkPrices.h"
#include "demo/DemoVisits.h"

namespace orvane {

/// One item of a visit; the first one is the consultation.
struct BulkItem {
    qlonglong sno = 0;
    QString name;
    QString category, revType;
    QString billType; ///< "DRUG", "INVESTIGATION" or "SERVICE"
    double price = 0, quantity = 1, subTotal = 0;
    bool onBill = false;  ///< has a line; a capitated item has none
    bool covered = false; ///< by the receipt
};

struct BulkWay {
    QString payType, account;
    double amount = 0;
};

struct BulkVisit : DemoVisit {
    int index = 0; ///< of the patient
    QString purpose, diagnosis;
    QDateTime at;
    QVector<BulkItem> items;
    QVector<BulkWay> ways; ///< of the receipt; empty: none was taken
    QString receiptNo, approvalCode;
    QDate saved;          ///< hRecords.BillDate; none: the visit waits for its bill
    bool dayCase = false; ///< lay in a ward for the day
    bool inWard = false;  ///< and still does

    double total() const; ///< of the lines
    double paid() const;
};

/// A user who collates bills, as the rows name him.
struct BulkUser {
    QString name, employee;
};

/// The tables of the hospital that grow, while they are loaded: each call writes what the screens leave of its step.
class BulkRows {
public:
    /// `audit`: the connection that holds the audit trail.
    BulkRows(Connection& billing, Connection& audit, const DemoHospital& hospital, const PriceBook& prices);

    void addVisit(const BulkVisit& visit, const RowValues& consultation, const DemoEmployee& officer);
    void addItem(const BulkVisit& visit, const BulkItem& item);
    /// Lines, running account, bill and receipt. Keeps the patient's balance.
    void addBill(const BulkVisit& visit, DemoPatient& patient, const BulkUser& user, QTime time);
    void addAppointment(const BulkVisit& visit, QDate date, bool kept);
    void addSession(const BulkUser& user, QDate day);
    void flush();

private:
    void addLine(const BulkVisit& visit, const BulkItem& item, DemoPatient& patient);
    void addReceipt(const BulkVisit& visit, DemoPatient& patient);
    void addShare(const BulkVisit& visit, const BulkItem& item, QDate billDate, double paid, const QString& account);
    void addAccountEntry(const BulkVisit& visit, DemoPatient& patient, double amount, const QString& remarks);
    void addTrail(const QString& action, const QString& tranCode, const QString& remarks);

    const DemoHospital& m_hospital;
    const PriceBook& m_prices;
    BulkInsert m_visits, m_consultations, m_items, m_bills, m_lines, m_payments, m_ways, m_shares, m_account,
        m_approvals, m_admissions, m_appointments, m_sessions, m_trail;
    BulkUser m_user; ///< whose bill is written
    QDateTime m_now;
};

} // namespace orvane
