#include "desktop/PagePreview.h"

#include "desktop/Look.h"
#include "desktop/PagePainter.h"

#include <QPainter>
#include <algorithm>

namespace orvane {

namespace {

constexpr int sheetWidth = 620; ///< of an A4 sheet, pixels
constexpr int rollWidth = 330;  ///< of the narrowest paper, pixels: its letters are as small as those of a sheet
constexpr int edge = 16;        ///< around the paper, pixels

int usualWidth(const Page& page) {
    return std::max(rollWidth, int(sheetWidth * std::min(1.0, page.widthMm / Page().widthMm)));
}

} // namespace

PagePreview::PagePreview(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
    setAccessibleName("Page");
}

void PagePreview::setPage(const Page& page) {
    m_page = page;
    m_drawn = {};
    setMinimumHeight(sizeHint().height());
    update();
}

QSize PagePreview::sizeHint() const {
    const int width = usualWidth(m_page);
    return {width + 2 * edge, int(width * m_page.heightMm / m_page.widthMm) + 2 * edge};
}

QRect PagePreview::paper() const {
    const int high = std::max(100, height() - 2 * edge);
    const int wide = std::min(std::max(100, width() - 2 * edge), int(high * m_page.widthMm / m_page.heightMm));
    QRect paper(0, edge, wide, int(wide * m_page.heightMm / m_page.widthMm));
    paper.moveLeft((width() - wide) / 2);
    return paper;
}

void PagePreview::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), look::color(look::Tone::Around));
    const QRect sheet = paper();
    const double ratio = devicePixelRatioF();
    if (m_drawn.size() != sheet.size() * ratio) {
        m_drawn = QPixmap(sheet.size() * ratio);
        m_drawn.setDevicePixelRatio(ratio);
        m_drawn.fill(Qt::white);
        QPainter page(&m_drawn);
        paintPage(page, m_page, QRectF(QPointF(), QSizeF(sheet.size())));
    }
    painter.fillRect(sheet.translated(3, 3), QColor(0, 0, 0, 40));
    painter.drawPixmap(sheet.topLeft(), m_drawn);
}

} // namespace orvane
