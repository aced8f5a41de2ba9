#pragma once

#include <QColor>
#include <QIcon>

class QApplication;
class QWidget;

/// How the program looks: one palette, one spacing, one accent.
namespace orvane::look {

constexpr int spacing = 8;     ///< between neighbours, pixels
constexpr int rowSpacing = 6;  ///< between rows, pixels
constexpr int lineHeight = 24; ///< of everything that takes one line, pixels
constexpr int margin = 12;     ///< around a form, pixels

QColor accent(); ///< of title bars, the chosen row and the one figure that matters

QColor readOnly(); ///< background of what cannot be typed into
QIcon programIcon();

/// Style, palette and style sheet of the whole program.
void apply(QApplication& application);

/// The width of a text of that many usual characters in the widget's font, in pixels.
int charactersWidth(const QWidget& widget, int characters);

/// A text of the database or of its user as a hint: never read as markup.
QString plainHint(const QString& text);

/// Sets a property that the style sheet asks for and has the widget drawn by it.
void mark(QWidget& widget, const char* property, bool on = true);

} // namespace orvane::look
