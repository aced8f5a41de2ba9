#pragma once

#include "desktop/Look.h"
#include "desktop/Mnemonics.h"

#include <QLabel>
#include <QPushButton>
#include <QStyleOptionButton>

class QShortcut;

namespace orvane {

/// How words show their key: Qt underlines the letter of an Alt key, these underline that of an Alt+Shift key, twice.
void underlineTwice(QWidget& widget, QRect words, const QString& text, QChar letter);

/// The name of a field, which is its buddy: the key of the name brings the focus there.
class KeyLabel : public QLabel {
    Q_OBJECT

public:
    explicit KeyLabel(QWidget* parent);
    void setWords(const QString& words, Mnemonics::Key key); ///< as Mnemonics::Show has them
    Mnemonics::Key key() const { return m_key; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Mnemonics::Key m_key;
    QShortcut* m_shifted;
};

/// A button or a box to tick with a key; `Contents`: where its style puts the words.
template <typename Button, QStyle::SubElement Contents, typename Option>
class Keyed : public Button {
public:
    using Button::Button;
    void setWords(const QString& words, Mnemonics::Key key) { ///< as Mnemonics::Show has them
        m_key = key;
        this->setText(words);
        if (key.shifted)
            this->setShortcut(key.sequence());
    }

protected:
    void paintEvent(QPaintEvent* event) override {
        Button::paintEvent(event);
        if (!m_key.shifted)
            return;
        Option option;
        this->initStyleOption(&option);
        const QRect room = this->style()->subElementRect(Contents, &option, this);
        const auto side = Contents == QStyle::SE_PushButtonContents ? Qt::AlignHCenter : Qt::AlignLeft;
        underlineTwice(*this,
                       this->style()->itemTextRect(this->fontMetrics(), room,
                                                   side | Qt::AlignVCenter | Qt::TextShowMnemonic, true, this->text()),
                       this->text(), m_key.letter);
    }

private:
    Mnemonics::Key m_key;
};

/// A push button is never narrower than its words, nor than its neighbours with few words.
class WordButton : public Keyed<QPushButton, QStyle::SE_PushButtonContents, QStyleOptionButton> {
public:
    using Keyed::Keyed;
    QSize sizeHint() const override { return QPushButton::sizeHint().expandedTo({narrowest, look::lineHeight()}); }
    QSize minimumSizeHint() const override { return sizeHint(); }

private:
    static constexpr int narrowest = 76; ///< pixels
};

template <typename Button>
Mnemonics::Show showKey(Button& button) {
    return [&button](const QString& words, Mnemonics::Key key) { button.setWords(words, key); };
}

} // namespace orvane
