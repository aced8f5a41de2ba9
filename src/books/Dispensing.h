#pragma once

#include "books/Books.h"
#include "books/Given.h"

#include <QVector>

namespace orvane {

/// One thing given from a prescription of injections and dressings.
struct DispensedItem {
    QString name, category;
    double price = 0, qty = 0; ///< naira a unit, units
    QString usage;

    double subTotal() const; ///< naira, in whole kobo
};

/// What was given to a patient of a visit.
struct Dispensing {
    QString consultID, pno, clientCat;
    QString dispenser, referredTo; ///< as the audit trail names them; either may be empty
    QDate date;
    QVector<DispensedItem> items;

    double total() const; ///< naira
};

/// What a unit costs a client: the base cost with the mark-up of his category, a fraction, in naira and whole kobo.
double dispensedPrice(double cost, double markUp);

/// Whether things of the category are charted and end the prescription.
bool isInjectionOrDressing(const QString& category);

/// Adds each thing to the items that wait for the visit's bill, and to what was dispensed. An injection or dressing
/// also goes on the medication chart, unless the patient is in a ward, where the ward keeps it, and its prescription
/// waits no more. No stock changes. Refuses a prescription that waits no more, or that is another patient's.
Given<Saved> dispense(Books& books, const Dispensing& given);

} // namespace orvane
