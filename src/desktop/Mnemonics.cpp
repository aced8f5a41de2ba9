#include "desktop/Mnemonics.h"

#include <algorithm>

namespace orvane {

namespace {

/// The letters and digits of a text, initials of words first.
QString candidates(const QString& text) {
    QString initials, others;
    bool inWord = false;
    for (const QChar character : text) {
        const bool usable = character.isLetterOrNumber() && character.unicode() < 128;
        if (usable && !inWord)
            initials += character.toUpper();
        else if (usable)
            others += character.toUpper();
        inWord = character.isLetterOrNumber();
    }
    return initials + others;
}

} // namespace

Mnemonics::Mnemonics(const QString& reserved) : m_reserved(reserved.toUpper()) {}

int Mnemonics::add(Kind kind, const QString& caption, const Show& show) {
    m_items.append({kind, caption, show, m_page, {}, false});
    return int(m_items.size()) - 1;
}

QKeySequence Mnemonics::Key::sequence() const {
    const QString held = shifted ? QStringLiteral("Alt+Shift+") : QStringLiteral("Alt+");
    return QKeySequence(letter.isNull() ? QString() : held + letter);
}

QString Mnemonics::plain(const QString& caption) {
    QString text;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption.at(i) == QLatin1Char('&') && i + 1 < caption.size())
            ++i;
        text += caption.at(i);
    }
    return text;
}

QChar Mnemonics::asked(const QString& caption) {
    for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
        if (caption.at(i) != QLatin1Char('&'))
            continue;
        if (caption.at(i + 1).isLetterOrNumber())
            return caption.at(i + 1).toUpper();
        ++i;
    }
    return {};
}

qsizetype Mnemonics::placeOf(const QString& text, QChar letter) {
    qsizetype place = -1;
    for (qsizetype i = 0; i < text.size() && !letter.isNull(); ++i) {
        if (text.at(i).toUpper() != letter)
            continue;
        if (i == 0 || !text.at(i - 1).isLetterOrNumber())
            return i;
        if (place < 0)
            place = i;
    }
    return place;
}

QString Mnemonics::marked(const QString& text, QChar letter) {
    const qsizetype place = placeOf(text, letter);
    QString marked;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (i == place || text.at(i) == QLatin1Char('&'))
            marked += QLatin1Char('&');
        marked += text.at(i);
    }
    return place < 0 && !letter.isNull() ? marked + QStringLiteral(" (&%1)").arg(letter) : marked;
}

QVector<Mnemonics::Item*> Mnemonics::holders(QChar letter, const Item& item) {
    QVector<Item*> found;
    for (Item& other : m_items) {
        const bool together = other.page == item.page || other.page == 0 || item.page == 0;
        if (&other != &item && together && other.key == Key{letter, item.key.shifted})
            found << &other;
    }
    return found;
}

/// The reserved letters answer to Alt alone.
bool Mnemonics::isFree(QChar letter, const Item& item) {
    return (item.key.shifted || !m_reserved.contains(letter)) && holders(letter, item).isEmpty();
}

QChar Mnemonics::freeLetter(const Item& item) {
    for (const QChar letter : candidates(plain(item.caption)))
        if (isFree(letter, item))
            return letter;
    return {};
}

bool Mnemonics::takeOver(Item& item, QString& tried, bool wishedToo) {
    item.key.letter = freeLetter(item);
    if (!item.key.letter.isNull())
        return true;
    const auto yields = [this](const Item* owner) { return m_fieldsYield && owner->kind == Field; };
    for (const QChar letter : candidates(plain(item.caption))) {
        if ((m_reserved.contains(letter) && !item.key.shifted) || tried.contains(letter))
            continue;
        tried += letter;
        const QVector<Item*> owners = holders(letter, item);
        if (!wishedToo && std::any_of(owners.cbegin(), owners.cend(),
                                      [&](const Item* owner) { return owner->wished && !yields(owner); }))
            continue;
        const QVector<Key> before = keysNow();
        item.key.letter = letter;
        const bool found = std::all_of(owners.cbegin(), owners.cend(), [&](Item* owner) {
            owner->key.letter = {};
            return yields(owner) || takeOver(*owner, tried, wishedToo);
        });
        if (found)
            return true;
        for (qsizetype i = 0; i < m_items.size(); ++i)
            m_items[i].key = before.at(i);
    }
    return false;
}

/// A key with a letter of its words.
bool Mnemonics::takeOwn(Item& item) {
    for (const bool shifted : {false, true}) {
        QString tried, triedAgain;
        item.key = {{}, shifted};
        if (shifted > mayShift(item))
            break;
        if (takeOver(item, tried, false) || (item.kind == First && takeOver(item, triedAgain, true)))
            return true;
    }
    return false;
}

bool Mnemonics::takeForeign(Item& item) {
    // Those first that few words need. With Shift a digit is another key on another keyboard.
    const QString letters = QStringLiteral("JQXZKVYGUHBMWFPOLNDTICRSEA"), digits = QStringLiteral("1234567890");
    for (const bool shifted : {false, true}) {
        item.key = {{}, shifted};
        for (const QChar letter : shifted ? letters : digits + letters)
            if (shifted <= mayShift(item) && isFree(letter, item)) {
                item.key.letter = letter;
                return true;
            }
    }
    item.key = {};
    return false;
}

void Mnemonics::assignTo(Item& item) {
    if (item.key.letter.isNull() && !plain(item.caption).trimmed().isEmpty() && !takeOwn(item))
        takeForeign(item);
}

void Mnemonics::assignAll(Kind kind, bool onPages) {
    for (Item& item : m_items)
        if (item.kind == kind && (item.page > 0) == onPages)
            assignTo(item);
}

QVector<Mnemonics::Key> Mnemonics::keysNow() const {
    QVector<Key> keys;
    for (const Item& item : m_items)
        keys << item.key;
    return keys;
}

void Mnemonics::grantWishes(Kind kind) {
    for (Item& item : m_items) {
        const QChar wish = asked(item.caption);
        if (item.kind != kind || wish.isNull() || !isFree(wish, item))
            continue;
        item.key.letter = wish;
        item.wished = true;
    }
}

void Mnemonics::assign() {
    const auto kinds = {First, Press, Field, Entry};
    for (const Kind kind : kinds)
        grantWishes(kind);
    // What is always in sight has fewer letters to choose from than what is on a page.
    for (const Kind kind : kinds) {
        m_fieldsYield = kind != Field;
        for (const bool onPages : {false, true})
            assignAll(kind, onPages);
    }
    for (const Item& item : m_items)
        show(item);
}

void Mnemonics::show(const Item& item) {
    const QString words = plain(item.caption);
    const bool strange = item.key.shifted && placeOf(words, item.key.letter) < 0;
    const QString behind = strange ? QStringLiteral(" (%1)").arg(item.key.letter) : QString();
    item.show(marked(words + behind, item.key.shifted ? QChar() : item.key.letter), item.key);
}

void Mnemonics::captionChanged(int handle, const QString& caption) {
    Item& item = m_items[handle];
    if (item.caption == caption)
        return;
    item.caption = caption;
    if (!candidates(plain(caption)).contains(item.key.letter))
        if (const QChar letter = freeLetter(item); !letter.isNull())
            item.key.letter = letter;
    show(item);
}

QString Mnemonics::letters() const {
    QString all = m_reserved;
    for (const Item& item : m_items)
        if (!item.key.letter.isNull() && !item.key.shifted)
            all += item.key.letter;
    return all;
}

} // namespace orvane
