#include "desktop/FlowLayout.h"

#include <algorithm>

namespace orvane {

FlowLayout::FlowLayout(int horizontalSpacing, int verticalSpacing)
    : m_across(horizontalSpacing), m_down(verticalSpacing) {
    setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout() {
    qDeleteAll(m_items);
}

void FlowLayout::addItem(QLayoutItem* item) {
    m_items.append(item);
}

void FlowLayout::addLayout(QLayout* layout) {
    addChildLayout(layout);
    addItem(layout);
}

int FlowLayout::count() const {
    return int(m_items.size());
}

QLayoutItem* FlowLayout::itemAt(int index) const {
    return m_items.value(index);
}

QLayoutItem* FlowLayout::takeAt(int index) {
    return index >= 0 && index < count() ? m_items.takeAt(index) : nullptr;
}

int FlowLayout::heightForWidth(int width) const {
    return arrange(QRect(0, 0, width, 0), false);
}

QSize FlowLayout::sizeHint() const {
    QSize size;
    for (const QLayoutItem* item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize hint = item->sizeHint();
        size = QSize(size.width() + (size.width() > 0 ? m_across : 0) + hint.width(),
                     std::max(size.height(), hint.height()));
    }
    return size;
}

QSize FlowLayout::minimumSize() const {
    QSize size;
    for (const QLayoutItem* item : m_items)
        if (!item->isEmpty())
            size = size.expandedTo(item->minimumSize());
    return size;
}

void FlowLayout::setGeometry(const QRect& rect) {
    QLayout::setGeometry(rect);
    arrange(rect, true);
}

int FlowLayout::arrange(const QRect& rect, bool apply) const {
    int x = rect.x(), y = rect.y(), lineHeight = 0;
    for (QLayoutItem* item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize hint = item->sizeHint();
        if (x > rect.x() && x + hint.width() > rect.x() + rect.width()) {
            x = rect.x();
            y += lineHeight + m_down;
            lineHeight = 0;
        }
        if (apply)
            item->setGeometry(QRect(QPoint(x, y), hint));
        x += hint.width() + m_across;
        lineHeight = std::max(lineHeight, hint.height());
    }
    return y + lineHeight - rect.y();
}

} // namespace orvane
