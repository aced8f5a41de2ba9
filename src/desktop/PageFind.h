#pragma once

#include "desktop/FindLine.h"

#include <QBasicTimer>

namespace orvane {

class PageStack;
class ReportViewer;

/// Finds a text on the pages of a report, from the page in hand on and round the end, and marks it. It goes through
/// them in pauses, so that the report can be read meanwhile.
class PageFind : public FindLine {
    Q_OBJECT

public:
    PageFind(PageStack& pages, QWidget* parent);
    void forget(); ///< another report is shown
    /// Searches on for a while; a fault of the engine ends the search.
    void searchOn(ReportViewer& report);

Q_SIGNALS:
    void searchWanted(); ///< searchOn

protected:
    void go(bool forward) override;
    void left() override { forget(); }
    void timerEvent(QTimerEvent* event) override;

private:
    bool isAround() const;
    bool hitOn(const QStringList& texts);
    bool turn(ReportViewer& report);
    void end(const QString& words);

    PageStack& m_pages;
    QBasicTimer m_pause;
    bool m_forward = true;
    bool m_round = false;         ///< it has gone round the end
    int m_page = -1, m_text = -1; ///< where the search is: of the last hit, when it rests; no hit: -1
    int m_start = 0;              ///< the page where it began
};

} // namespace orvane
