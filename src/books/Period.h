#pragma once

#include "data/rows/Connection.h"

#include <QDate>
#include <QStringList>
#include <QVector>
#include <optional>

namespace orvane {

/// A month of the ledger, such as "2026/03": a row of AccountMonthOpen.
struct Period {
    QString name;
    QDate firstDay, lastDay;
    bool isClosed = false;
};

QVector<Period> readPeriods(Connection& accounting); ///< in their order
/// The current period's name; empty: the ledger has not begun.
QString currentPeriod(Connection& accounting);

/// Begins a ledger that has no current period with the month of the day, and opens the months that are missing until
/// twelve follow the one of the day. In a transaction of its own.
void keepPeriodsOpen(Connection& accounting, QDate day);

/// Opens the months that are missing up to this one; in a transaction of its own. Gives how many.
int openPeriodsUpTo(Connection& accounting, QDate month);

/// What keeps a period from being closed, a line each: that it is not the current one or has none open behind it, its
/// transactions that do not balance, and what is dated in it and not posted. Raises DataError.
QStringList whyNotClosed(Connection& billing, Connection& accounting, const QString& period);

/// Closes the current period: the next one becomes the current one, and each leg of the ledger lies where its period
/// says. In one transaction, which asks whyNotClosed again behind its gate; what it gives then, has kept it open.
QStringList closePeriod(Connection& billing, Connection& accounting, const QString& period);

} // namespace orvane
