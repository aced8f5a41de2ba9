#include "desktop/PageScroll.h"

#include "desktop/Look.h"

#include <QApplication>
#include <QScrollBar>
#include <algorithm>

namespace orvane {

namespace {

int lowestPage() {
    return 5 * look::lineHeight();
}

} // namespace

void followFocus(QScrollArea& area) {
    QObject::connect(
        qApp, &QApplication::focusChanged, &area,
        [&area](const QWidget*, QWidget* now) {
            if (now && area.widget() && area.widget()->isAncestorOf(now))
                area.ensureWidgetVisible(now, 0, look::spacing);
        });
}

PageScroll::PageScroll(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    followFocus(*this);
}

void PageScroll::setPage(QWidget* page) {
    setWidget(page);
    // The tab strip's own ground shows through.
    page->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
}

QSize PageScroll::sizeHint() const {
    return widget()->sizeHint();
}

QSize PageScroll::minimumSizeHint() const {
    const QSize least = widget()->minimumSizeHint();
    return {least.width() + verticalScrollBar()->sizeHint().width(), std::min(least.height(), lowestPage())};
}

} // namespace orvane
