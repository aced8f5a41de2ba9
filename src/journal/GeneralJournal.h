#pragma once

#include "data/DataError.h"

#include <QDate>

namespace orvane {

/// Why an entry is not in the general journal, by its number.
enum class JournalTrouble {
    AccountUnknown = 1,
    BeginningDate,
    NotBegun,
    HeaderNotInserted,
    HeaderNotOpen,
    RowNotOpen,
    NotPosted,
    RowNotInserted,
    ChartNotOpen,
    CompanyNotOpen,
    GeneralNotOpen,
    NoOpenPeriod
};

/// "Called from mwSave_GeneralJournal: Could not find Account."
class JournalFault : public DataError {
public:
    JournalFault(const char* routine, JournalTrouble trouble);
};

/// An expense as the journal takes it.
struct JournalExpense {
    QDate date;
    QString reference, description;
    double amount = 0;   ///< naira
    QString account;     ///< the item's own, debited
    QString cashAccount; ///< credited
    QString source;      ///< what no two expenses share; an entry that the journal has of it is not made again
};

/// The general journal of another accounting system: record files in a company data folder (docs/journal.md).
class GeneralJournal {
public:
    explicit GeneralJournal(const QString& companyFolder) : m_folder(companyFolder) {}

    /// Makes the entry of an expense, whole or not at all, whenever the program is killed. Raises JournalFault where it
    /// is refused or the files do not let it.
    void postExpenseToJournal(const JournalExpense& expense);

private:
    struct Record;
    struct Line;
    struct Files;
    struct Period;
    void mwSave_GeneralJournal(const Record& record);
    Files FillChartIndices() const;
    bool PostingMethodIsRealTime() const;
    QVector<Period> GetPeriodData() const;
    void UpdateChartDetail(Files& files) const;
    void checkPeriod(const Record& record) const;
    void insertEntry(Files& files, const Record& record, bool isRealTime) const;
    QString path(const char* file) const { return m_folder + '/' + QLatin1String(file); }

    QString m_folder;
};

} // namespace orvane
