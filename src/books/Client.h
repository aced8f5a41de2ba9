#pragma once

#include "books/Books.h"
#include "books/Given.h"

namespace orvane {

/// The name of a client by his retainID, as persons read it. An id that the list of clients does not hold stands for
/// itself.
QString clientName(Connection& connection, const QString& clientID);

/// The name of a client by his retainCode; none where the list of clients does not hold the code.
std::optional<QString> clientOfCode(Connection& connection, const QString& code);

/// The client of this retainCode owes so many naira more; gives his name. None, and nothing written, where the list of
/// clients does not hold the code.
std::optional<QString> addClientDebt(Books& books, const QString& code, double amount);
/// He owes so many naira less.
void lessenClientDebt(Books& books, const QString& code, double amount);

/// A patient and one of his bills on their way to another client.
struct ClientMove {
    QString pno, billNo;
    QString clientID;   ///< the new client's retainID
    QString clientCode; ///< and his retainCode, who bears the lines from now on
    QString category;   ///< the new billing category of patient and visit
};

/// Moves patient, visit, bill, its lines and its items. Their prices stay those of the tariff that they had. Refuses a
/// bill that a batch holds.
Given<Saved> moveToClient(Books& books, const ClientMove& move);

} // namespace orvane
