#include "desktop/Printing.h"

#include "desktop/Boxes.h"

#include <QFileDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace orvane::printing {

namespace {

void setSheet(QPrinter& printer, QSizeF millimetres) {
    printer.setPageSize(QPageSize(millimetres, QPageSize::Millimeter));
    printer.setFullPage(true);
}

QSizeF sheetOf(const Document& document) {
    const Page first = document.page(0);
    return {first.widthMm, first.heightMm};
}

QString askFile(const QString& title, QWidget* parent) {
    QString file = QFileDialog::getSaveFileName(parent, "Save as PDF", title + ".pdf", "PDF (*.pdf)");
    if (!file.isEmpty() && !file.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive))
        file += ".pdf";
    return file;
}

/// Lets the user choose the printer, or the file where there is no printer. False: he has cancelled.
bool choosePrinter(QPrinter& printer, const QString& title, QWidget* parent) {
    printer.setDocName(title);
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        return QPrintDialog(&printer, parent).exec() == QDialog::Accepted;
    const QString file = askFile(title, parent);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    return !file.isEmpty();
}

void sayFailed(QWidget* parent) {
    boxes::message(parent, "The document could not be printed.", Icon::Exclamation, {});
}

constexpr double a4Width = 210, a4Height = 297, paperMargin = 12; // mm

/// False: the printer or the file has refused.
bool drawPicture(QPrinter& printer, const QPixmap& picture) {
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    const double edge =
        printer.width() / printer.pageLayout().pageSize().size(QPageSize::Millimeter).width() * paperMargin;
    const QRectF room = QRectF(0, 0, printer.width(), printer.height()).adjusted(edge, edge, -edge, -edge);
    const QSizeF size = QSizeF(picture.size()).scaled(room.size(), Qt::KeepAspectRatio);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRectF(room.topLeft(), size), picture, QRectF(picture.rect()));
    return painter.end();
}

QSizeF sheetFor(const QPixmap& picture) {
    return picture.width() > picture.height() ? QSizeF(a4Height, a4Width) : QSizeF(a4Width, a4Height);
}

} // namespace

void print(const Document& document, const QString& title, QWidget* parent) {
    QPrinter printer(QPrinter::HighResolution);
    setSheet(printer, sheetOf(document));
    if (choosePrinter(printer, title, parent) && !paintDocument(printer, document, printer.width(), printer.height()))
        sayFailed(parent);
}

void preview(const Document& document, QWidget* parent) {
    QPrinter printer(QPrinter::HighResolution);
    setSheet(printer, sheetOf(document));
    QPrintPreviewDialog dialog(&printer, parent);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&](QPrinter* target) { paintDocument(*target, document, target->width(), target->height()); });
    dialog.exec();
}

void savePdf(const Document& document, const QString& title, QWidget* parent) {
    const QString file = askFile(title, parent);
    if (!file.isEmpty() && !renderPdf(document, file))
        boxes::message(parent, QStringLiteral("The file %1 could not be written.").arg(file), Icon::Exclamation, {});
}

void printWidget(QWidget& widget, const QString& title, QWidget* parent) {
    const QPixmap picture = widget.grab();
    QPrinter printer(QPrinter::HighResolution);
    setSheet(printer, sheetFor(picture));
    if (choosePrinter(printer, title, parent) && !drawPicture(printer, picture))
        sayFailed(parent);
}

bool widgetToPdf(QWidget& widget, const QString& file) {
    const QPixmap picture = widget.grab();
    QPrinter printer(QPrinter::HighResolution);
    setSheet(printer, sheetFor(picture));
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    return drawPicture(printer, picture);
}

} // namespace orvane::printing
