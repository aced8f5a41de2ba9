#pragma once

#include "books/Books.h"
#include "books/Given.h"

namespace orvane {

/// A visit as the records officer enters it.
struct Visit {
    QDate date;
    QString pno;
    QString clientID; ///< retainID; empty: the visit has no client of its own and goes by its patient's
    QString category, clinic;
    QString purpose;  ///< "CONSULTATION", "REVIEW" or "FOLLOW-UP"
    QString referral; ///< "YES" or "NO"
    QString officer;  ///< number of the employee who received the patient
};

/// The next consultation id of a hospital: its three-character code, "OFL" and a serial of seven digits. Goes on from
/// the highest serial in use, or from the ids of the older form without a hospital code. An id that a deleted visit
/// has left on items or a bill is passed over, or the new visit would take over its charges. Nothing is reserved:
/// whoever writes the visit forms it behind the gate. Raises DataError.
QString genConsultID(Connection& connection, const QString& hospital);

/// Whether the patient has a visit of this day that is still open.
bool hasOpenVisit(Connection& connection, const QString& pno, QDate day);

/// Adds the visit at the server's time `at` under an id of its own, which it gives, and charges the consultation. Items
/// that an outlet captured for the patient without a visit come under it, the appointment that it follows up is closed
/// (the one made at the visit `followUpOf`; empty: none), and its category and referral become the patient's own.
/// Refuses a patient whose visit of that day is still open.
Given<QString> enterVisit(Books& books, const Visit& visit, const QDateTime& at, const QString& followUpOf);

/// Changes the visit and nothing that hangs on it: its items stay. `listed` is the visit as the officer saw it, without
/// client and officer. Refuses a visit that is gone, that is not any more as he saw it, or whose bill was saved.
Given<Saved> changeVisit(Books& books, qlonglong recID, const Visit& listed, const Visit& visit);

/// Deletes the row of the visit; its items stay as they are. Refuses as changeVisit does.
Given<Saved> deleteVisit(Books& books, qlonglong recID, const Visit& listed);

/// The visit of a bill that is split off the visit's own: a copy under the new bill's number, of a private patient of
/// this client (retainID), to be billed on the day of the visit, which it gives. Raises DataError.
QDate addSplitVisit(Books& books, const QString& consultID, const QString& splitNo, const QString& clientID);

/// Whether a visit, an item or a bill bears the number.
bool isVisitNumberInUse(Connection& connection, const QString& id);

} // namespace orvane
