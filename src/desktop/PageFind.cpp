#include "desktop/PageFind.h"

#include "desktop/PageStack.h"
#include "forms/ReportViewer.h"

#include <QElapsedTimer>
#include <QTimerEvent>
#include <limits>

namespace orvane {

namespace {

constexpr int searchedAtOnce = 40; ///< milliseconds between two events of the user
constexpr int behindAll = std::numeric_limits<int>::max();

QStringList textsOf(const Page& page) {
    QStringList texts;
    for (const PageText& text : page.texts)
        texts << text.text;
    return texts;
}

} // namespace

PageFind::PageFind(PageStack& pages, QWidget* parent)
    : FindLine(QStringLiteral("report"), pages, parent), m_pages(pages) {
    connect(this, &FindLine::textChanged, this, &PageFind::forget);
}

void PageFind::forget() {
    m_pause.stop();
    m_page = m_text = -1;
    m_pages.mark(isVisible() ? text() : QString());
}

/// On from the last hit while its page is in hand, else from the page in hand.
void PageFind::go(bool forward) {
    m_forward = forward;
    if (m_page < 0 || m_page != m_pages.current()) {
        m_page = m_pages.current();
        m_text = forward ? -1 : behindAll;
    }
    m_start = m_page;
    m_round = false;
    m_pause.start(0, this);
}

void PageFind::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_pause.timerId())
        return FindLine::timerEvent(event);
    m_pause.stop();
    Q_EMIT searchWanted();
}

void PageFind::searchOn(ReportViewer& report) {
    if (m_page < 0 || !report.report())
        return;
    QElapsedTimer spent;
    spent.start();
    do {
        if (report.has(m_page) && hitOn(textsOf(report.page(m_page))))
            return end(m_round ? QStringLiteral("From the %1 again").arg(m_forward ? "top" : "end") : QString());
        if (isAround() || !turn(report)) {
            m_page = -1;
            return end("Not found");
        }
    } while (spent.elapsed() < searchedAtOnce);
    say(QStringLiteral("Searching page %L1 ...").arg(m_page + 1));
    m_pause.start(0, this);
}

/// Whether the page where the search began was gone through a second time.
bool PageFind::isAround() const {
    return m_round && (m_forward ? m_page >= m_start : m_page <= m_start);
}

/// The next hit on the page in the direction of the search; it becomes the place of the search.
bool PageFind::hitOn(const QStringList& texts) {
    const int step = m_forward ? 1 : -1;
    for (int i = std::min(m_text, int(texts.size())) + step; i >= 0 && i < texts.size(); i += step) {
        if (!texts.at(i).contains(text(), Qt::CaseInsensitive))
            continue;
        m_text = i;
        return true;
    }
    return false;
}

/// To the next page, round the end. False: there are none.
bool PageFind::turn(ReportViewer& report) {
    m_text = m_forward ? -1 : behindAll;
    m_page += m_forward ? 1 : -1;
    if (m_page >= 0 && report.has(m_page))
        return true;
    m_round = true;
    m_page = m_forward ? 0 : report.finish() - 1;
    return m_page >= 0;
}

void PageFind::end(const QString& words) {
    say(words);
    if (m_page < 0)
        return;
    m_pages.setCount(std::max(m_pages.count(), m_page + 1));
    m_pages.mark(text(), m_page, m_text);
}

} // namespace orvane
