#pragma once

#include "forms/PageSource.h"
#include "reports/BandPainter.h"

namespace orvane {

/// A report that is a crosstab between the heads and feet of its bands. A table that is too wide for upright paper goes
/// to landscape where the template lets it, and one that is still too wide goes on over pages side by side, each with
/// the names of its lines.
class CrosstabReport : public PageSource {
public:
    /// Reads the rows whole. Raises DataError as ReportData does.
    CrosstabReport(const ReportTemplate& layout, const ReportInput& input);

    bool has(int number) override { return number >= 0 && number < m_sheets.size(); }
    Page page(int number) override;
    int pagesMade() const override { return int(m_sheets.size()); }
    bool isWhole() const override { return true; }
    void layOut(int) override {}
    const Recordset& rows() const override { return m_data.rows(); }
    QString title() const override { return m_title; }
    QString format(const QString& column) const override;

private:
    struct Line {
        int row;                   ///< that names it
        QHash<QString, double> at; ///< by what stands across
        double total = 0;
    };
    /// Some lines and some columns on a page. The column behind the last one is the totals'.
    struct Sheet {
        int firstLine, lines;
        int firstColumn, columns;
        bool first, last; ///< of the lines
    };
    void readTable();
    void choosePaper();
    void splitIntoSheets();
    void addSheets(int firstLine, int lines, bool first, bool last);
    double namesWidth() const;
    int columnsAPage() const;
    double top(bool first) const;
    double bottom() const;
    void text(Page& page, double x, double y, double width, const QString& words, PageAlign align, bool bold,
              double height = 0) const;
    void rule(Page& page, double y, double right, double thickness) const;
    void paintHeads(Page& page, const Sheet& sheet, double y) const;
    void paintLine(Page& page, const Sheet& sheet, double y, const Line& line, bool isTotal) const;

    ReportTemplate m_layout;
    ReportData m_data;
    QString m_title;
    QStringList m_columns; ///< what stands across, by name
    QVector<Line> m_lines; ///< in the order of the rows
    Line m_totals{-1, {}, 0};
    QVector<Sheet> m_sheets;
};

} // namespace orvane
