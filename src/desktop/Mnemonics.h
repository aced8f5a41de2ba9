#pragma once

#include <QString>
#include <QVector>
#include <functional>

namespace orvane {

/// Gives each label, button and tab of a form the letter that it answers to with Alt. What is pressed has its letter
/// for itself, for which others move to other letters of theirs; fields share one when their words have no free letter
/// left (Alt then goes from one to the next). What is pressed and finds none in its words gets another letter or digit,
/// which its hint names. What lies on different pages of a tab strip is never in sight together and
/// does not clash.
class Mnemonics {
public:
    explicit Mnemonics(const QString& reserved = {});

    enum Kind { First, Press, Field }; ///< a tab and the button that saves; what else is pressed; a field
    /// Shows the caption with its letter marked, where it has that letter.
    using Show = std::function<void(const QString& marked, QChar letter)>;
    /// `caption` as its form writes it ("&" before the letter it asks for). Gives a handle for captionChanged.
    int add(Kind kind, const QString& caption, const Show& show);
    /// What is added from now on lies on this page; 0: on none, in sight with every other.
    void setPage(int page) { m_page = page; }
    void assign();
    /// The same thing says something else now: it keeps its letter where the new caption has it or has no free one.
    void captionChanged(int handle, const QString& caption);
    QChar letter(int handle) const { return m_items.at(handle).letter; } ///< null: none
    QString letters() const;                                             ///< all that are taken, the reserved ones too

    static QString plain(const QString& caption); ///< without its mark, "&&" as "&"
    static QChar asked(const QString& caption);   ///< the letter behind the mark, upper case; null when there is none
    /// A plain text, ready for a widget, with the letter marked where it has it.
    static QString marked(const QString& text, QChar letter);

private:
    struct Item {
        Kind kind;
        QString caption;
        Show show;
        int page;
        QChar letter;
        bool wished = false; ///< the letter is the one that its caption asks for
    };
    /// The items in sight with this one that have the letter.
    QVector<Item*> holders(QChar letter, const Item& item);
    QChar freeLetter(const Item& item);
    QChar sharedLetter(const Item& field);
    /// Gives the item a letter whose holders find other ones; those that asked for theirs only where `wishedToo`.
    bool takeOver(Item& item, QString& tried, bool wishedToo);
    void assignTo(Item& item);
    void assignAll(Kind kind, bool onPages);
    void grantWishes(Kind kind);
    /// Takes a letter from fields, whose turn comes after what is pressed.
    void displaceFields(Item& pressed);
    QChar foreignLetter(const Item& item);
    QVector<QChar> lettersNow() const; ///< of each item

    QString m_reserved;
    QVector<Item> m_items;
    int m_page = 0;
};

} // namespace orvane
