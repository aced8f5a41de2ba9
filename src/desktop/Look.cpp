#include "desktop/Look.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>
#include <QFontInfo>
#include <QFontMetrics>
#include <QPainter>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <QTextDocument>
#include <QWidget>
#include <algorithm>
#include <iterator>

namespace orvane::look {

namespace {

struct Shades {
    const char* name; ///< in the style sheet, between "@" and ";"
    QRgb light, dark;
};

/// In the order of Tone.
constexpr Shades shadesOf[] = {
    {"window", 0xfff3f4f6, 0xff30363c},     {"base", 0xffffffff, 0xff1d2226},     {"stripe", 0xfff2f6f7, 0xff22282d},
    {"card", 0xffffffff, 0xff282e33},       {"ink", 0xff1f2930, 0xffe4e8ea},      {"quiet", 0xff5d6b76, 0xffadb8c0},
    {"faded", 0xff808a92, 0xff8f999f},      {"accent", 0xff1f6f6b, 0xff1f7671},   {"figure", 0xff1f6f6b, 0xff6fd0c8},
    {"pressed", 0xff185a57, 0xff185a57},    {"focus", 0xff0d3b39, 0xffbfeeea},    {"resting", 0xff6b8f8d, 0xff3c5553},
    {"restingInk", 0xffffffff, 0xffa9bcba}, {"edge", 0xffd3dade, 0xff505a62},     {"head", 0xffedf0f2, 0xff3a4248},
    {"headEdge", 0xffc4cdd2, 0xff59646c},   {"readOnly", 0xffeceff1, 0xff373e45}, {"error", 0xffc0392b, 0xffec8377},
    {"errorBack", 0xfffdecea, 0xff4a2523},  {"around", 0xffdfe4e8, 0xff1a1e22},   {"hint", 0xfffffbe6, 0xff3b3a2c},
    {"chosen", 0xffcfe3e1, 0xff2b4a48},
};

QColor shade(Tone tone, bool dark) {
    const Shades& shades = shadesOf[int(tone)];
    return QColor(dark ? shades.dark : shades.light);
}

QPalette palette(bool dark) {
    const auto of = [dark](Tone tone) { return shade(tone, dark); };
    QPalette palette(of(Tone::Window), of(Tone::Window));
    const std::pair<QPalette::ColorRole, Tone> roles[] = {
        {QPalette::WindowText, Tone::Ink},       {QPalette::Base, Tone::Base},
        {QPalette::AlternateBase, Tone::Stripe}, {QPalette::Text, Tone::Ink},
        {QPalette::ButtonText, Tone::Ink},       {QPalette::ToolTipBase, Tone::Hint},
        {QPalette::ToolTipText, Tone::Ink},      {QPalette::PlaceholderText, Tone::Faded},
        {QPalette::Highlight, Tone::Accent},     {QPalette::Link, Tone::Figure},
    };
    for (const auto& [role, tone] : roles)
        palette.setColor(role, of(tone));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    // A list that has not the focus shows its chosen row faintly.
    palette.setColor(QPalette::Inactive, QPalette::Highlight, of(Tone::Chosen));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, of(Tone::Ink));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, of(Tone::Faded));
    palette.setColor(QPalette::Disabled, QPalette::Base, of(Tone::ReadOnly));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, of(Tone::Resting));
    return palette;
}

/// Sizes are shares of the letters that the desktop gives: %1 is the size of the one figure that matters, in points.
const QString styleSheet = QStringLiteral(R"(
QLabel[quiet="true"], QLabel[heading="true"] { color: @quiet; }
QLabel[strong="true"] { font-weight: bold; }
QLabel[large="true"], QLineEdit[large="true"] { font-weight: bold; color: @figure; font-size: %1pt; }
QFrame[card="true"] { background: @card; border: 1px solid @edge; border-radius: 5px; }
QFrame[rule="true"] { background: @ink; border: none; max-height: 1px; min-height: 1px; }
QLineEdit[flat="true"] { border: none; background: transparent; font-weight: bold; padding: 0; }
QLineEdit[invalid="true"] { border: 2px dashed @error; background: @errorBack; padding: 1px; }
QTableView, QTreeView, QListView { border: 1px solid @headEdge; padding: 1px; }
QTableView:focus, QTreeView:focus, QListView:focus { border: 2px solid @accent; padding: 0; }
QPushButton { padding: 4px 7px; }
QPushButton[primary="true"] { background: @accent; color: white; border: 1px solid @pressed; border-radius: 3px;
    padding: 4px 10px; font-weight: bold; }
QPushButton[primary="true"]:hover { background: @pressed; }
QPushButton[primary="true"]:pressed { background: @pressed; }
QPushButton[primary="true"]:focus { border: 2px solid @focus; padding: 3px 9px; }
QPushButton[primary="true"]:disabled { background: @resting; border-color: @resting; color: @restingInk; }
QGroupBox { font-weight: bold; border: 1px solid @edge; border-radius: 5px; margin-top: 9px; padding-top: 6px; }
QGroupBox::title { subcontrol-origin: margin; left: 10px; padding: 0 4px; color: @figure; }
QGroupBox[bare="true"] { margin-top: 0; padding-top: 0; }
QHeaderView::section { background: @head; border: none; border-right: 1px solid @edge;
    border-bottom: 1px solid @headEdge; padding: 3px 4px; font-weight: bold; }
)");

QString styled(bool dark, double figurePoints) {
    QString sheet = styleSheet.arg(figurePoints);
    for (int tone = 0; tone < int(std::size(shadesOf)); ++tone)
        sheet.replace(QStringLiteral("@%1;").arg(QLatin1String(shadesOf[tone].name)),
                      shade(Tone(tone), dark).name() + ';');
    return sheet;
}

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < 128;
}

/// What the desktop says to programs of every kind. Without a desktop that says so: not dark.
bool desktopSaysDark() {
    constexpr int patience = 500; // milliseconds
    QDBusMessage ask = QDBusMessage::createMethodCall(
        "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "Read");
    ask << QStringLiteral("org.freedesktop.appearance") << QStringLiteral("color-scheme");
    const QDBusReply<QDBusVariant> answer = QDBusConnection::sessionBus().call(ask, QDBus::Block, patience);
    if (!answer.isValid())
        return false;
    // The answer is wrapped twice; 1 stands for dark.
    return answer.value().variant().value<QDBusVariant>().variant().toUInt() == 1;
}

} // namespace

QColor color(Tone tone) {
    return shade(tone, isDark(QApplication::palette()));
}

QColor inkOn(const QColor& background) {
    return qGray(background.rgb()) < 128 ? QColor(Qt::white) : shade(Tone::Ink, false);
}

bool isDesktopDark() {
    return isDark(QGuiApplication::palette()) || desktopSaysDark();
}

QIcon programIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Qt::white, size / 16.0));
        painter.setBrush(shade(Tone::Accent, false));
        painter.drawRoundedRect(QRectF(0.5, 0.5, size - 1, size - 1), size / 6.0, size / 6.0);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        const double arm = size / 4.5, reach = size * 0.68, start = (size - reach) / 2, middle = (size - arm) / 2;
        painter.drawRect(QRectF(middle, start, arm, reach));
        painter.drawRect(QRectF(start, middle, reach, arm));
        icon.addPixmap(picture);
    }
    return icon;
}

void apply(QApplication& application, bool dark) {
    application.setStyle(QStyleFactory::create("Fusion"));
    application.setPalette(palette(dark));
    application.setStyleSheet(styled(dark, QFontInfo(application.font()).pointSizeF() * 1.7));
    application.setWindowIcon(programIcon());
}

int lineHeight() {
    return std::max(24, QFontMetrics(QApplication::font()).height() + 8);
}

int charactersWidth(const QWidget& widget, int characters) {
    return QFontMetrics(widget.font()).averageCharWidth() * characters;
}

QString plainHint(const QString& text) {
    return Qt::mightBeRichText(text) ? QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped()) : text;
}

void mark(QWidget& widget, const char* property, bool on) {
    if (widget.property(property).toBool() == on && widget.property(property).isValid())
        return;
    widget.setProperty(property, on);
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
}

} // namespace orvane::look
