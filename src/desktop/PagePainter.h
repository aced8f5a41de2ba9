#pragma once

#include "forms/Page.h"

#include <QSizeF>

class QPainter;
class QRectF;

namespace orvane {

/// Paints the page into `target`, given in the painter's own units, in the page's proportions. Line breaks and letter
/// sizes are the same on every device.
void paintPage(QPainter& painter, const Page& page, const QRectF& target);

/// Writes the page as a PDF of one sheet of its size. False: the file cannot be written.
bool renderPdf(const Page& page, const QString& file);

} // namespace orvane
