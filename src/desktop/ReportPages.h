#pragma once

#include "forms/Grid.h"
#include "forms/Page.h"

namespace orvane {

/// A list on paper: its title and heads on every page, as many rows as fit, the pages numbered. Pages are made one at a
/// time, so that a list of any length can be printed.
class ReportPages {
public:
    /// `grid` must live as long as its pages are asked for; its hidden columns are left out. `sums` stand below the
    /// last row.
    ReportPages(const Grid& grid, const QString& title, const QString& sums = {});

    int count() const;           ///< at least 1
    Page page(int number) const; ///< from 0

private:
    struct Column {
        int index;
        double x, width; ///< mm
        PageAlign align;
    };
    void placeColumns();
    void addRow(Page& page, double y, int row) const;

    const Grid& m_grid;
    QString m_title, m_sums;
    QVector<Column> m_columns;
    bool m_landscape = false;
    int m_rowsPerPage = 1;
};

} // namespace orvane
