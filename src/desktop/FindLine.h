#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QToolButton;

namespace orvane {

/// The line below what is shown that finds a text in it: Enter the next one, Shift+Enter the one before, round the end.
/// Hidden until it is asked for; Esc goes back to what it searches.
class FindLine : public QWidget {
    Q_OBJECT

public:
    /// `place`: what it searches, in words. `searched`: where Esc leaves the focus.
    FindLine(const QString& place, QWidget& searched, QWidget* parent);
    void begin();
    QString text() const;

protected:
    virtual void go(bool forward) = 0; ///< to the next hit, or the one before; the text is not empty
    virtual void left() {}
    void say(const QString& words);
    void keyPressEvent(QKeyEvent* event) override;

Q_SIGNALS:
    void textChanged();

private:
    QToolButton* button(Qt::ArrowType arrow, const QString& name, bool forward);
    void wanted(bool forward);

    QWidget& m_searched;
    QLineEdit* m_text;
    QLabel* m_said;
};

} // namespace orvane
