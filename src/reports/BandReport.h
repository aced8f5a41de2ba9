#pragma once

#include "forms/PageSource.h"
#include "reports/BandPainter.h"

namespace orvane {

/// A report of bands. It knows where each page that was laid out begins, so that any of them can be had again, and
/// reads no further than the pages that were asked for.
class BandReport : public PageSource {
public:
    /// Raises DataError as ReportData does.
    BandReport(const ReportTemplate& layout, const ReportInput& input);

    bool has(int number) override;
    Page page(int number) override;
    int pagesMade() const override { return int(m_starts.size()) - (isWhole() ? 0 : 1); }
    bool isWhole() const override { return m_whole; }
    void layOut(int rows) override;
    const Recordset& rows() const override { return m_data.rows(); }
    QString title() const override { return m_title; }
    QString format(const QString& column) const override;

private:
    /// What comes next on the way through the rows: the feet of the groups that end before a row, inner ones first; the
    /// heads of those that begin with it; the row; behind the last row the foot of the report.
    enum class Phase { ReportHead, Feet, Heads, Detail, ReportFoot, Done };
    /// A column that is summed, or one side of it; -1 counts rows.
    struct Summed {
        int column;
        ReportElement::Side side;
        bool operator==(const Summed&) const = default;
    };
    struct Tally {
        double page = 0, report = 0;
        QVector<double> groups;
    };
    struct State {
        Phase phase = Phase::ReportHead;
        int row = 0;
        int level = 0; ///< of the group whose head or foot comes next
        QVector<Tally> tallies;
        QVector<int> placed; ///< details since the head, by group; the last one is the report's
    };
    /// A page while it is laid out.
    struct Sheet {
        int number;
        Page* page; ///< null: only its end is sought
        double y, bottom;
        bool empty = true; ///< nothing but what stands on every page
        bool used = false; ///< a row or the foot of a group
    };

    bool isGroupLevel(int level) const { return level >= 0 && level < m_layout.groups.size(); }
    State fillPage(State state, int number, Page* page) const;
    bool step(State& state, Sheet& sheet) const;
    bool stepFeet(State& state, Sheet& sheet) const;
    bool stepHeads(State& state, Sheet& sheet) const;
    bool stepDetail(State& state, Sheet& sheet) const;
    bool fits(const State& state, const Sheet& sheet, double height) const;
    void put(const ReportBand& band, const State& state, Sheet& sheet, int row) const;
    void putAgain(const State& state, Sheet& sheet) const;
    void enterRow(State& state) const;
    int firstChange(int row) const;
    void tally(State& state, int row) const;
    void clearGroup(State& state, int level) const;
    bool goesOn(const State& state, const ReportBand& carry) const;
    Summed summed(const ReportElement& element) const { return {m_data.column(element.name), element.side}; }
    double sumOf(const ReportElement& element, const ReportBand& band, const State& state) const;

    ReportTemplate m_layout;
    ReportData m_data;
    QString m_title;
    QVector<int> m_groupColumns;
    QVector<Summed> m_summed;
    QVector<State> m_starts; ///< where the pages begin; the last one may be the page that was not laid out yet
    bool m_whole = false;
};

} // namespace orvane
