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

QString Mnemonics::marked(const QString& text, QChar letter) {
    qsizetype place = -1;
    for (qsizetype i = 0; i < text.size() && !letter.isNull(); ++i) {
        if (text.at(i).toUpper() != letter)
            continue;
        const bool initial = i == 0 || !text.at(i - 1).isLetterOrNumber();
        if (place < 0 || initial)
            place = i;
        if (initial)
            break;
    }
    QString marked;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (i == place || text.at(i) == QLatin1Char('&'))
            marked += QLatin1Char('&');
        marked += text.at(i);
    }
    return marked;
}

QVector<Mnemonics::Item*> Mnemonics::holders(QChar letter, const Item& item) {
    QVector<Item*> found;
    for (Item& other : m_items) {
        const bool together = other.page == item.page || other.page == 0 || item.page == 0;
        if (&other != &item && together && other.letter == letter)
            found << &other;
    }
    return found;
}

QChar Mnemonics::freeLetter(const Item& item) {
    for (const QChar letter : candidates(plain(item.caption)))
        if (!m_reserved.contains(letter) && holders(letter, item).isEmpty())
            return letter;
    return {};
}

QChar Mnemonics::sharedLetter(const Item& field) {
    QChar best;
    qsizetype fewest = 0;
    for (const QChar letter : candidates(plain(field.caption))) {
        const QVector<Item*> others = holders(letter, field);
        const bool pressed =
            std::any_of(others.cbegin(), others.cend(), [](const Item* other) { return other->kind != Field; });
        if (!m_reserved.contains(letter) && !pressed && (best.isNull() || others.size() < fewest)) {
            best = letter;
            fewest = others.size();
        }
    }
    return best;
}

bool Mnemonics::takeOver(Item& item, QString& tried, bool wishedToo) {
    item.letter = freeLetter(item);
    if (item.letter.isNull() && item.kind == Field)
        item.letter = sharedLetter(item);
    if (!item.letter.isNull())
        return true;
    for (const QChar letter : candidates(plain(item.caption))) {
        if (m_reserved.contains(letter) || tried.contains(letter))
            continue;
        tried += letter;
        const QVector<Item*> owners = holders(letter, item);
        if (!wishedToo && std::any_of(owners.cbegin(), owners.cend(), [](const Item* owner) { return owner->wished; }))
            continue;
        const QVector<QChar> before = lettersNow();
        item.letter = letter;
        const bool found = std::all_of(owners.cbegin(), owners.cend(), [&](Item* owner) {
            owner->letter = {};
            return takeOver(*owner, tried, wishedToo);
        });
        if (found)
            return true;
        for (qsizetype i = 0; i < m_items.size(); ++i)
            m_items[i].letter = before.at(i);
    }
    return false;
}

void Mnemonics::assignTo(Item& item) {
    if (!item.letter.isNull())
        return;
    QString tried, triedAgain;
    if (takeOver(item, tried, false) || (item.kind == First && takeOver(item, triedAgain, true)))
        return;
    if (item.kind != Field && !candidates(plain(item.caption)).isEmpty())
        item.letter = foreignLetter(item);
    if (item.letter.isNull() && !takeOver(item, triedAgain, true) && item.kind != Field)
        displaceFields(item);
}

void Mnemonics::displaceFields(Item& pressed) {
    for (const QChar letter : candidates(plain(pressed.caption))) {
        const QVector<Item*> owners = holders(letter, pressed);
        if (m_reserved.contains(letter) ||
            std::any_of(owners.cbegin(), owners.cend(), [](const Item* owner) { return owner->kind != Field; }))
            continue;
        for (Item* owner : owners)
            owner->letter = {};
        pressed.letter = letter;
        return;
    }
}

QChar Mnemonics::foreignLetter(const Item& item) {
    // Those first that few words need.
    const QString all = QStringLiteral("JQXZ0123456789KVYGUHBMWFPOLNDTICRSEA");
    for (const QChar letter : all)
        if (!m_reserved.contains(letter) && holders(letter, item).isEmpty())
            return letter;
    return {};
}

void Mnemonics::assignAll(Kind kind, bool onPages) {
    for (Item& item : m_items)
        if (item.kind == kind && (item.page > 0) == onPages)
            assignTo(item);
}

QVector<QChar> Mnemonics::lettersNow() const {
    QVector<QChar> letters;
    for (const Item& item : m_items)
        letters << item.letter;
    return letters;
}

void Mnemonics::grantWishes(Kind kind) {
    for (Item& item : m_items) {
        const QChar wish = asked(item.caption);
        if (item.kind != kind || wish.isNull() || m_reserved.contains(wish) || !holders(wish, item).isEmpty())
            continue;
        item.letter = wish;
        item.wished = true;
    }
}

void Mnemonics::assign() {
    for (const Kind kind : {First, Press, Field})
        grantWishes(kind);
    // What is always in sight has fewer letters to choose from than what is on a page.
    for (const Kind kind : {First, Press, Field})
        for (const bool onPages : {false, true})
            assignAll(kind, onPages);
    for (const Item& item : m_items)
        item.show(marked(plain(item.caption), item.letter), item.letter);
}

void Mnemonics::captionChanged(int handle, const QString& caption) {
    Item& item = m_items[handle];
    if (item.caption == caption)
        return;
    item.caption = caption;
    if (!candidates(plain(caption)).contains(item.letter))
        if (const QChar letter = freeLetter(item); !letter.isNull())
            item.letter = letter;
    item.show(marked(plain(caption), item.letter), item.letter);
}

QString Mnemonics::letters() const {
    QString all = m_reserved;
    for (const Item& item : m_items)
        if (!item.letter.isNull())
            all += item.letter;
    return all;
}

} // namespace orvane
