#pragma once

#include "books/Books.h"

namespace orvane {

/// A row of BillAccum: one item of a visit, on its bill or waiting for it. A text that is empty is stored as null: not
/// known yet.
struct BillItem {
    QDate date;
    QString consultID, pno;
    QString name, category = {};
    double price = 0, qty = 1, subTotal = 0; ///< naira a unit, units, naira
    QString usage = {}, billType;
    QString billTo = {};  ///< code of the client who pays it
    QString coyName = {}; ///< the visit's client
    QString revType = {}; ///< empty: not known yet
    std::optional<int> conID = {};
    QString capitated = "NO"; ///< "YES": a contract covers it, so that it is never charged by itself
    bool billed = false;      ///< its line is added with it, so that it never waits
    QString billBy = {};
};

/// The bill, of another client, to which items and lines are moved.
struct NewPayer {
    QString billNo;
    QString clientID, clientCode; ///< his retainID and his retainCode
};

/// Adds the row.
void addItem(Books& books, const BillItem& item);

/// The number, SNo, of the item that this transaction has added last under its name.
qlonglong numberOfAddedItem(Connection& connection, const BillItem& item);

/// Moves the item to another visit, whose client pays it.
void moveItem(Books& books, qlonglong sno, const NewPayer& to);

/// "PREVIOUS DEBT" or "PREVIOUS CREDIT": a balance carried from earlier visits, which is in the running account
/// already.
bool isCarriedBalance(const QString& item);

} // namespace orvane
