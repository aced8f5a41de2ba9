#include "reports/RowOrder.h"

#include <QHash>
#include <algorithm>
#include <limits>
#include <numeric>
#include <optional>

namespace orvane {

namespace {

constexpr double nothing = -std::numeric_limits<double>::infinity();

/// A value that is a number for the order: an amount, a count or a day. Null is less than any; none for a text.
std::optional<double> asNumber(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Double:
    case QMetaType::LongLong:
    case QMetaType::Int:
        return value.toDouble();
    case QMetaType::QDate:
        return double(value.toDate().toJulianDay());
    default:
        return value.isNull() ? std::optional(nothing) : std::nullopt;
    }
}

/// Each different text gets its place among all of them, so that it is compared with others once and not for each row.
QVector<double> ranksOfTexts(Recordset& rows, int column) {
    QVector<int> which; // of the different texts, by row
    QHash<QString, int> known;
    QVector<QString> texts;
    for (int row = 0; rows.has(row); ++row) {
        rows.moveTo(row);
        const QString text = rows.value(column).toString();
        if (!which.isEmpty() && text == texts.at(which.last())) {
            which << which.last();
            continue;
        }
        const auto found = known.constFind(text);
        which << (found == known.cend() ? int(texts.size()) : found.value());
        if (found == known.cend()) {
            known.insert(text, int(texts.size()));
            texts << text;
        }
    }
    QVector<int> order(texts.size());
    std::iota(order.begin(), order.end(), 0);
    const auto compared = [&](int one, int other) {
        return texts.at(one).compare(texts.at(other), Qt::CaseInsensitive);
    };
    std::sort(order.begin(), order.end(), [&](int one, int other) { return compared(one, other) < 0; });
    QVector<double> rank(texts.size());
    for (qsizetype i = 1; i < order.size(); ++i)
        rank[order.at(i)] = rank.at(order.at(i - 1)) + (compared(order.at(i - 1), order.at(i)) == 0 ? 0 : 1);
    QVector<double> ranks;
    ranks.reserve(which.size());
    for (const int text : std::as_const(which))
        ranks << rank.at(text);
    return ranks;
}

/// Numbers that stand to each other as the column's values do, by row.
QVector<double> ranksOf(Recordset& rows, int column) {
    QVector<double> ranks;
    for (int row = 0; rows.has(row); ++row) {
        rows.moveTo(row);
        const auto number = asNumber(rows.value(column));
        if (!number)
            return ranksOfTexts(rows, column);
        ranks << *number;
    }
    return ranks;
}

} // namespace

QVector<int> rowOrder(Recordset& rows, const QVector<RowKey>& keys) {
    QVector<QVector<double>> ranks;
    for (const RowKey& key : keys)
        ranks << ranksOf(rows, key.column);
    const auto stands = [&](int one, int other) {
        for (qsizetype key = 0; key < keys.size(); ++key) {
            const double left = ranks.at(key).at(one), right = ranks.at(key).at(other);
            if (left != right)
                return keys.at(key).descending ? left > right : left < right;
        }
        return false;
    };
    QVector<int> order(rows.count());
    std::iota(order.begin(), order.end(), 0);
    // Most statements give the order already.
    if (std::is_sorted(order.cbegin(), order.cend(), stands))
        return {};
    std::stable_sort(order.begin(), order.end(), stands);
    return order;
}

} // namespace orvane
