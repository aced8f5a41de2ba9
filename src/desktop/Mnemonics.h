#pragma once

#include <QString>
#include <QVector>
#include <functional>

namespace orvane {

/// Gives each label, button and tab of a form the letter that it answers to with Alt. What is pressed has its letter
/// for itself or has none; fields share one when their words have no free letter left (Alt then goes from one to the
/// next), and take one from a button rather than have none. What lies on different pages of a tab strip is never in
/// sight together and does not clash.
class Mnemonics {
public:
    explicit Mnemonics(const QString& reserved = {});

    enum Kind { Press, Field };
    /// `caption` as its form writes it ("&" before the letter it asks for); `show` takes the caption with its letter
    /// marked. Gives a handle for captionChanged.
    int add(Kind kind, const QString& caption, const std::function<void(const QString&)>& show);
    /// What is added from now on lies on this page; 0: on none, in sight with every other.
    void setPage(int page) { m_page = page; }
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
        int page;
        QChar letter;
        bool wished = false; ///< the letter is the one that its caption asks for
    };
    /// The items in sight with this one that have the letter.
    QVector<Item*> holders(QChar letter, const Item& item);
    QChar freeLetter(const Item& item);
    QChar sharedLetter(const Item& field);
    /// Takes a letter from buttons that have not asked for it, from one that finds another if it can.
    void takeFromButtons(Item& field);

    QString m_reserved;
    QVector<Item> m_items;
    int m_page = 0;
};

} // namespace orvane
