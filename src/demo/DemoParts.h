#pragma once

#include "data/rows/BulkInsert.h"
#include "data/rows/Recordset.h"
#include "demo/Demo.h"
#include "demo/DemoRandom.h"

#include <QStringList>
#include <QVector>
#include <functional>

namespace orvane {

/// An item of the hospital's price lists.
struct DemoItem {
    QString name;
    QString category;
    QString kind; ///< "DRUG", "LAB" or "SERVICE", as an entry type
    QString revType;
    double price = 0; ///< what a private patient pays, naira; 0: not priced yet
    int unitsInPack = 1;
};

struct DemoClient {
    QString id; ///< retainID and retainCode
    QString name;
    QString type;     ///< client type
    QString category; ///< billing category
    int percent = 0;  ///< of the private price in its own price list; 0: it has none
};

struct DemoPatient {
    QString number, surname, firstName, sex;
    QString clientID, category;
    bool feeForService = false;
    QDate born, cardExpires;
    double balance = 0; ///< of the running account, naira; minus is owed
    QDate firstVisit;   ///< none: has not come yet
};

struct DemoEmployee {
    QString id, lastName, firstName, department;
};

/// What the parts of the demonstration hospital know of each other while it is made.
struct DemoHospital {
    explicit DemoHospital(const DemoOptions& wanted) : options(wanted), random(wanted.seed) {}

    DemoOptions options;
    DemoRandom random;
    QVector<DemoItem> drugs, labServices, services;
    QVector<DemoClient> clients;
    QVector<DemoEmployee> employees;
    QVector<DemoPatient> patients;
    QVector<QStringList> clinics;   ///< name and fee
    QVector<QStringList> diagnoses; ///< code and name

    QVector<DemoEmployee> employeesOf(const QString& department) const;
    QString clientName(const QString& id) const;
};

/// The records below the heads of a CSV file of the demonstration hospital.
QVector<QStringList> demoFacts(const QString& name);

/// Adds one row to an open recordset.
void addRow(Recordset& rows, const RowValues& values);

// Each writes its rows in a transaction of its own.
void makeSettings(Connection& billing, const DemoHospital& hospital);
void makeUsers(Connection& billing);
void makeAccounts(Connection& accounting, const DemoHospital& hospital);
/// Banks, expense items, creditors with the entries of their invoices, and the vouchers that wait for their payment.
void makeAccountLists(Connection& billing, const DemoHospital& hospital);
/// The files that the accountant of the other accounting system begins, in the company data folder.
void makeJournal(const DemoHospital& hospital);
void makePrices(Connection& billing, DemoHospital& hospital);
void makeClients(Connection& billing, DemoHospital& hospital);
void makeEmployees(Connection& billing, DemoHospital& hospital);
void makePatients(Connection& billing, DemoHospital& hospital);
/// The patients alone, not written yet.
void drawPatients(DemoHospital& hospital);
/// Writes the patients with their balances, in the open transaction.
void writePatients(Connection& billing, DemoHospital& hospital);
/// The visits of the days, entered on the program's own screens; `day` is called after each day with its number from 1.
void makeVisits(DemoHospital& hospital, const std::function<void(int day)>& day);

} // namespace orvane
