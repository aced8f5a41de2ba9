#include "desktop/FlowLayout.h"

#include <algorithm>

namespace orvane {

FlowLayout::FlowLayout(int horizontalSpacing, int verticalSpacing)
    : m_across(horizontalSpacing), m_down(verticalSpacing) {
    setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout() {
    // A layout among them takes itself out as it goes.
    while (!m_items.isEmpty())
        delete m_items.takeLast();
}

void FlowLayout::addItem(QLayoutItem* item) {
    m_items.append(item);
}

void FlowLayout::addLayout(QLayout* layout) {
    addChildLayout(layout);
    addItem(layout);
}

void FlowLayout::addStretch() {
    addItem(new QSpacerItem(0, 0));
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
    int height = 0;
    for (const Line& line : lines(width))
        height += line.height + (height > 0 ? m_down : 0);
    return height;
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
    int y = rect.y();
    for (const Line& line : lines(rect.width())) {
        place(line, QRect(rect.x(), y, rect.width(), line.height));
        y += line.height + m_down;
    }
}

QVector<FlowLayout::Line> FlowLayout::lines(int width) const {
    QVector<Line> lines(1);
    for (QLayoutItem* item : m_items) {
        if (item->spacerItem()) {
            lines.last().items << item;
            ++lines.last().stretches;
            continue;
        }
        if (item->isEmpty())
            continue;
        const QSize hint = item->sizeHint();
        const int before = lines.last().width;
        if (before > 0 && before + m_across + hint.width() > width)
            lines.append(Line());
        Line& line = lines.last();
        line.items << item;
        line.width += hint.width() + (line.width > 0 ? m_across : 0);
        line.height = std::max(line.height, hint.height());
    }
    return lines;
}

void FlowLayout::place(const Line& line, QRect room) const {
    const int slack = std::max(0, room.width() - line.width) / std::max(1, line.stretches);
    int x = room.x();
    for (QLayoutItem* item : line.items) {
        if (item->spacerItem()) {
            x += slack;
            continue;
        }
        const QSize hint = item->sizeHint();
        item->setGeometry(QRect(QPoint(x, room.y() + (room.height() - hint.height()) / 2), hint));
        x += hint.width() + m_across;
    }
}

} // namespace orvane
