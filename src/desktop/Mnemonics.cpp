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

int Mnemonics::add(Kind kind, const QString& caption, const std::function<void(const QString&)>& show) {
    m_items.append({kind, caption, show, {}});
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

bool Mnemonics::isFree(QChar letter) const {
    return !m_reserved.contains(letter) &&
           std::none_of(m_items.cbegin(), m_items.cend(), [&](const Item& item) { return item.letter == letter; });
}

QChar Mnemonics::choose(const QString& text, bool mayShare) const {
    const QString letters = candidates(text);
    for (const QChar letter : letters)
        if (isFree(letter))
            return letter;
    if (!mayShare)
        return {};
    QChar best;
    qsizetype fewest = 0;
    for (const QChar letter : letters) {
        if (m_reserved.contains(letter))
            continue;
        const auto pressed = [&](const Item& item) { return item.letter == letter && item.kind == Press; };
        if (std::any_of(m_items.cbegin(), m_items.cend(), pressed))
            continue;
        const auto users =
            std::count_if(m_items.cbegin(), m_items.cend(), [&](const Item& item) { return item.letter == letter; });
        if (best.isNull() || users < fewest) {
            best = letter;
            fewest = users;
        }
    }
    return best;
}

void Mnemonics::assign() {
    for (Item& item : m_items) {
        const QChar wish = asked(item.caption);
        if (item.kind == Press && !wish.isNull() && isFree(wish))
            item.letter = wish;
    }
    for (const Kind kind : {Press, Field})
        for (Item& item : m_items)
            if (item.kind == kind && item.letter.isNull())
                item.letter = choose(plain(item.caption), kind == Field);
    for (const Item& item : m_items)
        item.show(marked(plain(item.caption), item.letter));
}

void Mnemonics::captionChanged(int handle, const QString& caption) {
    Item& item = m_items[handle];
    if (item.caption == caption)
        return;
    item.caption = caption;
    item.show(marked(plain(caption), item.letter));
}

QString Mnemonics::letters() const {
    QString all = m_reserved;
    for (const Item& item : m_items)
        if (!item.letter.isNull())
            all += item.letter;
    return all;
}

} // namespace orvane
