#include "data/DataError.h"
#include "demo/DemoParts.h"
#include "session/StartFiles.h"

#include <QDir>
#include <QSaveFile>

namespace orvane {

namespace {

const QString dayForm = "yyyy-MM-dd";

void writeRecords(const QString& folder, const QString& name, const QStringList& lines) {
    QSaveFile file(folder + '/' + name);
    if (!file.open(QIODevice::WriteOnly) || file.write((lines.join('\n') + '\n').toUtf8()) < 0 || !file.commit())
        throw DataError(QStringLiteral("The file %1 cannot be written.").arg(file.fileName()));
}

QStringList periodLines(const DemoOptions& options) {
    QStringList lines = {"Period\tFirstDay\tLastDay\tClosed"};
    const QDate first = options.until.addDays(1 - options.days);
    for (QDate month(first.year(), first.month(), 1); month <= options.until.addYears(1); month = month.addMonths(1))
        lines << QStringList{month.toString("yyyy/MM"), month.toString(dayForm),
                             month.addMonths(1).addDays(-1).toString(dayForm), "NO"}
                     .join('\t');
    return lines;
}

} // namespace

void makeJournal(const DemoHospital& hospital) {
    const QString folder = readJournalFolder(hospital.options.home);
    if (!QDir().mkpath(folder))
        throw DataError(QStringLiteral("The folder %1 cannot be made.").arg(folder));
    QStringList chart = {"AccountNo\tAccountName"};
    for (const QStringList& account : demoFacts("accounts"))
        chart << account.mid(0, 2).join('\t');
    writeRecords(folder, "CHART.DAT", chart);
    writeRecords(folder, "COMPANY.DAT", {"Key\tValue", "PostingMethod\tREALTIME"});
    writeRecords(folder, "General.dat", periodLines(hospital.options));
}

} // namespace orvane
