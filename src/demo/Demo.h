#pragma once

#include <QDate>
#include <QString>
#include <functional>

namespace orvane {

/// The user of the demonstration hospital as whom the program starts.
inline constexpr const char* demoUser = "amina.b";

/// The same options make the same hospital, row for row.
struct DemoOptions {
    QString home;
    int patients = 500;
    int days = 30;
    int bills = 0; ///< more than 0: so many bills with five lines each, for benchmarks, see BulkHospital.h
    quint64 seed = 1;
    QDate until; ///< the last day of the history
};

/// Fills the empty databases of a home folder with a demonstration hospital: settings, users, clients, price lists,
/// patients, and the visits, bills and receipts of the days, written by the program's own screens. About twelve visits
/// of the last day wait for billing. With `bills` the patients and visits are loaded in bulk instead. On the first day
/// of each month the bills of the month before it become invoices. `progress` gets a sentence now and then. Raises
/// DataError when the databases are not empty or a step does not go as it must.
void makeDemo(const DemoOptions& options, const std::function<void(const QString&)>& progress);

} // namespace orvane
