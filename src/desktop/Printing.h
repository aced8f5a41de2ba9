#pragma once

#include "desktop/Memory.h"
#include "desktop/PagePainter.h"

class QWidget;

/// Printing with the dialogs that its user needs. Where no printer is set up it says so and offers a PDF.
namespace orvane::printing {

struct Job {
    QString name;    ///< of the job, and of the file that is proposed
    QWidget* parent; ///< of the dialogs
    Memory& memory;  ///< of the last folder and printer
};

/// Of several pages a range can be chosen; a long job says how far it is, and can be called off.
void print(const Document& document, const Job& job);
void savePdf(const Document& document, const Job& job);

/// Prints the picture of a window, as large as the paper allows.
void printWidget(QWidget& widget, const Job& job);
/// The same into a PDF without asking. False: the file cannot be written.
bool widgetToPdf(QWidget& widget, const QString& file);

} // namespace orvane::printing
