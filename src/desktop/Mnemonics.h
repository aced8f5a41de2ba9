#pragma once

#include <QString>
#include <QVector>
#include <functional>

namespace orvane {

/// Gives each label, button and tab of a form the letter that it answers to with Alt. Letters of what is pressed are
/// unique; labels of fields share one only when their words have no free letter left (Alt then goes from one to the
/// next).
class Mnemonics {
public:
    explicit Mnemonics(const QString& reserved = {});

    enum Kind { Press, Field };
    /// `caption` as its form writes it ("&" before the letter it asks for); `show` takes the caption with its letter
    /// marked. Gives a handle for captionChanged.
    int add(Kind kind, const QString& caption, const std::function<void(const QString&)>& show);
    void assign();
    /// The same thing says something else now: it keeps its letter where the new caption has it.
    void captionChanged(int handle, const QString& caption);
    QChar letter(int handle) const { return m_items.at(handle).letter; } ///< null: none
    QString letters() const;                                             ///< all that are taken, the reserved ones too

    static QString plain(const QString& caption); ///< without its mark, "&&" as "&"
    static QChar asked(const QString& caption);   ///< the letter behind the mark, upper case; null when there is none
    static QString marked(const QString& text,
                          QChar letter); ///< a plain text, ready for a widget, with the letter marked

private:
    struct Item {
        Kind kind;
        QString caption;
        std::function<void(const QString&)> show;
        QChar letter;
    };
    QChar choose(const QString& text, bool mayShare) const;
    bool isFree(QChar letter) const;

    QString m_reserved;
    QVector<Item> m_items;
};

} // namespace orvane
