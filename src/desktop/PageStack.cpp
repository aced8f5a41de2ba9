#include "desktop/PageStack.h"

#include "desktop/Look.h"
#include "desktop/PagePainter.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <functional>

namespace orvane {

namespace {

constexpr int edge = 16; ///< around the paper, pixels
constexpr double mmPerInch = 25.4;
constexpr int lineStep = 60;     ///< of an arrow key, pixels
constexpr int usualHeight = 480; ///< pixels
constexpr double leastPercent = 25, mostPercent = 200;

} // namespace

const QVector<int>& PageStack::percentages() {
    static const QVector<int> all = {25, 50, 75, 100, 125, 150, 200};
    return all;
}

PageStack::PageStack(QWidget* parent) : QAbstractScrollArea(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName("Pages");
    setMinimumSize(240, 120);
    horizontalScrollBar()->setSingleStep(lineStep);
    verticalScrollBar()->setSingleStep(lineStep);
}

QSize PageStack::sizeHint() const {
    const QSizeF size = m_size.isEmpty() ? QSizeF(Page().widthMm, Page().heightMm) : m_size;
    return {int(size.width() * logicalDpiX() / mmPerInch) + 2 * edge + verticalScrollBar()->sizeHint().width() +
                2 * frameWidth(),
            usualHeight};
}

void PageStack::clear() {
    m_sheets.clear();
    m_size = {};
    m_count = 0;
    mark({});
    layOut();
}

/// While a report is laid out on, what is in sight mostly stays.
void PageStack::setCount(int pages) {
    if (m_count == pages)
        return;
    const auto before = seen();
    m_count = pages;
    setRanges();
    if (seen() != before)
        look();
    else
        Q_EMIT looksMoved();
}

void PageStack::setPage(int number, const Page& page) {
    m_sheets[number] = {page, {}};
    const QSizeF size(page.widthMm, page.heightMm);
    if (m_size != size) {
        m_size = size;
        updateGeometry();
        layOut();
    }
    if (m_foundHidden && number == m_foundPage)
        showFound();
    viewport()->update();
}

void PageStack::forgetPages() {
    m_sheets.clear();
    look();
}

double PageStack::dotsPerMm() const {
    const double usual = logicalDpiX() / mmPerInch;
    if (m_size.isEmpty() || m_zoom.kind == Zoom::Percent)
        return usual * m_zoom.percent / 100;
    const QSize room = viewport()->size() - QSize(2 * edge, 2 * edge);
    const double wide = room.width() / m_size.width(), high = room.height() / m_size.height();
    return std::clamp(m_zoom.kind == Zoom::Width ? wide : std::min(wide, high), usual * leastPercent / 100,
                      usual * mostPercent / 100);
}

double PageStack::percent() const {
    return dotsPerMm() / logicalDpiX() * mmPerInch * 100;
}

QSize PageStack::paper() const {
    const double dots = dotsPerMm();
    return {std::max(1, int(m_size.width() * dots)), std::max(1, int(m_size.height() * dots))};
}

QRect PageStack::place(int number) const {
    const QSize size = paper();
    const int left = size.width() + 2 * edge <= viewport()->width() ? (viewport()->width() - size.width()) / 2
                                                                    : edge - horizontalScrollBar()->value();
    return {QPoint(left, edge + number * (size.height() + edge) - verticalScrollBar()->value()), size};
}

std::pair<int, int> PageStack::seen() const {
    if (m_count == 0)
        return {0, -1};
    if (m_size.isEmpty())
        return {0, 0};
    const int step = paper().height() + edge, top = verticalScrollBar()->value();
    return {std::clamp((top - edge) / step, 0, m_count - 1),
            std::clamp((top + viewport()->height() - edge) / step, 0, m_count - 1)};
}

int PageStack::current() const {
    if (m_count == 0)
        return 0;
    const int middle = verticalScrollBar()->value() + viewport()->height() / 3;
    const bool atEnd = verticalScrollBar()->value() == verticalScrollBar()->maximum() && m_count > 1;
    return atEnd ? seen().second : std::clamp((middle - edge) / (paper().height() + edge), 0, m_count - 1);
}

void PageStack::layOut() {
    setRanges();
    look();
}

void PageStack::setRanges() {
    const QSize size = paper(), room = viewport()->size();
    QScrollBar& down = *verticalScrollBar();
    down.setPageStep(std::max(1, room.height() - lineStep));
    down.setRange(0, m_count == 0 ? 0 : std::max(0, edge + m_count * (size.height() + edge) - room.height()));
    QScrollBar& across = *horizontalScrollBar();
    across.setPageStep(room.width());
    across.setRange(0, m_count == 0 ? 0 : std::max(0, size.width() + 2 * edge - room.width()));
}

/// What has gone out of sight is let go, but for the neighbours of what is seen.
void PageStack::look() {
    const auto [first, last] = seen();
    for (auto sheet = m_sheets.begin(); sheet != m_sheets.end();) {
        const bool near = sheet.key() >= first - 1 && sheet.key() <= last + 1;
        sheet = near ? std::next(sheet) : m_sheets.erase(sheet);
    }
    viewport()->update();
    if (!wanted().isEmpty())
        Q_EMIT pagesWanted();
    Q_EMIT looksMoved();
}

QVector<int> PageStack::wanted() const {
    QVector<int> numbers;
    const auto [first, last] = seen();
    for (int number = first; number <= last; ++number)
        if (!m_sheets.contains(number))
            numbers << number;
    return numbers;
}

void PageStack::goTo(int number) {
    const int top = std::clamp(number, 0, std::max(0, m_count - 1)) * (paper().height() + edge);
    verticalScrollBar()->setValue(top);
}

/// The page in hand stays where it is, as far as it was scrolled.
void PageStack::setZoom(Zoom zoom) {
    if (m_zoom == zoom)
        return;
    const double at = double(verticalScrollBar()->value()) / (paper().height() + edge);
    m_zoom = zoom;
    layOut();
    verticalScrollBar()->setValue(int(std::lround(at * (paper().height() + edge))));
    horizontalScrollBar()->setValue(horizontalScrollBar()->maximum() / 2);
}

void PageStack::zoomBy(int steps) {
    const double now = percent();
    const QVector<int>& all = percentages();
    qsizetype at = std::lower_bound(all.cbegin(), all.cend(), now + (steps > 0 ? 0.5 : -0.5)) - all.cbegin();
    at += steps > 0 ? steps - 1 : steps;
    setZoom({Zoom::Percent, double(all.at(std::clamp<qsizetype>(at, 0, all.size() - 1)))});
}

void PageStack::mark(const QString& words, int page, int text) {
    m_marked = words;
    m_foundPage = page;
    m_foundText = text;
    m_foundHidden = page >= 0;
    if (m_foundHidden && m_sheets.contains(page))
        showFound();
    else if (m_foundHidden)
        goTo(page);
    viewport()->update();
}

void PageStack::showFound() {
    m_foundHidden = false;
    const Page& page = m_sheets[m_foundPage].page;
    if (m_foundText >= page.texts.size())
        return;
    const PageText& text = page.texts.at(m_foundText);
    const QRect paper = place(m_foundPage);
    const double dots = dotsPerMm();
    const int top = paper.top() + int(text.y * dots), left = paper.left() + int(text.x * dots);
    const QSize room = viewport()->size();
    if (top < edge || top + lineStep > room.height())
        verticalScrollBar()->setValue(verticalScrollBar()->value() + top - room.height() / 3);
    if (left < 0 || left + int(text.width * dots) > room.width())
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + left - edge);
}

void PageStack::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), look::color(look::Tone::Around));
    if (m_count == 0) {
        painter.setPen(look::color(look::Tone::Quiet));
        painter.drawText(viewport()->rect(), Qt::AlignCenter, "No report is shown");
    }
    if (m_size.isEmpty())
        return;
    const auto [first, last] = seen();
    for (int number = first; number <= last; ++number) {
        const QRect paper = place(number);
        painter.fillRect(paper.translated(3, 3), QColor(0, 0, 0, 40));
        painter.fillRect(paper, Qt::white);
        const auto sheet = m_sheets.find(number);
        if (sheet == m_sheets.end())
            continue;
        paintSheet(painter, *sheet, paper);
        paintMarks(painter, number, paper);
    }
    for (auto sheet = m_sheets.begin(); sheet != m_sheets.end(); ++sheet)
        if (sheet.key() < first || sheet.key() > last)
            sheet->drawn = {};
}

void PageStack::paintSheet(QPainter& painter, Sheet& sheet, const QRect& paper) const {
    const double ratio = devicePixelRatioF();
    if (sheet.drawn.size() != paper.size() * ratio) {
        sheet.drawn = QPixmap(paper.size() * ratio);
        sheet.drawn.setDevicePixelRatio(ratio);
        sheet.drawn.fill(Qt::white);
        QPainter drawing(&sheet.drawn);
        paintPage(drawing, sheet.page, QRectF(QPointF(), QSizeF(paper.size())));
    }
    painter.drawPixmap(paper.topLeft(), sheet.drawn);
}

void PageStack::paintMarks(QPainter& painter, int number, const QRect& paper) const {
    if (m_marked.isEmpty())
        return;
    const double dots = dotsPerMm();
    const QVector<PageText>& texts = m_sheets.constFind(number)->page.texts;
    for (int i = 0; i < texts.size(); ++i) {
        const bool found = number == m_foundPage && i == m_foundText;
        for (const QRectF& place : placesOf(texts.at(i), m_marked))
            painter.fillRect(QRectF(place.topLeft() * dots, place.size() * dots).translated(paper.topLeft()),
                             found ? QColor(255, 120, 0, 130) : QColor(255, 220, 0, 110));
    }
}

void PageStack::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    const double at = m_zoom.kind == Zoom::Percent ? -1 : double(current());
    layOut();
    if (at > 0)
        goTo(int(at));
}

void PageStack::scrollContentsBy(int, int) {
    look();
}

/// To the top of the page so many further on.
void PageStack::turn(int pages) {
    goTo(current() + pages);
}

/// By what is in sight; a page that is seen whole is turned.
void PageStack::scrollPage(int pages) {
    if (m_zoom.kind == Zoom::Whole)
        turn(pages);
    else
        verticalScrollBar()->triggerAction(pages > 0 ? QScrollBar::SliderPageStepAdd : QScrollBar::SliderPageStepSub);
}

bool PageStack::takesKey(const QKeyEvent& event) {
    struct Key {
        QVector<QKeySequence> keys;
        std::function<void()> act;
    };
    const QVector<Key> keys = {
        {{{"PgDown"}}, [this] { scrollPage(1); }},
        {{{"PgUp"}}, [this] { scrollPage(-1); }},
        {{{"Ctrl+PgDown"}}, [this] { turn(1); }},
        {{{"Ctrl+PgUp"}}, [this] { turn(-1); }},
        {{{"Ctrl+Home"}}, [this] { goTo(0); }},
        {{{"Ctrl+End"}}, [this] { Q_EMIT lastWanted(); }},
        {{{"Ctrl++"}, {"Ctrl+="}, {"Ctrl+Shift++"}}, [this] { zoomBy(1); }},
        {{{"Ctrl+-"}}, [this] { zoomBy(-1); }},
        {{{"Ctrl+0"}}, [this] { setZoom(wholePage()); }},
        {{{"Ctrl+1"}}, [this] { setZoom({}); }},
        {{{"Ctrl+2"}}, [this] { setZoom(fitWidth()); }},
    };
    const QKeySequence pressed(QKeyCombination(event.modifiers() & ~Qt::KeypadModifier, Qt::Key(event.key())));
    const auto key =
        std::find_if(keys.cbegin(), keys.cend(), [&](const Key& one) { return one.keys.contains(pressed); });
    if (key == keys.cend())
        return false;
    if (m_count > 0)
        key->act();
    return true;
}

void PageStack::keyPressEvent(QKeyEvent* event) {
    const bool arrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down || event->key() == Qt::Key_Left ||
                       event->key() == Qt::Key_Right;
    if (arrow)
        QAbstractScrollArea::keyPressEvent(event);
    else if (!takesKey(*event))
        QWidget::keyPressEvent(event);
}

void PageStack::wheelEvent(QWheelEvent* event) {
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    if (event->angleDelta().y() != 0)
        zoomBy(event->angleDelta().y() > 0 ? 1 : -1);
    event->accept();
}

} // namespace orvane
