// Reports: what a template says stands on the pages, wherever they break, and what is wrong with one is told in a line.
#include "reports/Report.h"
#include "reports/StockTemplates.h"
#include "reports/TemplateReader.h"
#include "support/TestHome.h"

#include <QFile>
#include <gtest/gtest.h>

namespace orvane {
namespace {

class ReportTest : public testing::Test {
protected:
    Recordset rows(const QString& select) { return billing.run(select); }

    /// Patients 1 to `patients` with three items each; the rows come mixed, as no database promises an order.
    Recordset bills(int patients) {
        QStringList selects;
        for (int item = 1; item <= 3; ++item)
            for (int patient = 1; patient <= patients; ++patient)
                selects << QStringLiteral("select 'P%1' as PNo, 'HEAD %2' as Head, %3.5 as Amount")
                               .arg(patient, 3, 10, QChar('0'))
                               .arg(item)
                               .arg(item * 100);
        return rows(selects.join(" union all "));
    }

    std::shared_ptr<PageSource> open(const QByteArray& layout, const Recordset& data,
                                     const QHash<QString, QString>& texts = {}) {
        write(layout);
        return openReport({home.folder(), "\\rptTest.rpt ", data, texts, {{"Hospital", "ST LUKE'S"}}, {}});
    }
    void write(const QByteArray& layout) {
        QFile file(home.folder() + "/rptTest.rpt");
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(layout);
    }
    QString fault(const QByteArray& layout, const QHash<QString, QString>& texts = {}) {
        try {
            open(layout, bills(1), texts);
        } catch (const DataError& error) {
            return error.description();
        }
        return "none";
    }

    /// The texts of a page from its top down, those of one height side by side.
    static QStringList words(const Page& page) {
        QMap<double, QStringList> lines;
        for (const PageText& text : page.texts)
            lines[text.y] << text.text;
        QStringList result;
        for (const QStringList& line : lines)
            result << line.join(" | ");
        return result;
    }

    TestHome home;
    DataSource source{home.folder()};
    Connection billing = source.open(TestHome::billing());
};

const QByteArray invoice = "# a remark\n"
                           "report \"Invoice\"\n"
                           "page A5 landscape margin 10\n"
                           "group PNo repeat\n"
                           "band report head height 10\n"
                           "text Text7 \"none\" at 0 0 width 100 bold # set by the program\n"
                           "band page head height 8\n"
                           "text \"{Hospital}, \"\"page\"\" {page} of {pages}\" at 0 0 width 100\n"
                           "band group head PNo height 20\n"
                           "text \"Patient {PNo}\" at 0 0 width 80\n"
                           "band detail height 30\n"
                           "field Head at 0 0 width 50\n"
                           "field Amount at 60 0 width 30 right format \"#,##0.00\"\n"
                           "band group foot PNo height 10\n"
                           "sum Amount at 60 0 width 30 right\n"
                           "band carry foot height 8\n"
                           "text \"carried\" at 0 0 width 30\n"
                           "sum Amount at 60 0 width 30\n"
                           "band carry head height 8\n"
                           "text \"brought\" at 0 0 width 30\n"
                           "sum Amount at 60 0 width 30\n"
                           "band report foot height 20\n"
                           "sum Amount at 60 0 width 90 format \"words\"\n"
                           "count at 0 0 width 20\n";

TEST_F(ReportTest, GroupsSumsAndCarriedAmountsHoldOverPageBreaks) {
    const auto report = open(invoice, bills(2), {{"text7", "To {ADE & SONS}"}});
    EXPECT_EQ(report->pagesMade(), 0) << "nothing is laid out before it is asked for";
    report->finish();
    ASSERT_EQ(report->pagesMade(), 4);
    EXPECT_EQ(words(report->page(0)), QStringList({"To {ADE & SONS}", "ST LUKE'S, \"page\" 1 of 4", "Patient P001",
                                                   "HEAD 1 | 100.50", "HEAD 2 | 200.50", "carried | 301.00"}));
    EXPECT_EQ(words(report->page(1)).mid(0, 5), QStringList({"ST LUKE'S, \"page\" 2 of 4", "brought | 301.00",
                                                             "Patient P001", "HEAD 3 | 300.50", "601.50"}));
    // The pages are the same whichever is asked for first.
    const auto again = open(invoice, bills(40));
    ASSERT_TRUE(again->has(7));
    const QStringList seventh = words(again->page(7));
    EXPECT_FALSE(again->isWhole()) << "no further than asked";
    EXPECT_TRUE(seventh.first().endsWith("8 of …"));
    again->finish();
    EXPECT_EQ(words(again->page(7)).mid(1), seventh.mid(1));
    const QStringList end = words(again->page(again->pagesMade() - 1));
    EXPECT_EQ(end.last(), "Twenty Four Thousand, Sixty Naira | 120");
    int details = 0;
    for (int page = 0; page < again->pagesMade(); ++page) {
        details += int(words(again->page(page)).filter("HEAD").size());
        for (const PageText& text : again->page(page).texts)
            EXPECT_LE(text.y, 148 - 10) << page;
    }
    EXPECT_EQ(details, 120) << "each row once";
    EXPECT_FALSE(again->has(again->pagesMade()));
}

/// Where a page ends behind the foot of a group too.
TEST_F(ReportTest, EachPageCarriesItsSumOver) {
    QByteArray layout = invoice;
    layout.replace("detail height 30", "detail height 20").replace("foot PNo height 10", "foot PNo height 25");
    const auto report = open(layout, bills(3));
    report->finish();
    ASSERT_EQ(report->pagesMade(), 5);
    for (int page = 0; page < 5; ++page) {
        EXPECT_EQ(words(report->page(page)).filter("carried").size(), page < 4) << page;
        EXPECT_EQ(words(report->page(page)).filter("brought").size(), page > 0) << page;
    }
}

TEST_F(ReportTest, AValueOfSeveralLinesGoesOnWithinTheWordsAroundIt) {
    const auto report = open("report \"R\"\nband detail height 9\ntext \"Of {X}.\" at 0 0 width 90\n"
                             "field X at 0 5 width 90\n",
                             rows("select 'MALARIA\r\nANAEMIA\n' as X"));
    EXPECT_EQ(words(report->page(0)), QStringList({"Of MALARIA, ANAEMIA.", "MALARIA\r\nANAEMIA\n"}));
}

TEST_F(ReportTest, NestedGroupsBreakPagesWhereTheyAreTold) {
    const QByteArray layout = "report \"R\"\ngroup PNo newpage\ngroup Head\ngroup Amount newpage\n"
                              "band group head PNo height 5\nfield PNo at 0 0 width 20\n"
                              "band detail height 5\nfield Head at 0 0 width 20\n"
                              "band group foot Head height 5\ncount at 0 0 width 20\n"
                              "band report foot height 250\ntext \"end\" at 0 0 width 20\n";
    const auto report = open(layout, bills(2));
    report->finish();
    QStringList pages;
    for (int page = 0; page < report->pagesMade(); ++page)
        pages << words(report->page(page)).join(", ");
    EXPECT_EQ(pages, QStringList({"P001, HEAD 1, 1", "HEAD 2, 1", "HEAD 3, 1", "P002, HEAD 1, 1", "HEAD 2, 1",
                                  "HEAD 3, 1, end"}));
    const auto empty = open(layout, rows("select 'x' as PNo, 1 as Head, 1 as Amount where 1 = 2"));
    ASSERT_TRUE(empty->has(0));
    EXPECT_EQ(words(empty->page(0)), QStringList("end"));
}

TEST_F(ReportTest, ACrosstabSumsBothWaysAndGoesOnSideBySide) {
    const QByteArray layout = "report \"Table\"\npage A4 auto margin 10\ncrosstab\nrow PNo \"Patient\" width 60\n"
                              "column Head width 40\ncell Amount format \"#,##0.00\"\n"
                              "band report foot height 10\nsum Amount at 0 0 width 50\n";
    auto report = open(layout, bills(2));
    ASSERT_EQ(report->pagesMade(), 1);
    Page page = report->page(0);
    EXPECT_GT(page.widthMm, page.heightMm) << "four columns need turned paper";
    EXPECT_EQ(words(page),
              QStringList({"Patient | HEAD 1 | HEAD 2 | HEAD 3 | Total", "P001 | 100.50 | 200.50 | 300.50 | 601.50",
                           "P002 | 100.50 | 200.50 | 300.50 | 601.50", "Total | 201.00 | 401.00 | 601.00 | 1,203.00",
                           "1,203.00"}));
    report = open(QByteArray(layout).replace("width 40", "width 90"), bills(40));
    ASSERT_EQ(report->pagesMade(), 4) << "two columns a page, and more lines than one page takes";
    EXPECT_EQ(words(report->page(0)).first(), "Patient | HEAD 1 | HEAD 2");
    EXPECT_EQ(words(report->page(1)).value(1), "P001 | 300.50 | 601.50");
    EXPECT_EQ(words(report->page(3)).last(2).join(", "), "Total | 12,020.00 | 24,060.00, 24,060.00");
}

TEST_F(ReportTest, APlainListNeedsNoTemplate) {
    QStringList selects;
    for (int i = 1; i <= 130; ++i)
        selects << QStringLiteral("select %1 as SNo, 10.5 as Income, 'a' as Fullname").arg(i);
    const auto report = openDataReport({.file = "rptBillingIncome",
                                        .rows = rows(selects.join(" union all ")),
                                        .values = {{"Hospital", "ST {LUKE}"}},
                                        .title = "Income {of} today"},
                                       "CASH {1}");
    report->finish();
    ASSERT_EQ(report->pagesMade(), 3);
    const QStringList first = words(report->page(0)), last = words(report->page(2));
    EXPECT_EQ(first.mid(0, 4),
              QStringList({"ST {LUKE}", "Income {of} today", "SNo | Income | Fullname", "1 | 10.50 | a"}));
    EXPECT_EQ(first.last(), "Page 1 of 3");
    EXPECT_EQ(last.mid(last.size() - 3, 2), QStringList({"1,365.00", "CASH {1}"})) << "the total of the money";
    EXPECT_EQ(report->format("income"), "#,##0.00");
}

TEST_F(ReportTest, WhatIsWrongWithATemplateIsSaidInOneLine) {
    const QByteArray begin = "report \"R\"\ngroup PNo\nband detail height 5\n";
    const struct {
        QByteArray layout;
        const char* said;
    } faults[] = {
        {"", "rptTest.rpt:1: the template is empty: its first line is report \"Title\"."},
        {"page A4", "rptTest.rpt:1: \"report\" is missing before page."},
        {"report \"R", "rptTest.rpt:1: a text has no closing quote."},
        {"report \"R\"\n\nfield X at 0 0 width 5", "rptTest.rpt:3: this line stands below the line of its band."},
        {"report \"R\"\nband detail", "rptTest.rpt:2: \"height\" is missing."},
        {"report \"R\"\npage A4 lanscape", "rptTest.rpt:2: lanscape is not understood here."},
        {begin + "field Amont at 0 0 width 5", "rptTest.rpt:4: the data has no field Amont."},
        {begin + "text \"{Amont}\" at 0 0 width 5", "rptTest.rpt:4: the data has no field amont."},
        {begin + "field Amount at 180 0 width 50", "rptTest.rpt:4: this reaches over the right margin."},
        {begin + "field Amount at 0 3 width 50 height 4",
         "rptTest.rpt:4: this reaches below its band, which is 5 high."},
        {begin + "field Amount at 0 nan width 50",
         "rptTest.rpt:4: the place down is a number from 0 to 2000, not nan."},
        {begin + "band group head X height 5", "rptTest.rpt:4: there is no group by X."},
        {begin + "band carry foot of X height 5", "rptTest.rpt:4: there is no group by X."},
        {begin + "sum Amount of X at 0 0 width 9", "rptTest.rpt:4: there is no group by X."},
        {begin + "band group head PNo height 5\ncount at 0 0 width 9",
         "rptTest.rpt:5: a sum or count stands in a detail, carry or foot band."},
        {begin + "band page head height 290", "rptTest.rpt:4: the bands are higher than a page."},
        {begin + "band detail height 5", "rptTest.rpt:4: this band stands in line 3 already."},
        {"report \"R\"\ncrosstab\nrow PNo width 30", "rptTest.rpt:2: a crosstab has a row, a column and a cell."},
        {"report \"R\"\n" + QByteArray("group PNo\ngroup Head\ngroup Amount\n").repeated(3),
         "rptTest.rpt:5: there is a group by PNo already."},
        {"report \"R\"\ngroup PNo\ngroup Head\ngroup Amont\nband group foot Amont height 5",
         "rptTest.rpt:4: the data has no field Amont."},
        {"\x01\x02 report", "The file rptTest.rpt is not a text file: see line 1."},
    };
    for (const auto& [layout, said] : faults)
        EXPECT_EQ(fault(layout), said) << layout.constData();
    EXPECT_EQ(fault(begin, {{"Text9", "x"}}),
              "rptTest.rpt:1: the template has no text object Text9, which the program sets.");
    QFile::remove(home.folder() + "/rptTest.rpt");
    EXPECT_THROW(openReport({home.folder(), "rptTest.rpt", bills(1), {}, {}, {}}), DataError);
    // Broken off anywhere it is a report or one clear line.
    for (qsizetype length = 0; length < invoice.size(); ++length) {
        const QString told = fault(invoice.left(length));
        EXPECT_TRUE(told == "none" || told.startsWith("rptTest.rpt:")) << told.toStdString();
    }
}

TEST_F(ReportTest, StockTemplatesAreRenewedUnlessSomebodyEditedThem) {
    const QString folder = home.folder(), path = folder + "/rptDebtInfo.rpt";
    const auto put = [&path](const QByteArray& content) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    };
    const QStringList all = renewStockTemplates(folder);
    EXPECT_TRUE(all.contains("rptDebtInfo.rpt"));
    for (const QString& name : all)
        EXPECT_NO_THROW(readTemplateFile(folder + '/' + name)) << name.toStdString();
    EXPECT_EQ(renewStockTemplates(folder), QStringList());
    const QByteArray older = "report \"Of an earlier program\"\n";
    put(older + templateMark(older));
    EXPECT_EQ(renewStockTemplates(folder), QStringList("rptDebtInfo.rpt"));
    for (const QByteArray& edited : {older, "# mine\n" + older + templateMark(older), QByteArray()}) {
        put(edited);
        EXPECT_EQ(renewStockTemplates(folder), QStringList()) << "the hospital's own";
    }
}

} // namespace
} // namespace orvane
