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
    QStringList names;
    for (auto change = changes.cbegin(); change != changes.cend(); ++change)
        names += quotedName(rows.columns[change.key()]);
    SqlParts tsql;
    tsql.addFragment("insert into " + quotedName(table->name));
    tsql.addFragment(names.isEmpty() ? " default values" : " (" + names.join(", ") + ") values (");
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        if (change != changes.cbegin())
            tsql.addFragment(u", ");
        tsql.addValue(valueForBinding(change.value()));
    }
    tsql.addFragment(names.isEmpty() ? u"" : u")");
    target.change(tsql);
    row = static_cast<int>(rows.count());
    QList<QVariant> added;
    for (int i = 0; i < rows.columns.size(); ++i)
        added += changes.value(i);
    rows.add(added);
}

/// The key finds the row; the old values of the changed columns prove that nobody else has changed them since.
void Recordset::Private::change(PhysicalConnection& target) {
    SqlParts assignments, conditions;
    const auto addCondition = [&](QStringView with, const QString& name, const QVariant& old) {
        conditions.addFragment(with.toString() + quotedName(name) + (old.isNull() ? " is null" : " = "));
        if (!old.isNull())
            conditions.addValue(valueForBinding(old));
    };
    QStringView with = u" where ";
    for (const QString& key : table->key) {
        const int index = rows.indexOf(key);
        if (index < 0)
            throw DataError(QStringLiteral("The row cannot be written: its key %1 was not read.").arg(key));
        addCondition(std::exchange(with, u" and "), key, rows.at(row, index));
    }
    assignments.addFragment("update " + quotedName(table->name) + " set ");
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        const QString& name = rows.columns[change.key()];
        assignments.addFragment((change == changes.cbegin() ? "" : ", ") + quotedName(name) + " = ");
        assignments.addValue(valueForBinding(change.value()));
        addCondition(std::exchange(with, u" and "), name, rows.at(row, change.key()));
    }
    assignments.add(conditions);
    if (target.change(assignments) != 1) {
        target.poisoned = target.inTransaction;
        throw DataError(
            QStringLiteral(
                "Row cannot be located for updating. Some values may have been changed since it was last read."),
            assignments.text());
    }
    for (auto change = changes.cbegin(); change != changes.cend(); ++change)
        rows.set(row, change.key(), change.value());
}

} // namespace orvane
