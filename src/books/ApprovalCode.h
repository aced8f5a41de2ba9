#pragma once

#include "books/BillInHand.h"

namespace orvane {

/// A row of hApprvCode: the code by which a scheme approves a treatment.
struct ApprovalCode {
    QDate date;
    QString consultID, pno;
    QString code, billType;
    QString remarks = {};
};

void addApprovalCode(Books& books, const ApprovalCode& code);

/// Writes over the first code of the visit; without one it does nothing.
void changeFirstApprovalCode(Books& books, const ApprovalCode& code);

void deleteApprovalCode(Books& books, const QString& consultID, qlonglong sno);

/// The first code of the visit becomes this one, which is all that changes of it; the first one of all is added.
/// True: it was added.
bool noteApprovalCode(Books& books, const BillInHand& visit, const QString& code);

/// The first code of the visit; empty without one.
QString firstApprovalCode(Connection& connection, const QString& consultID);

} // namespace orvane
