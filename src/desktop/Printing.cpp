#include "desktop/Printing.h"

#include "desktop/Boxes.h"

#include <QDir>
#include <QFileDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QStandardPaths>

namespace orvane::printing {

namespace {

void setSheet(QPrinter& printer, QSizeF millimetres) {
    printer.setPageSize(QPageSize(millimetres, QPageSize::Millimeter));
    printer.setFullPage(true);
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

/// Of several pages a range can be chosen.
bool askPrinter(QPrinter& printer, const Job& job, int pages) {
    const QString remembered = job.memory.value(printerKey).toString();
    if (QPrinterInfo::availablePrinterNames().contains(remembered))
        printer.setPrinterName(remembered);
    QPrintDialog dialog(&printer, job.parent);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, pages > 1);
    if (pages > 1)
        dialog.setMinMax(1, pages);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    job.memory.keep(printerKey, printer.printerName());
    return true;
}

/// Lets the user choose the printer, or the file where there is no printer. False: he has cancelled.
bool choosePrinter(QPrinter& printer, const Job& job, int pages = 1) {
    printer.setDocName(job.name);
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        return askPrinter(printer, job, pages);
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

/// What a user has called off is no fault.
struct CalledOff {};

constexpr int longJob = 500; ///< milliseconds before it says how far it is

/// Paints the pages and says meanwhile which one it is at; the user may call it off. False: the device has refused.
bool withProgress(const Document& document, const Job& job, const std::function<bool(const Document&)>& paint) {
    QProgressDialog progress("Page 1", "Cancel", 0, document.count, job.parent);
    progress.setWindowTitle(job.name);
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(longJob);
    Document told = document;
    told.page = [&](int number) {
        const int done = number - document.first;
        progress.setLabelText(QStringLiteral("Page %L1 of %L2").arg(done + 1).arg(document.count));
        progress.setValue(done);
        if (progress.wasCanceled())
            throw CalledOff();
        return document.page(number);
    };
    try {
        return paint(told);
    } catch (const CalledOff&) {
        return true;
    }
}

/// A document that breaks off is not printed by halves, where the printer lets a job be taken back.
Document abortable(const Document& document, QPrinter& printer) {
    Document guarded = document;
    guarded.page = [&document, &printer](int number) {
        try {
            return document.page(number);
        } catch (...) {
            printer.abort();
            throw;
        }
    };
    return guarded;
}

/// Of a document that broke off no half file is left.
bool writtenWhole(const Document& pages, const QString& file) {
    try {
        return renderPdf(pages, file);
    } catch (...) {
        QFile::remove(file);
        throw;
    }
}

/// Those that were chosen in the printer's dialog.
Document chosenPages(const Document& document, const QPrinter& printer) {
    Document chosen = document;
    if (printer.printRange() != QPrinter::PageRange || printer.fromPage() < 1)
        return chosen;
    chosen.first = std::min(printer.fromPage(), document.count) - 1;
    chosen.count = std::clamp(printer.toPage(), chosen.first + 1, document.count) - chosen.first;
    return chosen;
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
    setSheet(printer, document.sheet());
    if (!choosePrinter(printer, job, document.count))
        return;
    const Document chosen = chosenPages(document, printer);
    const bool done = withProgress(
        chosen, job, [&](const Document& pages) { return paintDocument(printer, abortable(pages, printer)); });
    if (!done)
        sayFailed(job.parent);
}

void savePdf(const Document& document, const Job& job) {
    const QString file = askFile(job);
    if (!file.isEmpty() &&
        !withProgress(document, job, [&](const Document& pages) { return writtenWhole(pages, file); }))
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
