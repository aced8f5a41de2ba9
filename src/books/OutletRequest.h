#pragma once

#include "books/Books.h"
#include "books/Given.h"

namespace orvane {

/// One item that an outlet is asked for.
struct OutletItem {
    QString name, category;
    QString kind;                            ///< "DRUG", "INVESTIGATION" or "SERVICE"
    double price = 0, qty = 1, subTotal = 0; ///< naira a unit, units, naira in whole kobo
    QString revType;
};

/// Somebody off the street and what he asks an outlet for.
struct OutletRequest {
    QDate date;
    QString surname, firstName, phone;
    QString age; ///< in years; what is no number is written as 0
    QString sex, maturity;
    QString outlet;  ///< hOutletTypes.ItemName, whose code his receipts bear
    QString labNo;   ///< the outlet's own number
    QString remarks; ///< for the audit trail
    QVector<OutletItem> items;
};

/// The next number of an outlet's visit: the hospital's three characters, "/", the last two digits of the year, "/" and
/// a serial of six digits that no new year begins again. Nothing is reserved: whoever writes the visit forms it behind
/// the gate. Raises DataError.
QString genOutletNo(Connection& connection, const QString& hospital, QDate date);

/// Adds the customer, his visit and its waiting items under a number of its own, which it gives and which is his number
/// among the patients too; what is for the laboratory also goes to its list. No money moves.
Given<QString> enterOutletRequest(Books& books, const OutletRequest& request);

} // namespace orvane
