#pragma once

#include "session/Program.h"
#include "support/TestHome.h"

#include <QProcess>
#include <QStringList>
#include <QTemporaryFile>
#include <functional>
#include <memory>

namespace orvane {

/// The patients and visits that the workers find, counted from 0.
QString patientOfWorkers(int number);
QString visitOfWorkers(int number);
/// So many of the patients are entered by all workers, and so many of the visits billed by all of them.
constexpr int sharedPatients = 6;
constexpr int sharedVisits = 2;

/// Bills of a month's batch: every fifth is of one client, the others of another one.
constexpr int billsOfBatch = 30;

/// The saves of one round, in order, as a worker tells them.
inline const QStringList savesOfARound = {"visit", "deposit", "paidbill", "bill", "receipt", "reversal"};

/// One workstation that works on the real screens. Arguments: home folder, its numbers apart by commas (it does the
/// work of each in turn), rounds for each number, and any of
///   own          the numbers' own patients and visits, instead of those that all workers share
///   officer      first runs the batch of the month, which it has listed before it is ready
///   cashier      a round adds an item to each third bill of the batch instead
///   cash         a round lists the day's cash and posts it instead
///   invoices     a round posts the month's invoices instead
///   storekeeper  first dispenses for one visit, which it has entered before it is ready; a round brings in goods of one
///                item and changes the newest entry instead
///   outlet       a round serves a customer of an outlet instead: his request and his bill, paid
///   no-gate      transactions do not take the money gate
///   linger       waits between reading a balance and writing the next one, and before each commit, so that the others
///                come upon it
/// Writes "ready" and begins when a line comes in. Then it writes a line of words apart by tabs for each save that the
/// screen reported (amounts in naira, minus for a reversal):
///   visit NUMBER PATIENT, bill NUMBER, and deposit | paidbill | receipt | reversal RECEIPT BILL AMOUNT
///   run BOXES, refused NUMBER, posted BOXES, dispensed BOXES, goods QUANTITY, changed BOXES,
///   outlet NUMBER RECEIPT
/// further "item BILL PRICE" for each item that it laid, and "trouble TEXT" for each save that was refused or
/// faulty. Gives the exit code. `around` is given the running program and the work, which it must do.
using AroundWork = std::function<void(Program&, const std::function<void()>& work)>;
int runWorker(
    const QStringList& arguments, const AroundWork& around = [](Program&, const auto& work) { work(); });

/// Does one round of a number's own work in another home and tells nothing of it: what follows in this process costs
/// what it costs on a workstation that has been at work for a while. Raises DataError.
void rehearse(const QString& homeFolder, const QString& number);

/// This program once more, as a process that says "ready" and then waits for a line to begin.
class WorkerProcess {
public:
    explicit WorkerProcess(const QStringList& arguments);

    bool isReady(); ///< waits until it says so; false: it has ended before
    void begin();
    bool hasEndedWell();      ///< waits for its end
    QStringList told() const; ///< the lines behind "ready"

private:
    std::unique_ptr<QTemporaryFile> m_output;
    std::unique_ptr<QProcess> m_process;
};

/// Has workers work on the databases of a home at the same time, for each its rounds and then its options, and adds
/// what they told. All of them linger.
void workTogether(const TestHome& home, const QList<QStringList>& workers, QStringList& told);

} // namespace orvane
