#include "data/dialect/Skeleton.h"

#include <algorithm>

namespace orvane {

namespace {

// A text's stand-in is one of the characters that Unicode keeps free of any meaning.
constexpr char16_t firstMark = 0xFDD0;
constexpr char16_t lastMark = 0xFDEF;
constexpr qsizetype mostValues = lastMark - firstMark + 1;
// A number's stand-in is a number, for a number is what the rules must see: these digits and two more for its index.
const QString numberMark = "7301946528";
constexpr int firstIndex = 10;
constexpr qsizetype longestNumber = 18;
constexpr qsizetype longestStatement = 100'000;
constexpr const char* rowWords[] = {"select", "insert", "update", "delete"};

bool isMark(QChar c) {
    return c.unicode() >= firstMark && c.unicode() <= lastMark;
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool startsLikeDate(QStringView text) {
    static constexpr char16_t shape[] = u"0000-00-00";
    constexpr qsizetype length = std::size(shape) - 1;
    return text.size() >= length && std::equal(shape, shape + length, text.begin(), [](char16_t wanted, QChar c) {
               return wanted == u'0' ? isDigit(c) : c == wanted;
           });
}

bool isOrdinary(QStringView text) {
    return !text.isEmpty() && !text.front().isSpace() && !text.back().isSpace() && !startsLikeDate(text) &&
           isBoundAsItStands(text);
}

/// Whether the text begins with one of the four words that a statement on rows begins with.
bool isOnRows(QStringView text) {
    const QStringView start = text.left(6);
    return std::any_of(std::begin(rowWords), std::end(rowWords), [&](const char* word) {
        return start.compare(QLatin1StringView(word), Qt::CaseInsensitive) == 0;
    });
}

class Splitter {
public:
    explicit Splitter(const QString& text) : m_text(text) { m_skeleton.text.reserve(text.size()); }

    std::optional<Skeleton> run() {
        while (m_at < m_text.size()) {
            const QChar c = m_text.at(m_at);
            switch (c.unicode()) {
            case u'\'':
            case u'[':
            case u'"':
                if (!quoted(c))
                    return {};
                continue;
            case u'=':
            case u'+':
                m_valueMayCome = true;
                break;
            case u' ':
                break;
            case u'-':
                if (next() == u'-')
                    return {};
                break;
            default:
                if (m_valueMayCome && isDigit(c)) {
                    number();
                    continue;
                }
                if (isMark(c) || (c == u'/' && next() == u'*'))
                    return {};
                m_valueMayCome = false;
            }
            ++m_at;
        }
        takeUpTo(m_at);
        return std::move(m_skeleton);
    }

private:
    QChar next() const { return m_at + 1 < m_text.size() ? m_text.at(m_at + 1) : QChar(); }

    /// What is in front of `end` and not yet taken goes into the skeleton as it stands.
    void takeUpTo(qsizetype end) {
        m_skeleton.text += QStringView(m_text).mid(m_taken, end - m_taken);
        m_taken = end;
    }

    /// Sets the text from `start` to `end` apart.
    void setApart(qsizetype start, qsizetype end, const QString& standIn) {
        takeUpTo(start);
        m_skeleton.text += standIn;
        m_skeleton.values += m_text.mid(start, end - start);
        m_taken = end;
    }

    bool mayBeSetApart() const { return m_skeleton.values.size() < mostValues; }

    /// False when the closing mark is missing, or when a stand-in could be meant by what stays in the skeleton.
    bool quoted(QChar opening) {
        const QChar closing = opening == u'[' ? QChar(u']') : opening;
        const qsizetype start = m_at + 1;
        qsizetype end = m_text.indexOf(closing, start);
        while (end >= 0 && end + 1 < m_text.size() && m_text.at(end + 1) == closing)
            end = m_text.indexOf(closing, end + 2);
        if (end < 0)
            return false;
        const QStringView inside = QStringView(m_text).mid(start, end - start);
        m_at = end + 1;
        m_valueMayCome = false;
        if (opening == u'\'' && isOrdinary(inside) && mayBeSetApart()) {
            setApart(start, end, QChar(char16_t(firstMark + m_skeleton.values.size())));
            return true;
        }
        return std::none_of(inside.begin(), inside.end(), isMark);
    }

    qsizetype digitsFrom(qsizetype at) const {
        while (at < m_text.size() && isDigit(m_text.at(at)))
            ++at;
        return at;
    }

    /// "12" or "12.5"; what the lexer would read on beyond the plain digits stays as it is.
    void number() {
        const qsizetype start = m_at;
        qsizetype end = digitsFrom(m_at);
        if (end < m_text.size() && m_text.at(end) == u'.')
            end = digitsFrom(end + 1);
        const QChar next = end < m_text.size() ? m_text.at(end) : QChar();
        const bool plain = isDigit(m_text.at(end - 1)) && next != u'.' && next != u'e' && next != u'E' &&
                           !next.isDigit() && end - start <= longestNumber;
        if (plain && mayBeSetApart())
            setApart(start, end, numberMark + QString::number(firstIndex + m_skeleton.values.size()));
        m_at = end;
        m_valueMayCome = false;
    }

    const QString& m_text;
    qsizetype m_at = 0;
    qsizetype m_taken = 0;       ///< up to here the text is in the skeleton
    bool m_valueMayCome = false; ///< only blanks and minus signs since "=" or "+"
    Skeleton m_skeleton;
};

} // namespace

bool isBoundAsItStands(QStringView text) {
    return !text.startsWith(QChar(QChar::ByteOrderMark)) && !text.startsWith(QChar(QChar::ByteOrderSwapped));
}

std::optional<Skeleton> skeletonOf(const QString& tsql) {
    const bool fits = tsql.size() <= longestStatement && isOnRows(tsql);
    return fits && !tsql.contains(numberMark) && !tsql.contains(QChar(u'\0')) ? Splitter(tsql).run() : std::nullopt;
}

std::optional<Template> Template::of(const QString& made, bool wideTexts) {
    Template result;
    result.m_wideTexts = wideTexts;
    qsizetype from = 0;
    for (qsizetype i = 0; i < made.size(); ++i) {
        if (isMark(made.at(i))) {
            // The quotes go with the gap, and the N of a wide text: the stand-in is beyond ASCII.
            const QStringView opening = wideTexts ? u"N'" : u"'";
            const QStringView before = QStringView(made).mid(from, i - from);
            if (!before.endsWith(opening) || i + 1 == made.size() || made.at(i + 1) != u'\'')
                return {};
            result.m_gaps.append({before.chopped(opening.size()).toString(), made.at(i).unicode() - firstMark, true});
            from = i + 2;
        } else if (QStringView(made).mid(i).startsWith(numberMark)) {
            const qsizetype index = i + numberMark.size();
            result.m_gaps.append(
                {made.mid(from, i - from), QStringView(made).mid(index, 2).toInt() - firstIndex, false});
            from = index + 2;
            i = from - 1;
        }
    }
    result.m_rest = made.mid(from);
    result.mark();
    return result;
}

void Template::mark() {
    QString text;
    for (const Gap& gap : m_gaps) {
        text += gap.before;
        const bool insideQuotes = !gap.quoted && text.endsWith(u'\'');
        const bool namesColumn =
            text.startsWith("select", Qt::CaseInsensitive) && !text.contains(" from ", Qt::CaseInsensitive);
        if (insideQuotes || namesColumn)
            return;
        text += u'?';
    }
    m_marked = text + m_rest;
}

QVariantList Template::bound(const QStringList& values) const {
    QVariantList list;
    list.reserve(m_gaps.size());
    for (const Gap& gap : m_gaps) {
        QString value = values.at(gap.value);
        if (gap.quoted)
            list += value.replace("''", "'");
        else if (value.contains(u'.'))
            list += value.toDouble();
        else
            list += value.toLongLong();
    }
    return list;
}

QString Template::filled(const QStringList& values) const {
    QString text;
    qsizetype size = m_rest.size();
    for (const Gap& gap : m_gaps)
        size += gap.before.size() + values.at(gap.value).size() + 3;
    text.reserve(size);
    for (const Gap& gap : m_gaps) {
        const QString& value = values.at(gap.value);
        text += gap.before;
        if (!gap.quoted) {
            text += value;
            continue;
        }
        if (m_wideTexts && std::any_of(value.begin(), value.end(), [](QChar c) { return c.unicode() > 127; }))
            text += u'N';
        text += u'\'';
        text += value;
        text += u'\'';
    }
    return text + m_rest;
}

} // namespace orvane
