#include "reports/BandReport.h"

namespace orvane {

BandReport::BandReport(const ReportTemplate& layout, const ReportInput& input)
    : m_layout(layout), m_data(layout, input), m_title(input.title.isEmpty() ? layout.title : input.title) {
    if (m_layout.paper == ReportTemplate::Auto)
        m_layout.paper = ReportTemplate::Portrait;
    for (const ReportGroup& group : m_layout.groups)
        m_groupColumns << m_data.column(group.column);
    m_summed << Summed{-1, ReportElement::Whole};
    for (const ReportBand* band : m_layout.bands())
        for (const ReportElement& element : band->elements)
            if (element.kind == ReportElement::Sum && !m_summed.contains(summed(element)))
                m_summed << summed(element);
    State start;
    start.tallies.fill({0, 0, QVector<double>(m_layout.groups.size(), 0)}, m_summed.size());
    start.placed.fill(0, m_layout.groups.size() + 1);
    m_starts << start;
}

QString BandReport::format(const QString& column) const {
    for (const ReportBand* band : m_layout.bands())
        for (const ReportElement& element : band->elements)
            if (element.kind == ReportElement::Field && element.name.compare(column, Qt::CaseInsensitive) == 0)
                return element.format == QLatin1String("words") ? QString() : element.format;
    return {};
}

bool BandReport::has(int number) {
    while (!m_whole && m_starts.size() <= number + 1)
        layOut(1);
    return number >= 0 && number < pagesMade();
}

/// Whole pages, until so many rows have gone onto them.
void BandReport::layOut(int rows) {
    const int end = m_starts.last().row + rows;
    do {
        if (m_whole)
            return;
        const State next = fillPage(m_starts.last(), int(m_starts.size()) - 1, nullptr);
        m_whole = next.phase == Phase::Done;
        if (!m_whole)
            m_starts << next;
    } while (m_starts.last().row < end);
}

Page BandReport::page(int number) {
    Page page;
    if (has(number))
        fillPage(m_starts.at(number), number, &page);
    return page;
}

BandReport::State BandReport::fillPage(State state, int number, Page* page) const {
    if (page) {
        page->widthMm = m_layout.width();
        page->heightMm = m_layout.height();
    }
    Sheet sheet{number, page, m_layout.margin, m_layout.height() - m_layout.margin - m_layout.pageFoot.height};
    for (Tally& tally : state.tallies)
        tally.page = 0;
    if (state.phase == Phase::ReportHead) {
        put(m_layout.reportHead, state, sheet, m_data.has(0) ? 0 : -1);
        state.phase = Phase::Feet;
        enterRow(state);
    }
    put(m_layout.pageHead, state, sheet, m_data.has(state.row) ? state.row : state.row - 1);
    putAgain(state, sheet);
    sheet.empty = true;
    while (state.phase != Phase::Done && step(state, sheet))
        sheet.empty = false;
    if (goesOn(state, m_layout.carryFoot) && sheet.y + m_layout.carryFoot.height <= sheet.bottom + 0.001)
        put(m_layout.carryFoot, state, sheet, state.row - 1);
    sheet.y = sheet.bottom;
    put(m_layout.pageFoot, state, sheet, std::max(0, state.row - 1));
    return state;
}

/// On a page that begins in the middle of a group: the heads that are repeated, and what is carried over, above them
/// where it is of the whole report.
void BandReport::putAgain(const State& state, Sheet& sheet) const {
    const bool goesOver = goesOn(state, m_layout.carryHead);
    if (goesOver && m_layout.carryHead.of.isEmpty())
        put(m_layout.carryHead, state, sheet, state.row - 1);
    for (int level = 0; level < m_layout.groups.size(); ++level)
        if (m_layout.groups.at(level).repeats && state.placed.at(level) > 0)
            put(m_layout.groups.at(level).head, state, sheet, state.row - 1);
    if (goesOver && !m_layout.carryHead.of.isEmpty())
        put(m_layout.carryHead, state, sheet, state.row - 1);
}

bool BandReport::goesOn(const State& state, const ReportBand& carry) const {
    if (carry.line == 0 || state.phase == Phase::Done)
        return false;
    const int level = carry.of.isEmpty() ? int(m_layout.groups.size()) : m_layout.groupIndex(carry.of);
    return state.placed.at(level) > 0;
}

/// Puts the next band. False: it does not fit on the page.
bool BandReport::step(State& state, Sheet& sheet) const {
    switch (state.phase) {
    case Phase::Feet:
        return stepFeet(state, sheet);
    case Phase::Heads:
        return stepHeads(state, sheet);
    case Phase::Detail:
        return stepDetail(state, sheet);
    case Phase::ReportFoot:
        if (!fits(state, sheet, m_layout.reportFoot.height))
            return false;
        put(m_layout.reportFoot, state, sheet, state.row - 1);
        state.phase = Phase::Done;
        return true;
    case Phase::ReportHead:
    case Phase::Done:
        break;
    }
    return false;
}

bool BandReport::stepFeet(State& state, Sheet& sheet) const {
    const bool end = !m_data.has(state.row);
    const int first = end ? 0 : firstChange(state.row);
    if (state.row == 0 || state.level < first) {
        state.phase = end ? Phase::ReportFoot : Phase::Heads;
        state.level = first;
        return true;
    }
    const ReportBand& foot = m_layout.groups.at(state.level).foot;
    if (!fits(state, sheet, foot.height))
        return false;
    put(foot, state, sheet, state.row - 1);
    sheet.used = true;
    clearGroup(state, state.level--);
    return true;
}

bool BandReport::stepHeads(State& state, Sheet& sheet) const {
    if (!isGroupLevel(state.level)) {
        state.phase = Phase::Detail;
        return true;
    }
    const ReportGroup& group = m_layout.groups.at(state.level);
    // A head stands above a detail, never alone at a page's end.
    double height = m_layout.detail.height;
    for (qsizetype level = state.level; level < m_layout.groups.size(); ++level)
        height += m_layout.groups.at(level).head.height;
    if ((group.newPage && sheet.used) || !fits(state, sheet, height))
        return false;
    put(group.head, state, sheet, state.row);
    ++state.level;
    return true;
}

bool BandReport::stepDetail(State& state, Sheet& sheet) const {
    if (!fits(state, sheet, m_layout.detail.height))
        return false;
    tally(state, state.row);
    put(m_layout.detail, state, sheet, state.row);
    sheet.used = true;
    ++state.row;
    enterRow(state);
    return true;
}

/// The way begins with the feet of the groups that end here, from the innermost.
void BandReport::enterRow(State& state) const {
    state.phase = Phase::Feet;
    state.level = int(m_layout.groups.size()) - 1;
}

/// The outermost group that begins anew with a row; behind the innermost when none does.
int BandReport::firstChange(int row) const {
    if (row == 0)
        return 0;
    for (int level = 0; level < m_groupColumns.size(); ++level) {
        const int column = m_groupColumns.at(level);
        if (m_data.value(row, column)
                .toString()
                .compare(m_data.value(row - 1, column).toString(), Qt::CaseInsensitive) != 0)
            return level;
    }
    return int(m_groupColumns.size());
}

void BandReport::tally(State& state, int row) const {
    for (int i = 0; i < m_summed.size(); ++i) {
        const auto [column, side] = m_summed.at(i);
        const double number = column < 0 ? 1 : m_data.number(row, column, side).value_or(0);
        Tally& tally = state.tallies[i];
        tally.page += number;
        tally.report += number;
        for (double& group : tally.groups)
            group += number;
    }
    for (int& placed : state.placed)
        ++placed;
}

void BandReport::clearGroup(State& state, int level) const {
    for (Tally& tally : state.tallies)
        tally.groups[level] = 0;
    state.placed[level] = 0;
}

/// What more may follow leaves room for what is carried over; the last foot of a group, for that or for the report's.
bool BandReport::fits(const State& state, const Sheet& sheet, double height) const {
    double kept = state.phase == Phase::ReportFoot ? 0 : m_layout.carryFoot.height;
    if (!m_data.has(state.row))
        kept = std::min(kept, m_layout.reportFoot.height);
    return sheet.empty || sheet.y + height + kept <= sheet.bottom + 0.001;
}

void BandReport::put(const ReportBand& band, const State& state, Sheet& sheet, int row) const {
    if (sheet.page && !band.elements.isEmpty()) {
        const QString pages = m_whole ? QString::number(m_starts.size()) : QStringLiteral("…");
        paintBand(
            *sheet.page, m_layout.margin, sheet.y, band, m_layout, m_data,
            {row, sheet.number, pages, [&](const ReportElement& element) { return sumOf(element, band, state); }});
    }
    sheet.y += band.height;
}

/// Without a group named, a sum is of the band's own group, else of the report.
double BandReport::sumOf(const ReportElement& element, const ReportBand& band, const State& state) const {
    const int slot = element.kind == ReportElement::Count ? 0 : int(m_summed.indexOf(summed(element)));
    const Tally& tally = state.tallies.at(slot);
    if (element.of.compare("page", Qt::CaseInsensitive) == 0)
        return tally.page;
    if (element.of.compare("report", Qt::CaseInsensitive) == 0)
        return tally.report;
    int level = m_layout.groupIndex(element.of.isEmpty() ? band.of : element.of);
    for (int i = 0; element.of.isEmpty() && i < m_layout.groups.size(); ++i)
        if (&m_layout.groups.at(i).foot == &band)
            level = i;
    return level < 0 ? tally.report : tally.groups.at(level);
}

} // namespace orvane
