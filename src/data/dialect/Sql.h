#pragma once

#include "data/dialect/SqlParts.h"

#include <QDate>
#include <QDateTime>
#include <QString>
#include <concepts>
#include <string_view>

namespace orvane {

/// A piece of SQL that stands in the source. Only a literal converts to it, so a text
/// that came from outside cannot become SQL: it does not compile.
class SqlLiteral {
public:
    template <std::size_t N>
    consteval SqlLiteral(const char (&text)[N]) : m_text(text, N - 1) {} // NOLINT: implicit on purpose
    constexpr std::string_view text() const { return m_text; }

private:
    std::string_view m_text;
};

/// Composes one T-SQL statement from constant fragments and values:
///     Sql("select * from billing where isprocess=1 and billNo='") << bill << "'"
/// Fragments go in as they stand. A text or date value is allowed only between single quotes
/// and is made safe on the way: quotes are doubled, U+0000 and lone surrogates are refused with DataError.
/// Numbers go in as plain decimals, inside or outside quotes; NaN and infinities are refused with DataError.
/// An empty date between quotes takes the quotes with it and becomes the word null.
class Sql {
public:
    Sql() = default;
    Sql(SqlLiteral fragment) { *this << fragment; } // NOLINT: implicit on purpose

    Sql& operator<<(SqlLiteral fragment) {
        m_parts.addFragment(QString::fromUtf8(fragment.text().data(), static_cast<qsizetype>(fragment.text().size())));
        return *this;
    }
    /// Exactly a QString: a character array must not turn into a value on its way.
    template <std::same_as<QString> T>
    Sql& operator<<(const T& value) {
        m_parts.addText(value);
        return *this;
    }
    Sql& operator<<(double value) {
        m_parts.addNumber(value);
        return *this;
    }
    Sql& operator<<(QDate value) { ///< as yyyy-MM-dd, the short form on every engine
        m_parts.addDate(value.isValid() ? value.toString(Qt::ISODate) : QString());
        return *this;
    }
    Sql& operator<<(const QDateTime& value) { ///< as yyyy-MM-dd HH:mm:ss
        m_parts.addDate(value.isValid() ? value.toString("yyyy-MM-dd HH:mm:ss") : QString());
        return *this;
    }
    Sql& operator<<(const Sql& other) { ///< a whole statement part; both must stand outside quotes
        m_parts.add(other.m_parts);
        return *this;
    }
    template <std::integral T>
    requires(!std::same_as<T, char> && !std::same_as<T, char16_t> && !std::same_as<T, wchar_t>) Sql&
    operator<<(T value) {
        m_parts.addNumber(static_cast<qlonglong>(value));
        return *this;
    }

    /// The statement in T-SQL, for logs, faults and tests. The quotes must balance (asserted).
    QString text() const { return m_parts.text(); }
    const SqlParts& parts() const { return m_parts; } ///< as it goes to the engine

private:
    SqlParts m_parts;
};

/// A text as the inside of a single-quoted SQL literal. Refuses what no text column may hold, naming `what` in the
/// DataError.
QString sqlQuotedText(const QString& value, const QString& what);
/// A number as a plain decimal that reads back to the same double. Refuses NaN and infinities, naming `what`.
QString sqlNumber(double value, const QString& what);

} // namespace orvane
