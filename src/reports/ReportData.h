#pragma once

#include "data/rows/Recordset.h"
#include "reports/Template.h"

#include <QHash>
#include <optional>

namespace orvane {

/// What a screen hands to a report: the rows, the texts of named text objects, and values that any template may ask for
/// as {Name}. Names compare without regard to case.
struct ReportInput {
    QString folder = {}; ///< the program's folder: of the template and of pictures
    QString file = {};   ///< the template's name; a blank at its end counts for nothing
    Recordset rows = {};
    QHash<QString, QString> textObjects = {};
    QHash<QString, QString> values = {};
    QString title = {}; ///< in place of the template's; empty: that one
};

/// A value as a report shows it: dates dd/MM/yyyy, numbers plain, or by a format: "#,##0.00" and the like, "dd MMMM
/// yyyy" and the like, "words" for an amount in words. Null is the empty text.
QString shownValue(const QVariant& value, const QString& format);

/// The rows of a report in the order in which they stand on paper, and what its texts say.
class ReportData {
public:
    /// Raises the template's fault where it names a field that the rows do not have, or lacks a text object that the
    /// program sets. Rows that are to be sorted are read whole.
    ReportData(const ReportTemplate& layout, const ReportInput& input);

    bool has(int row) const { return m_order.isEmpty() ? m_rows.has(row) : row < m_order.size(); }
    QVariant value(int row, int column) const;
    double number(int row, int column) const; ///< null and what is no number as 0
    /// The side of a signed amount; empty where it is on the other one.
    std::optional<double> number(int row, int column, ReportElement::Side side) const;
    const Recordset& rows() const { return m_rows; }
    int column(const QString& name) const; ///< -1: the rows have none of this name
    /// What a text element says on a row (-1: there is no row), with each {...} filled in.
    QString words(const ReportElement& element, int row, int page, const QString& pages) const;
    QString picture(const QString& file) const; ///< with its folder

private:
    void checkElement(const ReportTemplate& layout, const ReportBand& band, const ReportElement& element) const;
    void demandField(const ReportTemplate& layout, int line, const QString& name) const;
    void checkTextObjects(const ReportTemplate& layout, const ReportInput& input) const;
    void checkWords(const ReportTemplate& layout, const ReportElement& element) const;
    void sort(const ReportTemplate& layout);
    QString filled(const QString& name, int row, int page, const QString& pages) const;

    mutable Recordset m_rows;
    QString m_folder;
    QHash<QString, int> m_columns;         ///< by lower-cased name
    QHash<QString, QString> m_textObjects; ///< by lower-cased name
    QHash<QString, QString> m_values;      ///< by lower-cased name
    QVector<int> m_order;                  ///< the rows' places; empty: as they come
};

} // namespace orvane
