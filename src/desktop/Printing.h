#pragma once

#include "desktop/PagePainter.h"

class QWidget;

/// Printing with the dialogs that its user needs. Where no printer is set up, the document goes into a PDF that its
/// user names.
namespace orvane::printing {

/// Prints the document; `title` names the job and the proposed file.
void print(const Document& document, const QString& title, QWidget* parent);
void preview(const Document& document, QWidget* parent);
void savePdf(const Document& document, const QString& title, QWidget* parent);

/// Prints the picture of a window, as large as the paper allows.
void printWidget(QWidget& widget, const QString& title, QWidget* parent);
/// The same into a PDF without asking. False: the file cannot be written.
bool widgetToPdf(QWidget& widget, const QString& file);

} // namespace orvane::printing
