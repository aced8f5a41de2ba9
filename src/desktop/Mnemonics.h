#pragma once

#include <QKeySequence>
#include <QString>
#include <QVector>
#include <functional>

namespace orvane {

/// Gives each label, button and tab of a form the key that it answers to: Alt and a letter of its words, or Alt+Shift
/// and one, or Alt and another letter or a digit, which then stands behind the words: "OK (J)". No two that are in
/// sight together have one key; what lies on different pages of a tab strip never is. Tabs come first, then what is
/// pressed, then fields; who comes later moves others to other letters of theirs.
class Mnemonics {
public:
    explicit Mnemonics(const QString& reserved = {});

    /// A tab and the button that saves, which answer to Alt alone; what else is pressed; a field; an entry of a menu,
    /// which answers to the letter itself.
    enum Kind { First, Press, Field, Entry };
    struct Key {
        QChar letter;         ///< null: none
        bool shifted = false; ///< with Alt+Shift, not with Alt alone
        bool operator==(const Key&) const = default;
        QKeySequence sequence() const; ///< empty: none
    };
    /// Shows the words of a caption as a widget takes them: the letter behind "&", but that of an Alt+Shift key
    /// unmarked.
    using Show = std::function<void(const QString& words, Key key)>;
    /// `caption` as its form writes it ("&" before the letter it asks for). Gives a handle for captionChanged.
    int add(Kind kind, const QString& caption, const Show& show);
    /// What is added from now on lies on this page; 0: on none, in sight with every other.
    void setPage(int page) { m_page = page; }
    void assign();
    /// The same thing says something else now: it keeps its letter where the new caption has it or has no free one.
    void captionChanged(int handle, const QString& caption);
    QString letters() const; ///< all that are taken with Alt alone, the reserved ones too

    static QString plain(const QString& caption); ///< without its mark, "&&" as "&"
    static QChar asked(const QString& caption);   ///< the letter behind the mark, upper case; null when there is none
    /// A plain text, ready for a widget, with the letter marked; a text without it has it behind: "OK (&J)". Null:
    /// none.
    static QString marked(const QString& text, QChar letter);
    static qsizetype placeOf(const QString& text, QChar letter); ///< an initial rather than another one; -1: nowhere

private:
    struct Item {
        Kind kind;
        QString caption;
        Show show;
        int page;
        Key key;
        bool wished = false; ///< the letter is the one that its caption asks for
    };
    /// The items in sight with this one that answer to the letter in the way in which this one will.
    QVector<Item*> holders(QChar letter, const Item& item);
    bool isFree(QChar letter, const Item& item);
    QChar freeLetter(const Item& item);
    /// Gives the item a letter whose holders find other ones; those that asked for theirs only where `wishedToo`.
    bool takeOver(Item& item, QString& tried, bool wishedToo);
    void assignTo(Item& item);
    void assignAll(Kind kind, bool onPages);
    void grantWishes(Kind kind);
    bool takeOwn(Item& item);
    bool takeForeign(Item& item);
    static bool mayShift(const Item& item) { return item.kind == Press || item.kind == Field; }
    QVector<Key> keysNow() const; ///< of each item
    static void show(const Item& item);

    QString m_reserved;
    QVector<Item> m_items;
    int m_page = 0;
    bool m_fieldsYield = false; ///< the turn of the fields is to come
};

} // namespace orvane
