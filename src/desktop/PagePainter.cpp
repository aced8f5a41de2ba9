#include "desktop/PagePainter.h"

#include <QFile>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>

namespace orvane {

namespace {

// The page is painted in hundredths of a millimetre, in which a letter is some hundred units high: so its outline does
// not depend on the dots of the device, and a text breaks at the same word everywhere.
constexpr double unitsPerMm = 100;
constexpr double mmPerInch = 25.4, mmPerPoint = mmPerInch / 72;
constexpr double smallestShare = 0.4; ///< a text is made smaller down to this share of its size

QFont fontOf(const PageText& text, double share) {
    QFont font = QGuiApplication::font();
    font.setPixelSize(std::max(1, int(text.points * mmPerPoint * unitsPerMm * share)));
    font.setBold(text.bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

int flagsOf(const PageText& text) {
    const Qt::AlignmentFlag side = text.align == PageAlign::Left    ? Qt::AlignLeft
                                   : text.align == PageAlign::Right ? Qt::AlignRight
                                                                    : Qt::AlignHCenter;
    return int(side) | int(Qt::AlignTop) | (text.wraps ? int(Qt::TextWordWrap) : int(Qt::TextSingleLine));
}

bool fits(const PageText& text, const QFont& font, const QRectF& box) {
    const QFontMetricsF metrics(font);
    if (!text.wraps)
        return metrics.horizontalAdvance(text.text) <= box.width();
    const QRectF taken =
        metrics.boundingRect(QRectF(box.topLeft(), QSizeF(box.width(), 1e6)), flagsOf(text), text.text);
    return taken.width() <= box.width() + 1 && (text.height <= 0 || taken.height() <= box.height());
}

void paintText(QPainter& painter, const PageText& text) {
    if (text.text.isEmpty())
        return;
    const QRectF box(text.x * unitsPerMm, text.y * unitsPerMm, text.width * unitsPerMm,
                     (text.height > 0 ? text.height : 200) * unitsPerMm);
    double share = 1;
    while (share > smallestShare && !fits(text, fontOf(text, share), box))
        share -= 0.05;
    painter.setFont(fontOf(text, share));
    painter.setPen(Qt::black);
    painter.drawText(box, flagsOf(text) | Qt::TextDontClip, text.text);
}

void paintPicture(QPainter& painter, const PagePicture& picture) {
    const QImage image = picture.file.isEmpty() ? QImage() : QImageReader(picture.file).read();
    if (image.isNull())
        return;
    const QRectF box(picture.x * unitsPerMm, picture.y * unitsPerMm, picture.width * unitsPerMm,
                     picture.height * unitsPerMm);
    QRectF target(QPointF(), QSizeF(image.size()).scaled(box.size(), Qt::KeepAspectRatio));
    target.moveCenter(box.center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, image);
}

void paintLine(QPainter& painter, const PageLine& line) {
    painter.setPen(
        QPen(Qt::black, line.thickness * unitsPerMm, line.dashed ? Qt::DashLine : Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(QLineF(line.x1 * unitsPerMm, line.y1 * unitsPerMm, line.x2 * unitsPerMm, line.y2 * unitsPerMm));
}

} // namespace

void paintPage(QPainter& painter, const Page& page, const QRectF& target) {
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const double scale = std::min(target.width() / page.widthMm, target.height() / page.heightMm) / unitsPerMm;
    painter.translate(target.topLeft());
    painter.scale(scale, scale);
    for (const PagePicture& picture : page.pictures)
        paintPicture(painter, picture);
    for (const PageLine& line : page.lines)
        paintLine(painter, line);
    for (const PageText& text : page.texts)
        paintText(painter, text);
    painter.restore();
}

bool paintDocument(QPagedPaintDevice& device, const Document& document) {
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    for (int number = 0; number < document.count; ++number) {
        if (number > 0 && !device.newPage())
            return false;
        const Page page = document.page(number);
        const double dotsPerMm = device.logicalDpiX() / mmPerInch;
        paintPage(painter, page,
                  QRectF(0, 0, std::min<double>(device.width(), page.widthMm * dotsPerMm),
                         std::min<double>(device.height(), page.heightMm * dotsPerMm)));
    }
    return painter.end();
}

bool renderPdf(const Document& document, const QString& file) {
    QFile output(file);
    if (!output.open(QIODevice::WriteOnly))
        return false;
    QPdfWriter writer(&output);
    writer.setResolution(1200);
    const Page first = document.page(0);
    writer.setPageSize(QPageSize(QSizeF(first.widthMm, first.heightMm), QPageSize::Millimeter));
    writer.setPageMargins(QMarginsF());
    return paintDocument(writer, document) && output.error() == QFile::NoError;
}

} // namespace orvane
