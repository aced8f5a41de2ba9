#include "desktop/Printing.h"

#include "desktop/Boxes.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QStandardPaths>

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

const QString folderKey = "printing/folder", printerKey = "printing/printer";

QString proposedFile(const Job& job) {
    static const QRegularExpression unfit(R"([\\/:*?"<>|\x00-\x1f])");
    const QString remembered = job.memory.value(folderKey).toString();
    const QString folder = !remembered.isEmpty() && QDir(remembered).exists()
                               ? remembered
                               : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QDir(folder).filePath(QString(job.name).replace(unfit, "-") + ".pdf");
}

/// Empty: cancelled.
QString askFile(const Job& job) {
    QFileDialog dialog(job.parent, "Save as PDF", proposedFile(job), "PDF (*.pdf)");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // By the dialog itself, so that it asks about a file that is there.
    dialog.setDefaultSuffix("pdf");
    if (dialog.exec() != QDialog::Accepted)
        return {};
    const QString file = dialog.selectedFiles().value(0);
    job.memory.keep(folderKey, QFileInfo(file).absolutePath());
    return file;
}

bool askPrinter(QPrinter& printer, const Job& job) {
    const QString remembered = job.memory.value(printerKey).toString();
    if (QPrinterInfo::availablePrinterNames().contains(remembered))
        printer.setPrinterName(remembered);
    if (QPrintDialog(&printer, job.parent).exec() != QDialog::Accepted)
        return false;
    job.memory.keep(printerKey, printer.printerName());
    return true;
}

/// Lets the user choose the printer, or the file where there is no printer. False: he has cancelled.
bool choosePrinter(QPrinter& printer, const Job& job) {
    printer.setDocName(job.name);
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        return askPrinter(printer, job);
    if (!boxes::question(job.parent, "No printer is set up on this computer. Save the document as a PDF instead?", {}))
        return false;
    const QString file = askFile(job);
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

void print(const Document& document, const Job& job) {
    QPrinter printer(QPrinter::HighResolution);
    setSheet(printer, sheetOf(document));
    if (choosePrinter(printer, job) && !paintDocument(printer, document))
        sayFailed(job.parent);
}

void preview(const Document& document, const Job& job) {
    QPrinter printer(QPrinter::HighResolution);
    setSheet(printer, sheetOf(document));
    QPrintPreviewDialog dialog(&printer, job.parent);
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&](QPrinter* target) { paintDocument(*target, document); });
    const QString printText = QCoreApplication::translate("QPrintPreviewDialog", "Print");
    for (QAction* action : dialog.findChildren<QAction*>()) {
        if (action->text() != printText)
            continue;
        // The dialog's own way knows no proposed file and says nothing where no printer is set up.
        QObject::disconnect(action, &QAction::triggered, nullptr, nullptr);
        QObject::connect(action, &QAction::triggered, &dialog, &QDialog::accept);
    }
    if (dialog.exec() == QDialog::Accepted)
        print(document, job);
}

void savePdf(const Document& document, const Job& job) {
    const QString file = askFile(job);
    if (!file.isEmpty() && !renderPdf(document, file))
        boxes::message(job.parent, QStringLiteral("The file %1 could not be written.").arg(file), Icon::Exclamation,
                       {});
}

void printWidget(QWidget& widget, const Job& job) {
    const QPixmap picture = widget.grab();
    QPrinter printer(QPrinter::HighResolution);
    setSheet(printer, sheetFor(picture));
    if (choosePrinter(printer, job) && !drawPicture(printer, picture))
        sayFailed(job.parent);
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
