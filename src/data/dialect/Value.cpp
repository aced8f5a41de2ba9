#include "data/dialect/Value.h"

#include "data/DataError.h"
#include "data/dialect/Sql.h"

#include <QLocale>
#include <QTime>
#include <cmath>

namespace orvane {

namespace {

/// From here on a running total would silently lose the kobo of what is added to it: a double holds fifteen digits for
/// sure.
constexpr double firstTooLarge = 1e13;

const auto kDateTime = QStringLiteral("yyyy-MM-dd HH:mm:ss");

QString shortened(const QString& text) {
    return text.size() <= 40 ? text : text.left(40) + "...";
}

[[noreturn]] void refuse(const QVariant& value, const QString& column, const char* what) {
    throw DataError(QStringLiteral("\"%1\" is no %2: column %3.")
                        .arg(shortened(valueText(value)), QLatin1StringView(what), column));
}

bool isEmptyValue(const QVariant& value) {
    if (!value.isValid() || value.isNull())
        return true;
    const int type = value.typeId();
    return (type == QMetaType::QDate && !value.toDate().isValid()) ||
           (type == QMetaType::QDateTime && !value.toDateTime().isValid());
}

double numberFor(const QVariant& value, const QString& column) {
    bool ok = false;
    const double number =
        value.typeId() == QMetaType::QString ? value.toString().trimmed().toDouble(&ok) : value.toDouble(&ok);
    if (!ok || !std::isfinite(number))
        refuse(value, column, "number");
    if (std::abs(number) >= firstTooLarge)
        throw DataError(QStringLiteral("%1 is too large: column %2.").arg(valueText(value), column));
    return number;
}

qlonglong integerFor(const QVariant& value, const QString& column) {
    bool ok = false;
    const qlonglong integer = value.typeId() == QMetaType::Double ? 0 : value.toString().trimmed().toLongLong(&ok);
    if (ok)
        return integer;
    const double number = numberFor(value, column);
    if (number != std::trunc(number) || std::abs(number) > 9e15)
        refuse(value, column, "whole number");
    return static_cast<qlonglong>(number);
}

QVariant dateFor(const QVariant& value, const QString& column) {
    const QVariant date = value.typeId() == QMetaType::QString ? dateFromText(value.toString().trimmed()) : value;
    if (date.typeId() != QMetaType::QDate && date.typeId() != QMetaType::QDateTime)
        refuse(value, column, "date");
    return date.toDate();
}

QVariant dateTimeFor(const QVariant& value, const QString& column) {
    switch (value.typeId()) {
    case QMetaType::QDate:
        return value.toDate().startOfDay();
    case QMetaType::QDateTime:
        return value;
    case QMetaType::QTime:
        // A time of day alone stands on the first day that the server counts from.
        return QDateTime(QDate(1900, 1, 1), value.toTime());
    default: {
        const QVariant dateTime = dateTimeFromText(value.toString().trimmed());
        if (dateTime.typeId() != QMetaType::QDateTime)
            refuse(value, column, "date and time");
        return dateTime;
    }
    }
}

} // namespace

QString valueText(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return {};
    case QMetaType::Double:
    case QMetaType::Float: {
        const double number = value.toDouble();
        const bool plain = number == 0 || (std::abs(number) < 1e15 && std::abs(number) >= 1e-9);
        return value.isNull() ? QString() : QString::number(number, plain ? 'f' : 'g', QLocale::FloatingPointShortest);
    }
    case QMetaType::Bool:
        return value.isNull() ? QString() : value.toBool() ? "1" : "0";
    case QMetaType::QDate:
        return value.toDate().toString(Qt::ISODate);
    case QMetaType::QDateTime:
        return value.toDateTime().toString(kDateTime);
    case QMetaType::QTime:
        return value.toTime().toString("HH:mm:ss");
    default:
        return value.isNull() ? QString() : value.toString();
    }
}

QString cutTo(const QString& text, const Column& column) {
    if (column.length <= 0 || text.size() <= column.length)
        return text;
    return text.left(text.at(column.length).isLowSurrogate() ? column.length - 1 : column.length);
}

QVariant valueForColumn(const QVariant& value, const QString& column, ColumnKind kind, int longest) {
    const bool isText = kind == ColumnKind::Text || kind == ColumnKind::Time;
    if (isEmptyValue(value) ||
        (!isText && value.typeId() == QMetaType::QString && value.toString().trimmed().isEmpty()))
        return {};
    switch (kind) {
    case ColumnKind::Number:
        return numberFor(value, column);
    case ColumnKind::Integer:
    case ColumnKind::Flag:
        return value.typeId() == QMetaType::Bool ? QVariant(value.toBool() ? 1LL : 0LL)
                                                 : QVariant(integerFor(value, column));
    case ColumnKind::Date:
        return dateFor(value, column);
    case ColumnKind::DateTime:
        return dateTimeFor(value, column);
    case ColumnKind::Text:
    case ColumnKind::Time:
        break;
    }
    if (value.typeId() == QMetaType::Double)
        return sqlNumber(value.toDouble(), QStringLiteral("The value of column %1").arg(column));
    const QString text = valueText(value);
    sqlQuotedText(text, QStringLiteral("The text of column %1").arg(column)); // raises for what no text may hold
    // One server cuts such a text or refuses it, another cannot put it into an index: here it is refused on each of
    // them.
    if (longest > 0 && text.size() > longest)
        throw DataError(QStringLiteral("The text of column %1 is longer than %2 characters.").arg(column).arg(longest));
    return text;
}

QVariant valueForBinding(const QVariant& value) {
    const int type = value.typeId();
    if (type == QMetaType::QString && value.toString().isNull())
        return ""; // an empty text is no null
    return type == QMetaType::QDate || type == QMetaType::QDateTime ? QVariant(valueText(value)) : value;
}

QString valueLiteral(const QVariant& value) {
    if (!value.isValid() || value.isNull())
        return "null";
    switch (value.typeId()) {
    case QMetaType::Double:
        return sqlNumber(value.toDouble(), "A value");
    case QMetaType::LongLong:
    case QMetaType::Int:
        return QString::number(value.toLongLong());
    default:
        return u'\'' + sqlQuotedText(valueText(value), "A value") + u'\'';
    }
}

namespace {

/// The number that stands in plain digits at [from, from + count), as in every date that this program writes; -1
/// where something else stands. Qt's own reading of a date takes a hundred times as long.
int digitsAt(QStringView text, qsizetype from, qsizetype count) {
    int number = 0;
    for (const QChar c : text.mid(from, count)) {
        if (c < u'0' || c > u'9')
            return -1;
        number = number * 10 + (c.unicode() - u'0');
    }
    return number;
}

/// "yyyy-MM-dd" at the start of a text of ten characters or more; invalid where something else stands.
QDate plainDate(QStringView text) {
    const int year = digitsAt(text, 0, 4), month = digitsAt(text, 5, 2), day = digitsAt(text, 8, 2);
    return text.at(7) == u'-' && year > 0 && month > 0 && day > 0 ? QDate(year, month, day) : QDate();
}

/// "HH:mm:ss" behind the date in a text of nineteen characters or more; invalid where something else stands.
QTime plainTime(QStringView text) {
    const int hour = digitsAt(text, 11, 2), minute = digitsAt(text, 14, 2), second = digitsAt(text, 17, 2);
    const bool parted = (text.at(10) == u' ' || text.at(10) == u'T') && text.at(13) == u':' && text.at(16) == u':';
    return parted && hour >= 0 && minute >= 0 && second >= 0 ? QTime(hour, minute, second) : QTime();
}

} // namespace

QVariant dateFromText(const QString& text) {
    if (text.size() < 10 || text.at(4) != u'-')
        return text;
    const QDate plain = plainDate(text);
    const QDate date = plain.isValid() ? plain : QDate::fromString(text.left(10), Qt::ISODate);
    return date.isValid() ? QVariant(date) : QVariant(text);
}

QVariant dateTimeFromText(const QString& text) {
    if (text.size() < 10 || text.at(4) != u'-')
        return text;
    QDateTime at;
    if (const QTime time = text.size() >= 19 ? plainTime(text) : QTime(); time.isValid())
        at = QDateTime(plainDate(text), time);
    if (!at.isValid())
        at = QDateTime::fromString(text.left(19).replace(u'T', u' '), kDateTime);
    if (!at.isValid() && text.size() == 10)
        at = QDate::fromString(text, Qt::ISODate).startOfDay();
    return at.isValid() ? QVariant(at) : QVariant(text);
}

} // namespace orvane
