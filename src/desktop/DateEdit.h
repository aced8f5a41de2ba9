#pragma once

#include <QDate>
#include <QWidget>
#include <optional>

class QFrame;
class QLineEdit;
class QToolButton;

namespace orvane {

/// A date typed as dd/MM/yyyy or picked from a calendar, which can be empty. A text that is no date stays in sight,
/// marked, and never becomes the value.
class DateEdit : public QWidget {
    Q_OBJECT

public:
    explicit DateEdit(QWidget* parent = nullptr);

    QDate date() const { return m_date; } ///< the invalid date: empty
    void setDate(QDate date);             ///< as code does: no signal, replaces what is typed
    void setLocked(bool locked);
    QLineEdit* lineEdit() const { return m_line; }
    /// Takes over what is typed, an emptied field too. False: the text is no date; it is marked and a hint says so.
    bool settle();
    void openCalendar();
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// Day, month and year, parted by / - . or blanks or, in two digits each, by nothing; the year may have two digits
    /// or be left out; "t" is today. The invalid date for an empty text, nothing for what is no date.
    static std::optional<QDate> parse(const QString& text);

Q_SIGNALS:
    void dateEdited(QDate date); ///< the user has changed the value

private:
    void typed(const QString& text);
    void finish();
    void take(QDate date);
    void showText();
    void step(int days);
    QFrame* makeCalendar();

    QLineEdit* m_line;
    QToolButton* m_button;
    QDate m_date;
};

} // namespace orvane
