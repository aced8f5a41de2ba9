#pragma once

#include "forms/Page.h"

#include <QRectF>
#include <functional>

class QPagedPaintDevice;
class QPainter;

namespace orvane {

/// Paints the page into `target`, given in the painter's own units, in the page's proportions. Line breaks and letter
/// sizes are the same on every device.
void paintPage(QPainter& painter, const Page& page, const QRectF& target);

/// Where a text bears these words, in millimetres; of a text that wraps, the room that it takes. Nowhere: empty.
QVector<QRectF> placesOf(const PageText& text, const QString& words);

/// Pages of one size, made one at a time. A fault may come from where they are made.
struct Document {
    int count = 0;
    std::function<Page(int number)> page;
    int first = 0; ///< the number of the first one
    static Document of(const Page& page) {
        return {1, [page](int) { return page; }};
    }
    QSizeF sheet() const { ///< mm
        const Page made = page(first);
        return {made.widthMm, made.heightMm};
    }
};

/// Paints the sheets on a printer or into a PDF whose page size is set: in their own size from the upper left corner,
/// smaller where the paper is. False: the device has refused.
bool paintDocument(QPagedPaintDevice& device, const Document& document);

/// Writes the document as a PDF with sheets of its size. False: the file cannot be written.
bool renderPdf(const Document& document, const QString& file);

} // namespace orvane
