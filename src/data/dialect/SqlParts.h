#pragma once

#include <QList>
#include <QString>
#include <QVariantList>
#include <optional>

namespace orvane {

/// A T-SQL statement whose values stand apart from the text around them, all the way to the engine. A value that a rule
/// of the dialect looks at is part of the text: an empty text, one with a blank at an end or that looks like a date, a
/// date, the pattern of a "like", and whatever shares its quotes with fixed text.
/// Screens compose with Sql, which takes its fragments from the source only; fragments that are made at run time are
/// for the data layer itself and for tests.
class SqlParts {
public:
    SqlParts() = default;
    /// A statement that came as text: it has no values apart, and nothing is kept of it.
    static SqlParts ofText(const QString& tsql);

    void addFragment(QStringView fragment);
    /// Between quotes. Raises DataError for what no text may hold.
    void addText(const QString& value);
    void addDate(const QString& iso); ///< between quotes; an empty one takes them with it and becomes the word null
    void addNumber(double value);     ///< raises DataError for NaN and infinities
    void addNumber(qlonglong value);
    /// Outside quotes, any value that a column holds: no rule looks at it.
    void addValue(const QVariant& value);
    /// A part of a statement; both stand outside quotes (asserted).
    void add(const SqlParts& other);

    /// In T-SQL with its values in it. The quotes must balance (asserted).
    QString text() const;
    /// The same with a stand-in for each value, a statement itself: statements of one form differ in these values only.
    /// Nothing for a statement of which nothing is to be kept.
    std::optional<QString> form() const;
    bool hasValues() const { return !m_values.isEmpty(); }
    QVariantList values() const; ///< in the order of their stand-ins

private:
    enum class Seen { Text, Number, Nothing }; ///< what the rules of the dialect see in a value's place
    struct Value {
        QString before; ///< the text between the value in front and this one
        QVariant value;
        Seen seen = Seen::Nothing;
    };
    void append(QStringView text);
    void setApart(const QVariant& value, Seen seen);
    void addDigits(const QString& text, const QVariant& size);
    void settleLast(QStringView next);

    QList<Value> m_values;
    QString m_rest; ///< behind the last value
    bool m_insideQuotes = false;
    bool m_swallowQuote = false; ///< an empty date took the opening quote; the closing one goes too
    bool m_mayBeKept = true;
};

} // namespace orvane
