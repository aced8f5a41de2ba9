#include "data/dialect/SqlParts.h"

#include "data/Assert.h"
#include "data/dialect/Sql.h"
#include "data/dialect/StandIn.h"
#include "data/dialect/Value.h"

#include <cmath>

namespace orvane {

namespace {

constexpr qsizetype longestNumber = 18;
constexpr const char* rowWords[] = {"select", "insert", "update", "delete"};

bool startsLikeDate(QStringView text) {
    static constexpr char16_t shape[] = u"0000-00-00";
    constexpr qsizetype length = std::size(shape) - 1;
    return text.size() >= length && std::equal(shape, shape + length, text.begin(), [](char16_t wanted, QChar c) {
               return wanted == u'0' ? isAsciiDigit(c) : c == wanted;
           });
}

/// Whether no rule of the dialect tells the text apart from others.
bool isOrdinary(QStringView text) {
    return !text.isEmpty() && !text.front().isSpace() && !text.back().isSpace() && !startsLikeDate(text);
}

/// Whether a text begins behind `before`: a doubled quote may be one that is part of a text.
bool opensText(QStringView before) {
    return before.endsWith(u'\'') && !before.endsWith(u"''");
}

/// The pattern of a "like" decides how it is searched.
bool opensPattern(QStringView before) {
    return before.chopped(1).trimmed().endsWith(u"like", Qt::CaseInsensitive);
}

/// A number that is compared, assigned or added; what else it may be, such as a count of characters, a rule looks at.
bool opensNumber(QStringView before) {
    while (before.endsWith(u' ') || before.endsWith(u'-'))
        before.chop(1);
    return before.endsWith(u'=') || before.endsWith(u'+');
}

/// Whether the statement begins with one of the four words that a statement on rows begins with.
bool isOnRows(QStringView text) {
    const QStringView start = text.left(6);
    return std::any_of(std::begin(rowWords), std::end(rowWords), [&](const char* word) {
        return start.compare(QLatin1StringView(word), Qt::CaseInsensitive) == 0;
    });
}

} // namespace

SqlParts SqlParts::ofText(const QString& tsql) {
    SqlParts parts;
    parts.m_rest = tsql;
    parts.m_mayBeKept = false;
    return parts;
}

/// A value stays apart only where what follows leaves it whole: a text its closing quote, a number no further digits.
void SqlParts::settleLast(QStringView next) {
    if (m_values.isEmpty() || m_rest.size() > 1)
        return;
    const QString follows = m_rest + next.left(2).toString();
    const Value& last = m_values.constLast();
    if (follows.isEmpty() || last.seen == Seen::Nothing)
        return;
    const QChar c = follows.at(0);
    const bool whole = last.seen == Seen::Text ? c == u'\'' && !follows.startsWith(u"''")
                                               : !c.isDigit() && c != u'.' && c != u'e' && c != u'E';
    if (whole)
        return;
    Value taken = m_values.takeLast();
    const QString literal = valueLiteral(taken.value);
    taken.before += last.seen == Seen::Text ? literal.mid(1).chopped(1) : literal;
    m_rest = taken.before + m_rest;
}

void SqlParts::append(QStringView text) {
    settleLast(text);
    m_rest += text;
    m_mayBeKept = m_mayBeKept && !holdsStandIn(text);
}

void SqlParts::setApart(const QVariant& value, Seen seen) {
    m_values.append({std::exchange(m_rest, QString()), value, seen});
}

void SqlParts::addFragment(QStringView fragment) {
    if (m_swallowQuote) {
        // Some statements have a blank before the closing quote.
        while (fragment.startsWith(u' '))
            fragment = fragment.mid(1);
        ORVANE_ASSERT(fragment.startsWith(u'\''));
        fragment = fragment.mid(1);
        m_swallowQuote = false;
    }
    m_insideQuotes = m_insideQuotes != (fragment.count(u'\'') % 2 == 1);
    append(fragment);
}

void SqlParts::addText(const QString& value) {
    ORVANE_ASSERT(m_insideQuotes);
    // The text itself is not told: it may be a password.
    const QString quoted = sqlQuotedText(value, "A text of this entry");
    settleLast(quoted);
    if (opensText(m_rest) && isOrdinary(value) && !opensPattern(m_rest))
        setApart(value, Seen::Text);
    else
        append(quoted);
}

void SqlParts::addDate(const QString& iso) {
    ORVANE_ASSERT(m_insideQuotes);
    if (!iso.isEmpty()) {
        append(iso);
        return;
    }
    ORVANE_ASSERT(m_rest.endsWith(u'\''));
    m_rest.chop(1);
    m_rest += " null ";
    m_insideQuotes = false;
    m_swallowQuote = true;
}

void SqlParts::addNumber(double value) {
    const double size = std::abs(value);
    const bool whole = size < 1e18 && size == std::trunc(size);
    addDigits(sqlNumber(value, "An amount"), whole ? QVariant(static_cast<qlonglong>(size)) : QVariant(size));
}

void SqlParts::addNumber(qlonglong value) {
    addDigits(QString::number(value), value == std::numeric_limits<qlonglong>::min() ? 0 : std::abs(value));
}

void SqlParts::addDigits(const QString& text, const QVariant& size) {
    ORVANE_ASSERT(!m_swallowQuote);
    if (m_insideQuotes) {
        addText(text);
        return;
    }
    const bool negative = text.startsWith(u'-');
    // "debt=debt-" and a negative amount would make "--", which begins a comment.
    if (negative)
        append(m_rest.endsWith(u'-') ? u" -" : u"-");
    const QStringView digits = QStringView(text).mid(negative ? 1 : 0);
    if (opensNumber(m_rest) && digits.size() <= longestNumber)
        setApart(size, Seen::Number);
    else
        append(digits);
}

void SqlParts::addValue(const QVariant& value) {
    ORVANE_ASSERT(!m_insideQuotes && !m_swallowQuote);
    setApart(value, Seen::Nothing);
}

void SqlParts::add(const SqlParts& other) {
    ORVANE_ASSERT(!m_insideQuotes && !other.m_insideQuotes && !m_swallowQuote && !other.m_swallowQuote);
    settleLast(other.m_values.isEmpty() ? other.m_rest : other.m_values.constFirst().before);
    for (const Value& one : other.m_values) {
        m_rest += one.before;
        setApart(one.value, one.seen);
    }
    m_rest += other.m_rest;
    m_mayBeKept = m_mayBeKept && other.m_mayBeKept;
}

QString SqlParts::text() const {
    ORVANE_ASSERT(!m_insideQuotes && !m_swallowQuote);
    QString text;
    for (const Value& one : m_values) {
        const QString literal = valueLiteral(one.value);
        text += one.before;
        text += one.seen == Seen::Text ? QStringView(literal).mid(1).chopped(1) : QStringView(literal);
    }
    return text + m_rest;
}

std::optional<QString> SqlParts::form() const {
    ORVANE_ASSERT(!m_insideQuotes && !m_swallowQuote);
    if (!m_mayBeKept || m_values.size() > mostStandIns || !isOnRows(m_values.isEmpty() ? m_rest : m_values[0].before))
        return {};
    QString form;
    for (qsizetype i = 0; i < m_values.size(); ++i) {
        const Seen seen = m_values[i].seen;
        form += m_values[i].before;
        form += standIn(seen == Seen::Text ? textMark : seen == Seen::Number ? numberMark : valueMark, i);
    }
    return form + m_rest;
}

QVariantList SqlParts::values() const {
    QVariantList list;
    list.reserve(m_values.size());
    for (const Value& one : m_values)
        list += one.value;
    return list;
}

} // namespace orvane
