#include "data/dialect/Sql.h"

#include "data/Assert.h"
#include "data/DataError.h"

#include <QLocale>
#include <cmath>

namespace orvane {

namespace {

bool hasLoneSurrogate(const QString& text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i).isHighSurrogate()) {
            if (i + 1 >= text.size() || !text.at(i + 1).isLowSurrogate())
                return true;
            ++i;
        } else if (text.at(i).isLowSurrogate()) {
            return true;
        }
    }
    return false;
}

} // namespace

QString sqlQuotedText(const QString& value, const QString& what) {
    if (value.contains(QChar(u'\0')))
        throw DataError(QStringLiteral("%1 holds a character that cannot be stored (U+0000).").arg(what));
    if (hasLoneSurrogate(value))
        throw DataError(QStringLiteral("%1 holds half of a character, which cannot be stored.").arg(what));
    QString quoted = value;
    return quoted.replace(u'\'', "''");
}

QString sqlNumber(double value, const QString& what) {
    if (!std::isfinite(value))
        throw DataError(QStringLiteral("%1 is not a number that can be stored.").arg(what));
    return QString::number(value, 'f', QLocale::FloatingPointShortest);
}

Sql& Sql::operator<<(SqlLiteral fragment) {
    appendFragment(QString::fromUtf8(fragment.text().data(), static_cast<qsizetype>(fragment.text().size())));
    return *this;
}

void Sql::appendFragment(QStringView fragment) {
    if (m_swallowQuote) {
        // Some statements have a blank before the closing quote.
        while (fragment.startsWith(u' '))
            fragment = fragment.mid(1);
        ORVANE_ASSERT(fragment.startsWith(u'\''));
        fragment = fragment.mid(1);
        m_swallowQuote = false;
    }
    for (const QChar c : fragment)
        if (c == u'\'')
            m_insideQuotes = !m_insideQuotes;
    m_text.append(fragment);
}

Sql& Sql::appendText(const QString& value) {
    ORVANE_ASSERT(m_insideQuotes);
    // The text itself is not told: it may be a password.
    m_text += sqlQuotedText(value, "A text of this entry");
    return *this;
}

Sql& Sql::operator<<(double value) {
    return appendNumber(sqlNumber(value, "An amount"));
}

Sql& Sql::appendInteger(qlonglong value) {
    return appendNumber(QString::number(value));
}

Sql& Sql::appendNumber(const QString& text) {
    ORVANE_ASSERT(!m_swallowQuote);
    // "debt=debt-" and a negative amount would make "--", which begins a comment.
    if (!m_insideQuotes && m_text.endsWith(u'-') && text.startsWith(u'-'))
        m_text += u' ';
    m_text += text;
    return *this;
}

Sql& Sql::operator<<(QDate value) {
    return appendDate(value.isValid() ? value.toString(Qt::ISODate) : QString());
}

Sql& Sql::operator<<(const QDateTime& value) {
    return appendDate(value.isValid() ? value.toString("yyyy-MM-dd HH:mm:ss") : QString());
}

Sql& Sql::appendDate(const QString& text) {
    ORVANE_ASSERT(m_insideQuotes);
    if (!text.isEmpty()) {
        m_text += text;
        return *this;
    }
    ORVANE_ASSERT(m_text.endsWith(u'\''));
    m_text.chop(1);
    m_text += " null ";
    m_insideQuotes = false;
    m_swallowQuote = true;
    return *this;
}

Sql& Sql::operator<<(const Sql& other) {
    ORVANE_ASSERT(!m_insideQuotes && !other.m_insideQuotes && !m_swallowQuote && !other.m_swallowQuote);
    m_text += other.m_text;
    return *this;
}

QString Sql::text() const {
    ORVANE_ASSERT(!m_insideQuotes && !m_swallowQuote);
    return m_text;
}

} // namespace orvane
