#include "data/rows/RecordsetPrivate.h"

#include "data/dialect/Value.h"

namespace orvane {

namespace {

QString quotedName(const QString& name) {
    return u'[' + name + u']';
}

} // namespace

void Recordset::Private::dropChanges() {
    adding = false;
    changes.clear();
}

std::shared_ptr<PhysicalConnection> Recordset::Private::connection() const {
    const std::shared_ptr<PhysicalConnection> target = physical.lock();
    if (!target || target->lease != lease)
        throw DataError("The connection of this recordset is closed.");
    return target;
}

void Recordset::Private::write() {
    const std::shared_ptr<PhysicalConnection> target = connection();
    if (!table)
        throw DataError("The rows of this recordset cannot be written.");
    if (adding)
        insert(*target);
    else if (!changes.isEmpty())
        change(*target);
    dropChanges();
}

void Recordset::Private::insert(PhysicalConnection& target) {
    QString text = "insert into " + quotedName(table->name);
    QString marks;
    QVariantList bound;
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        text += bound.isEmpty() ? QStringView(u" ([") : QStringView(u", [");
        text += rows.columns[change.key()];
        text += u']';
        marks += bound.isEmpty() ? QStringView(u"?") : QStringView(u", ?");
        bound += valueForBinding(change.value());
    }
    target.change(bound.isEmpty() ? text + " default values" : text + ") values (" + marks + u')', bound);
    row = static_cast<int>(rows.count());
    QList<QVariant> added;
    for (int i = 0; i < rows.columns.size(); ++i)
        added += changes.value(i);
    rows.add(added);
}

/// The key finds the row; the old values of the changed columns prove that nobody else has changed them since.
void Recordset::Private::change(PhysicalConnection& target) {
    QStringList assignments, conditions;
    QVariantList bound, oldValues;
    const auto addCondition = [&](const QString& name, const QVariant& old) {
        conditions += quotedName(name) + (old.isNull() ? " is null" : " = ?");
        if (!old.isNull())
            oldValues += valueForBinding(old);
    };
    for (const QString& key : table->key) {
        const int index = rows.indexOf(key);
        if (index < 0)
            throw DataError(QStringLiteral("The row cannot be written: its key %1 was not read.").arg(key));
        addCondition(key, rows.at(row, index));
    }
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        const QString& name = rows.columns[change.key()];
        assignments += quotedName(name) + " = ?";
        bound += valueForBinding(change.value());
        addCondition(name, rows.at(row, change.key()));
    }
    const QString tsql = QStringLiteral("update %1 set %2 where %3")
                             .arg(quotedName(table->name), assignments.join(", "), conditions.join(" and "));
    if (target.change(tsql, bound + oldValues) != 1) {
        target.poisoned = target.inTransaction;
        throw DataError(
            QStringLiteral(
                "Row cannot be located for updating. Some values may have been changed since it was last read."),
            tsql);
    }
    for (auto change = changes.cbegin(); change != changes.cend(); ++change)
        rows.set(row, change.key(), change.value());
}

} // namespace orvane
