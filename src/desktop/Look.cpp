#include "desktop/Look.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <QTextDocument>
#include <QWidget>

namespace orvane::look {

namespace {

QPalette palette() {
    QPalette palette;
    const QColor ink(0x1f, 0x29, 0x30);
    palette.setColor(QPalette::Window, QColor(0xf3, 0xf4, 0xf6));
    palette.setColor(QPalette::WindowText, ink);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf2, 0xf6, 0xf7));
    palette.setColor(QPalette::Text, ink);
    palette.setColor(QPalette::Button, QColor(0xf3, 0xf4, 0xf6));
    palette.setColor(QPalette::ButtonText, ink);
    palette.setColor(QPalette::ToolTipBase, QColor(0xff, 0xfb, 0xe6));
    palette.setColor(QPalette::ToolTipText, ink);
    palette.setColor(QPalette::PlaceholderText, QColor(0x9a, 0xa5, 0xad));
    palette.setColor(QPalette::Highlight, accent());
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, accent());
    // A list that has not the focus shows its chosen row faintly.
    palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(0xcf, 0xe3, 0xe1));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, ink);
    const QColor faded(0x92, 0x9c, 0xa4);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faded);
    palette.setColor(QPalette::Disabled, QPalette::Base, readOnly());
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0xb8, 0xc4, 0xca));
    return palette;
}

const QString styleSheet = QStringLiteral(R"(
QLabel[quiet="true"], QLabel[heading="true"] { color: #5d6b76; }
QLabel[strong="true"] { font-weight: bold; }
QLabel[large="true"], QLineEdit[large="true"] { font-weight: bold; color: #1f6f6b; font-size: %1pt; }
QFrame[card="true"] { background: white; border: 1px solid #d3dade; border-radius: 5px; }
QFrame[rule="true"] { background: #1f2930; border: none; max-height: 1px; min-height: 1px; }
QLineEdit[flat="true"] { border: none; background: transparent; font-weight: bold; padding: 0; }
QLineEdit[invalid="true"] { border: 1px solid #c0392b; border-radius: 2px; background: #fdecea; padding: 2px; }
QTableView, QTreeView, QListView { border: 1px solid #c4cdd2; padding: 1px; }
QTableView:focus, QTreeView:focus, QListView:focus { border: 2px solid #1f6f6b; padding: 0; }
QPushButton { padding: 4px 7px; }
QPushButton[primary="true"] { background: #1f6f6b; color: white; border: 1px solid #185a57; border-radius: 3px;
    padding: 4px 10px; font-weight: bold; }
QPushButton[primary="true"]:hover { background: #257f7a; }
QPushButton[primary="true"]:pressed { background: #185a57; }
QPushButton[primary="true"]:focus { border: 2px solid #0d3b39; padding: 3px 9px; }
QPushButton[primary="true"]:disabled { background: #b4cbc9; border-color: #a7bfbd; color: #eef4f4; }
QGroupBox { font-weight: bold; border: 1px solid #d3dade; border-radius: 5px; margin-top: 9px; padding-top: 6px; }
QGroupBox::title { subcontrol-origin: margin; left: 10px; padding: 0 4px; color: #1f6f6b; }
QGroupBox[bare="true"] { margin-top: 0; padding-top: 0; }
QHeaderView::section { background: #edf0f2; border: none; border-right: 1px solid #d3dade;
    border-bottom: 1px solid #c4cdd2; padding: 3px 4px; font-weight: bold; }
)");

} // namespace

QColor accent() {
    return {0x1f, 0x6f, 0x6b};
}

QColor readOnly() {
    return {0xec, 0xef, 0xf1};
}

QIcon programIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Qt::white, size / 16.0));
        painter.setBrush(accent());
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

void apply(QApplication& application) {
    application.setStyle(QStyleFactory::create("Fusion"));
    application.setPalette(palette());
    application.setStyleSheet(styleSheet.arg(application.font().pointSizeF() * 1.7));
    application.setWindowIcon(programIcon());
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
