#pragma once

#include <QColor>
#include <QIcon>

class QApplication;
class QWidget;

/// How the program looks: one palette, one spacing, one accent.
namespace orvane::look {

constexpr int spacing = 8;    ///< between neighbours, pixels
constexpr int rowSpacing = 6; ///< between rows, pixels
constexpr int margin = 12;    ///< around a form, pixels

/// What a colour is for. Each has a shade for a light and one for a dark desktop.
enum class Tone {
    Window,
    Base,
    Stripe, ///< of every second row
    Card,
    Ink,
    Quiet,   ///< ink of labels beside what matters
    Faded,   ///< ink of what cannot be used
    Accent,  ///< behind white ink: title bars, the chosen row, the button that a form is for
    Figure,  ///< ink of the one figure that matters
    Pressed, ///< the accent under the pointer
    Focus,   ///< around the button that has the focus
    Resting, ///< the accent of what cannot be used
    RestingInk,
    Edge,     ///< around cards and groups
    Head,     ///< behind the heads of a grid
    HeadEdge, ///< below them
    ReadOnly, ///< behind what cannot be typed into
    Error,    ///< around a text that cannot be read
    ErrorBack,
    Around,      ///< behind windows and paper
    Hint,
    Chosen, ///< behind the chosen row of a list that has not the focus
};
QColor color(Tone tone);
/// Black or white ink, whichever can be read on this background.
QColor inkOn(const QColor& background);
QIcon programIcon();

/// Whether the desktop is a dark one, by its own palette or by what it says to programs of every kind. Asked before
/// apply(), which puts the program's palette in place of the desktop's.
bool isDesktopDark();

/// Style, palette and style sheet of the whole program. Letters keep the size that the desktop gives.
void apply(QApplication& application, bool dark);

int lineHeight(); ///< of everything that takes one line, pixels, by the letters

/// The width of a text of that many usual characters in the widget's font, in pixels.
int charactersWidth(const QWidget& widget, int characters);

/// A text of the database or of its user as a hint: never read as markup.
QString plainHint(const QString& text);

/// Sets a property that the style sheet asks for and has the widget drawn by it.
void mark(QWidget& widget, const char* property, bool on = true);

} // namespace orvane::look
