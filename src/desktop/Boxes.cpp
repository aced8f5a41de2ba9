#include "desktop/Boxes.h"

#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>

namespace orvane::boxes {

namespace {

constexpr int longText = 90;      ///< characters from which on a text can be marked and copied
constexpr int longestText = 1500; ///< what a box shows; the whole then stands under its details
constexpr int longestLines = 24;

QMessageBox::Icon iconOf(Icon icon) {
    switch (icon) {
    case Icon::None:
        return QMessageBox::NoIcon;
    case Icon::Information:
        return QMessageBox::Information;
    case Icon::Exclamation:
        return QMessageBox::Warning;
    case Icon::Critical:
        return QMessageBox::Critical;
    case Icon::Question:
        return QMessageBox::Question;
    }
    return QMessageBox::NoIcon;
}

QString titleOf(const QString& title) {
    return title.isEmpty() ? "Billing" : title;
}

void setWords(QMessageBox& box, const QString& text) {
    // A text of the database or of its user is never read as markup.
    box.setTextFormat(Qt::PlainText);
    const QStringList lines = text.split(QLatin1Char('\n'));
    if (text.size() <= longestText && lines.size() <= longestLines) {
        box.setText(text);
    } else {
        box.setText(lines.mid(0, longestLines).join(QLatin1Char('\n')).left(longestText) + " …");
        box.setDetailedText(text);
    }
    if (text.size() > longText)
        box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

/// A name of the database is no markup here either, which the box's own format leaves out.
void setDetail(QMessageBox& box, const QString& detail) {
    box.setInformativeText(detail);
    for (QLabel* label : box.findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);
}

} // namespace

void message(QWidget* parent, const QString& text, Icon icon, const QString& title) {
    QMessageBox box(iconOf(icon), titleOf(title), {}, QMessageBox::Ok, parent);
    setWords(box, text);
    box.exec();
}

bool question(QWidget* parent, const QString& text, const QString& title, Consent consent, const QString& detail) {
    QMessageBox box(QMessageBox::Question, titleOf(title), {}, QMessageBox::Yes | QMessageBox::No, parent);
    setWords(box, text);
    setDetail(box, detail);
    box.setDefaultButton(consent == Consent::Destroys ? QMessageBox::No : QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

bool confirmLoss(QWidget* parent, const QString& caption) {
    QMessageBox box(QMessageBox::Warning, titleOf(caption), {}, QMessageBox::Yes | QMessageBox::No, parent);
    setWords(box, "What was entered here is not saved. Close without saving it?");
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

std::optional<QString> input(QWidget* parent, const QString& prompt, const QString& title, const QString& initial) {
    QInputDialog dialog(parent);
    dialog.setInputMode(QInputDialog::TextInput);
    dialog.setWindowTitle(titleOf(title));
    dialog.setLabelText(prompt);
    for (QLabel* label : dialog.findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);
    dialog.setTextValue(initial);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.textValue();
}

} // namespace orvane::boxes
