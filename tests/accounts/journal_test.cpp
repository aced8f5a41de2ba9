// Entries of the general journal: whole or not at all, once, and refused with the words of what keeps them out.
#include "journal/GeneralJournal.h"
#include "support/Print.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace orvane {

class Journal : public ::testing::Test {
protected:
    void SetUp() override {
        write("CHART.DAT", "AccountNo\tAccountName\tBalance\tLastEntry\n5310\tFUEL\t100.00\t0\n1001\tCASH\n");
        write("COMPANY.DAT", "Key\tValue\nPostingMethod\tREALTIME\n");
        write("General.dat", "Period\tFirstDay\tLastDay\tClosed\n2026/02\t2026-02-01\t2026-02-28\tYES\n"
                             "2026/03\t2026-03-01\t2026-03-31\tNO\n");
    }
    void write(const char* name, const char* text) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) >= 0);
    }
    QByteArray read(const char* name) {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    /// What went wrong; empty: nothing.
    QString post(const JournalExpense& expense) {
        try {
            GeneralJournal(folder.path()).postExpenseToJournal(expense);
        } catch (const JournalFault& fault) {
            return fault.description();
        }
        return {};
    }
    void expectPosted() {
        EXPECT_EQ(read("JrnlHdr.dat"), "EntryNo\tJournal\tDate\tReference\tDescription\tPosted\tSource\n"
                                       "1\tG\t2026-03-14\tR1\tDIESEL 40 L\tYES\tExpID 1\n");
        EXPECT_EQ(read("JrnlRow.dat"), "EntryNo\tLine\tAccountNo\tAmount\n1\t1\t5310\t20.50\n1\t2\t1001\t-20.50\n");
        EXPECT_EQ(read("CHART.DAT"),
                  "AccountNo\tAccountName\tBalance\tLastEntry\n5310\tFUEL\t120.50\t1\n1001\tCASH\t-20.50\t1\n");
    }

    QTemporaryDir folder;
    const JournalExpense diesel{QDate(2026, 3, 14), "R1", "DIESEL\t40 L", 20.5, "5310", "1001", "ExpID 1"};
};

TEST_F(Journal, AnEntryGoesInOnce) {
    EXPECT_EQ(post(diesel), "");
    expectPosted();
    EXPECT_EQ(post(diesel), "");
    expectPosted();
}

TEST_F(Journal, WhatWasCutOffIsFinishedOrMadeAnew) {
    const QByteArray chart = read("CHART.DAT");
    EXPECT_EQ(post(diesel), "");
    write("CHART.DAT", chart.constData());
    EXPECT_EQ(post(diesel), "") << "cut off before the chart";
    expectPosted();
    write("CHART.DAT", chart.constData());
    QFile::remove(folder.filePath("JrnlRow.dat"));
    EXPECT_EQ(post(diesel), "") << "cut off before the rows";
    expectPosted();
}

TEST_F(Journal, WhatKeepsAnEntryOutIsTold) {
    JournalExpense unknown = diesel, closed = diesel, opening = diesel;
    unknown.account = "5311";
    closed.date = QDate(2026, 2, 28);
    opening.reference = "BEGBAL";
    EXPECT_EQ(post(unknown), "Called from mwSave_GeneralJournal: Could not find Account.");
    EXPECT_EQ(post(closed), "Called from mwSave_GeneralJournal: The date of the entry is in no open period.");
    EXPECT_EQ(post(opening), "Called from mwSave_GeneralJournal: Beginning Balance date is not legal.");
    EXPECT_EQ(read("JrnlHdr.dat") + read("JrnlRow.dat"), "nonenone");
    QDir().mkdir(folder.filePath("JrnlRow.dat"));
    EXPECT_EQ(post(diesel), "Called from FillChartIndices: Could not open Jrnlhdr.dat.");
    for (const char* name : {"General.dat", "COMPANY.DAT", "CHART.DAT"}) {
        QDir().rmdir(folder.filePath("JrnlRow.dat"));
        QFile::remove(folder.filePath(name));
        EXPECT_TRUE(post(diesel).endsWith(QStringLiteral("Could not open %1.").arg(QLatin1String(name))));
    }
    EXPECT_EQ(read("JrnlHdr.dat"), "none");
    ASSERT_TRUE(folder.remove());
    EXPECT_EQ(post(diesel), "Called from FillChartIndices: Could not open CHART.DAT.");
}

} // namespace orvane
