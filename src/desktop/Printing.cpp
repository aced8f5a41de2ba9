#include "desktop/Printing.h"

#include "desktop/Boxes.h"
#include "desktop/PagePainter.h"

#include <QFileDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <functional>

namespace orvane::printing {

namespace {

using Draw = std::function<void(QPainter&, const QRectF& sheet)>;

void setSheet(QPrinter& printer, QSizeF millimetres) {
    printer.setPageSize(QPageSize(millimetres, QPageSize::Millimeter));
    printer.setFullPage(true);
}

/// False: the printer or the file has refused.
bool drawOn(QPrinter& printer, const Draw& draw) {
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    draw(painter, QRectF(0, 0, printer.width(), printer.height()));
    return painter.end();
}

QString askFile(const QString& title, QWidget* parent) {
    QString file = QFileDialog::getSaveFileName(parent, QStringLiteral("Save as PDF"), title + QStringLiteral(".pdf"),
                                                QStringLiteral("PDF (*.pdf)"));
    if (!file.isEmpty() && !file.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive))
        file += QStringLiteral(".pdf");
    return file;
}

void toPrinter(QSizeF sheet, const QString& title, QWidget* parent, const Draw& draw) {
    QPrinter printer(QPrinter::HighResolution);
    setSheet(printer, sheet);
    printer.setDocName(title);
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        const QString file = askFile(title, parent);
        if (file.isEmpty())
            return;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file);
    } else if (QPrintDialog(&printer, parent).exec() != QDialog::Accepted) {
        return;
    }
    if (!drawOn(printer, draw))
        boxes::message(parent, QStringLiteral("The document could not be printed."), Icon::Exclamation, {});
}

Draw drawPage(const Page& page) {
    return [page](QPainter& painter, const QRectF& sheet) { paintPage(painter, page, sheet); };
}

constexpr double a4Width = 210, a4Height = 297, paperMargin = 12; // mm

Draw drawPicture(const QPixmap& picture) {
    return [picture](QPainter& painter, const QRectF& sheet) {
        const double edge = sheet.width() / (picture.width() > picture.height() ? a4Height : a4Width) * paperMargin;
        const QRectF room = sheet.adjusted(edge, edge, -edge, -edge);
        const QSizeF size = QSizeF(picture.size()).scaled(room.size(), Qt::KeepAspectRatio);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(QRectF(room.topLeft(), size), picture, QRectF(picture.rect()));
    };
}

QSizeF sheetFor(const QPixmap& picture) {
    return picture.width() > picture.height() ? QSizeF(a4Height, a4Width) : QSizeF(a4Width, a4Height);
}

} // namespace

void print(const Page& page, const QString& title, QWidget* parent) {
    toPrinter({page.widthMm, page.heightMm}, title, parent, drawPage(page));
}

void preview(const Page& page, QWidget* parent) {
    QPrinter printer(QPrinter::HighResolution);
    setSheet(printer, {page.widthMm, page.heightMm});
    QPrintPreviewDialog dialog(&printer, parent);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&](QPrinter* target) { drawOn(*target, drawPage(page)); });
    dialog.exec();
}

void savePdf(const Page& page, const QString& title, QWidget* parent) {
    const QString file = askFile(title, parent);
    if (!file.isEmpty() && !renderPdf(page, file))
        boxes::message(parent, QStringLiteral("The file %1 could not be written.").arg(file), Icon::Exclamation, {});
}

void printWidget(QWidget& widget, const QString& title, QWidget* parent) {
    const QPixmap picture = widget.grab();
    toPrinter(sheetFor(picture), title, parent, drawPicture(picture));
}

bool widgetToPdf(QWidget& widget, const QString& file) {
    const QPixmap picture = widget.grab();
    QPrinter printer(QPrinter::HighResolution);
    setSheet(printer, sheetFor(picture));
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    return drawOn(printer, drawPicture(picture));
}

} // namespace orvane::printing
