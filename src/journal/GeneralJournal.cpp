#include "journal/GeneralJournal.h"

#include "data/words/Money.h"
#include "journal/RecordFile.h"

#include <QDir>
#include <QHash>
#include <QLockFile>
#include <QSet>
#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

const char* const chartFile = "CHART.DAT";
const char* const companyFile = "COMPANY.DAT";
const char* const headerFile = "JrnlHdr.dat";
const char* const rowFile = "JrnlRow.dat";
const char* const generalFile = "General.dat";

const QStringList chartColumns = {"AccountNo", "AccountName", "Balance", "LastEntry"};
const QStringList companyColumns = {"Key", "Value"};
const QStringList headerColumns = {"EntryNo", "Journal", "Date", "Reference", "Description", "Posted", "Source"};
const QStringList rowColumns = {"EntryNo", "Line", "AccountNo", "Amount"};
const QStringList generalColumns = {"Period", "FirstDay", "LastDay", "Closed"};
namespace chart {
enum { AccountNo, AccountName, Balance, LastEntry };
}
namespace header {
enum { EntryNo, Journal, Date, Reference, Description, Posted, Source };
}
namespace line {
enum { EntryNo, Line, AccountNo, Amount };
}
namespace general {
enum { Period, FirstDay, LastDay, Closed };
}

const QString generalJournal = "G";
const QString beginningReference = "BEGBAL";
const QString beginningText = "Beginning Balances";
constexpr int longestWait = 10'000; ///< ms, for another workstation's entry

constexpr struct {
    JournalTrouble trouble;
    const char* text;
} words[] = {
    {JournalTrouble::AccountUnknown, "Could not find Account."},
    {JournalTrouble::BeginningDate, "Beginning Balance date is not legal."},
    {JournalTrouble::NotBegun, "The Btrieve BeginTransaction method failed."},
    {JournalTrouble::HeaderNotInserted, "Could not insert JrnlHdr record."},
    {JournalTrouble::HeaderNotOpen, "Could not open Jrnlhdr.dat."},
    {JournalTrouble::RowNotOpen, "Could not open JrnlRow.dat."},
    {JournalTrouble::NotPosted, "Could not post General Journal transaction"},
    {JournalTrouble::RowNotInserted, "Could not insert JrnlRow record."},
    {JournalTrouble::ChartNotOpen, "Could not open CHART.DAT."},
    {JournalTrouble::CompanyNotOpen, "Could not open COMPANY.DAT."},
    {JournalTrouble::GeneralNotOpen, "Could not open General.dat."},
    {JournalTrouble::NoOpenPeriod, "The date of the entry is in no open period."},
};

QString faultWords(const char* routine, JournalTrouble trouble) {
    const auto found =
        std::find_if(std::begin(words), std::end(words), [&](const auto& entry) { return entry.trouble == trouble; });
    return QStringLiteral("Called from %1: %2").arg(QLatin1String(routine), QLatin1String(found->text));
}

qlonglong koboOf(const QString& naira) {
    return std::llround(parseAmount(naira).value_or(0) * 100);
}

QString nairaOf(qlonglong kobo) {
    return QString::number(double(kobo) / 100, 'f', 2);
}

QVector<QStringList> opened(const QString& path, const QStringList& columns, const char* routine,
                            JournalTrouble trouble) {
    try {
        if (const auto records = readRecords(path, columns))
            return *records;
    } catch (const DataError&) {
    }
    throw JournalFault(routine, trouble);
}

} // namespace

JournalFault::JournalFault(const char* routine, JournalTrouble trouble) : DataError(faultWords(routine, trouble)) {}

struct GeneralJournal::Line {
    QString account;
    qlonglong kobo = 0; ///< a debit is plus
};

struct GeneralJournal::Record {
    QDate date;
    QString reference, description, source;
    QVector<Line> lines;
    bool opensBalances() const { return reference == beginningReference; }
};

/// The files of the journal as they were read. A header without rows is of an entry that was cut off.
struct GeneralJournal::Files {
    QVector<QStringList> chart, headers, rows;
    QHash<QString, int> chartIndex; ///< row of an account
    bool has(const QString& source) const {
        return std::any_of(
            headers.begin(), headers.end(), [&](const QStringList& one) { return one.at(header::Source) == source; });
    }
};

struct GeneralJournal::Period {
    QDate firstDay, lastDay;
    bool isClosed = false;
};

void GeneralJournal::postExpenseToJournal(const JournalExpense& expense) {
    const qlonglong kobo = std::llround(expense.amount * 100);
    mwSave_GeneralJournal({expense.date,
                           expense.reference,
                           expense.description,
                           expense.source,
                           {{expense.account, kobo}, {expense.cashAccount, -kobo}}});
}

void GeneralJournal::mwSave_GeneralJournal(const Record& record) {
    QLockFile lock(path("journal.lock"));
    if (QDir(m_folder).exists() && !lock.tryLock(longestWait))
        throw JournalFault("mwSave_GeneralJournal", JournalTrouble::NotBegun);
    Files files = FillChartIndices();
    const bool isRealTime = PostingMethodIsRealTime();
    if (!files.has(record.source)) {
        for (const Line& one : record.lines)
            if (!files.chartIndex.contains(one.account))
                throw JournalFault("mwSave_GeneralJournal", JournalTrouble::AccountUnknown);
        checkPeriod(record);
        insertEntry(files, record, isRealTime);
    }
    if (isRealTime)
        UpdateChartDetail(files);
}

GeneralJournal::Files GeneralJournal::FillChartIndices() const {
    const char* const me = "FillChartIndices";
    Files files;
    files.chart = opened(path(chartFile), chartColumns, me, JournalTrouble::ChartNotOpen);
    for (int row = 0; row < files.chart.size(); ++row)
        files.chartIndex.insert(files.chart.at(row).at(chart::AccountNo), row);
    if (!QFile::exists(path(headerFile)) && !QFile::exists(path(rowFile)))
        return files; // a journal that has not begun
    files.headers = opened(path(headerFile), headerColumns, me, JournalTrouble::HeaderNotOpen);
    if (QFile::exists(path(rowFile)) || files.headers.size() > 1) // the first entry's rows may have been cut off
        files.rows = opened(path(rowFile), rowColumns, me, JournalTrouble::RowNotOpen);
    QSet<QString> whole;
    for (const QStringList& row : std::as_const(files.rows))
        whole.insert(row.at(line::EntryNo));
    files.headers.removeIf([&](const QStringList& one) { return !whole.contains(one.at(header::EntryNo)); });
    return files;
}

bool GeneralJournal::PostingMethodIsRealTime() const {
    for (const QStringList& line :
         opened(path(companyFile), companyColumns, "PostingMethodIsRealTime", JournalTrouble::CompanyNotOpen))
        if (line.at(0) == "PostingMethod")
            return line.at(1) == "REALTIME";
    return false;
}

QVector<GeneralJournal::Period> GeneralJournal::GetPeriodData() const {
    QVector<Period> periods;
    for (const QStringList& line :
         opened(path(generalFile), generalColumns, "GetPeriodData", JournalTrouble::GeneralNotOpen))
        periods.append({QDate::fromString(line.at(general::FirstDay), Qt::ISODate),
                        QDate::fromString(line.at(general::LastDay), Qt::ISODate), line.at(general::Closed) == "YES"});
    return periods;
}

/// Beginning balances stand on the first day of the first period.
void GeneralJournal::checkPeriod(const Record& record) const {
    const QVector<Period> periods = GetPeriodData();
    if (record.opensBalances() && (periods.isEmpty() || record.date != periods.first().firstDay))
        throw JournalFault("mwSave_GeneralJournal", JournalTrouble::BeginningDate);
    const bool isOpen = std::any_of(periods.begin(), periods.end(), [&](const Period& one) {
        return !one.isClosed && record.date >= one.firstDay && record.date <= one.lastDay;
    });
    if (!isOpen)
        throw JournalFault("mwSave_GeneralJournal", JournalTrouble::NoOpenPeriod);
}

/// The entry is in once its rows are.
void GeneralJournal::insertEntry(Files& files, const Record& record, bool isRealTime) const {
    qlonglong last = 0;
    for (const QStringList& one : std::as_const(files.headers))
        last = qMax(last, one.at(header::EntryNo).toLongLong());
    const QString number = QString::number(last + 1);
    files.headers.append({number, generalJournal, record.date.toString(Qt::ISODate), record.reference,
                          record.opensBalances() ? beginningText : record.description, isRealTime ? "YES" : "NO",
                          record.source});
    int lineNo = 0;
    for (const Line& one : record.lines)
        files.rows.append({number, QString::number(++lineNo), one.account, nairaOf(one.kobo)});
    if (!replaceRecords(path(headerFile), headerColumns, files.headers))
        throw JournalFault("mwSave_GeneralJournal", JournalTrouble::HeaderNotInserted);
    if (!replaceRecords(path(rowFile), rowColumns, files.rows))
        throw JournalFault("mwSave_GeneralJournal", JournalTrouble::RowNotInserted);
}

/// Adds to each account what entries behind its last one bring it, an entry that was cut off here among them.
void GeneralJournal::UpdateChartDetail(Files& files) const {
    QSet<QString> posted;
    for (const QStringList& one : std::as_const(files.headers))
        if (one.at(header::Posted) == "YES")
            posted.insert(one.at(header::EntryNo));
    const QVector<QStringList> before = files.chart;
    for (const QStringList& row : std::as_const(files.rows)) {
        const int index = files.chartIndex.value(row.at(line::AccountNo), -1);
        const qlonglong entry = row.at(line::EntryNo).toLongLong();
        if (index < 0 || !posted.contains(row.at(line::EntryNo)) ||
            entry <= before.at(index).at(chart::LastEntry).toLongLong())
            continue;
        QStringList& account = files.chart[index];
        account[chart::Balance] = nairaOf(koboOf(account.at(chart::Balance)) + koboOf(row.at(line::Amount)));
        account[chart::LastEntry] = QString::number(entry);
    }
    if (files.chart != before && !replaceRecords(path(chartFile), chartColumns, files.chart))
        throw JournalFault("UpdateChartDetail", JournalTrouble::NotPosted);
}

} // namespace orvane
