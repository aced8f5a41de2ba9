#pragma once

#include <QStringList>

namespace orvane {

/// The visits that all workers bill and receive money for, and the patients whom they all enter.
inline const QStringList sharedVisits = {"001OFL0000001", "001OFL0000002"};
inline const QStringList sharedPatients = {"P/0001", "P/0002", "P/0003", "P/0004", "P/0005", "P/0006"};

/// The saves of one round of a worker: visit, deposit, bill with receipt, bill of a shared visit, receipt, reversal.
constexpr int visitsARound = 1;
constexpr int receiptsARound = 4;
constexpr int billsARound = 2;

/// One workstation: enters, bills and receives for `rounds` rounds on the real screens. Arguments: home folder, number,
/// rounds, "gate" or "no-gate". Writes "ready" and begins when a line comes in. Then it writes a line of words apart by
/// tabs for each save that the screen reported:
///   visit NUMBER PATIENT, bill NUMBER, receipt NUMBER BILL AMOUNT (naira, minus for a reversal)
/// and "trouble STEP TEXT" for each one that was refused or faulty. Gives the exit code.
int runWorker(const QStringList& arguments);

} // namespace orvane
