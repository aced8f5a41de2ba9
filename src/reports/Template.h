#pragma once

#include "forms/Page.h"

#include <QVector>
#include <optional>

namespace orvane {

/// One thing that a band shows. Places are in millimetres from the band's upper left corner inside the margins.
struct ReportElement {
    enum Kind { Text, Field, Sum, Count, Line, Picture };
    enum Side { Whole, Debit, Credit }; ///< Debit: what is plus; Credit: what is minus, without its sign
    Kind kind = Text;
    int line = 0;      ///< of the template, for faults
    QString name;      ///< Text: of the text object, empty for none. Field and Sum: the column
    QString text;      ///< Text: what it says, with {...} to be filled in. Picture: the file
    Side side = Whole; ///< Field and Sum: of a signed amount
    QString format;    ///< of a number or a date
    QString of;        ///< Sum and Count: the group, "report" or "page"; empty: that of the band
    double x = 0, y = 0, width = 0, height = 0; ///< Line: its other end is at x + width, y + height
    double points = 0;                          ///< letter size; 0: the template's
    double thickness = 0.2;
    PageAlign align = PageAlign::Left;
    bool bold = false, dashed = false;
};

enum class BandKind { ReportHead, PageHead, GroupHead, CarryHead, Detail, CarryFoot, GroupFoot, ReportFoot, PageFoot };

struct ReportBand {
    int line = 0; ///< 0: the template has no such band
    double height = 0;
    QString of; ///< a carry band's group; empty: the report
    QVector<ReportElement> elements;
};

struct ReportGroup {
    int line = 0;
    QString column;
    bool newPage = false; ///< each begins a page
    bool repeats = false; ///< its head stands on every page that it reaches
    ReportBand head, foot;
};

struct SortKey {
    int line = 0;
    QString column;
    bool descending = false;
};

/// A table with a column for each value of a field: who across, what down, how much where they meet.
struct ReportCrosstab {
    struct Row {
        int line = 0;
        QString column, heading;
        double width = 0;
    };
    int line = 0;      ///< 0: the report is none
    QVector<Row> rows; ///< what names a line of the table
    int acrossLine = 0;
    QString across; ///< its values head the columns
    double acrossWidth = 22;
    int cellLine = 0;
    QString cell, format; ///< summed where they meet
    QString total = "Total";
};

/// A report's layout as its file states it. The first group is the outermost.
struct ReportTemplate {
    enum Paper { Portrait, Landscape, Auto };
    QString file; ///< its name, without a folder
    QString title;
    double shortSide = 210, longSide = 297, margin = 12; ///< mm
    Paper paper = Portrait;
    double points = 9;
    bool givenOrder = false; ///< the rows come in the order of the groups: they are not sorted, and read on as needed
    QVector<SortKey> sort;
    QVector<ReportGroup> groups;
    ReportBand reportHead, pageHead, carryHead, detail, carryFoot, reportFoot, pageFoot;
    ReportCrosstab crosstab;

    double width() const { return paper == Landscape ? longSide : shortSide; }
    double height() const { return paper == Landscape ? shortSide : longSide; }
    /// -1: there is no such group.
    int groupIndex(const QString& column) const {
        for (int i = 0; i < groups.size(); ++i)
            if (groups.at(i).column.compare(column, Qt::CaseInsensitive) == 0)
                return i;
        return -1;
    }
    /// Every band of it, those that it does not have too.
    QVector<const ReportBand*> bands() const {
        QVector<const ReportBand*> all = {&reportHead, &pageHead,   &carryHead, &detail,
                                          &carryFoot,  &reportFoot, &pageFoot};
        for (const ReportGroup& group : groups)
            all << &group.head << &group.foot;
        return all;
    }
};

/// Raises the DataError of a template: one line that says where.
[[noreturn]] void refuseTemplate(const QString& file, int line, const QString& what);

} // namespace orvane
