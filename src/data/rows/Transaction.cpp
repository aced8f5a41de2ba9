#include "data/rows/Transaction.h"

#include "data/Assert.h"
#include "data/dialect/Value.h"
#include "data/engine/Physical.h"

#include <QUuid>

namespace orvane {

namespace {

void writeAction(PhysicalConnection& physical, const QString& token, const SavedAction& action) {
    const Table* table = Catalog::instance().table("SavedActions");
    const std::pair<QString, QString> texts[] = {{"token", token},
                                                 {"username", action.user},
                                                 {"workstation", action.workstation},
                                                 {"action", action.action},
                                                 {"document", action.document}};
    SqlParts tsql;
    tsql.addFragment(
        u"insert into SavedActions (token, username, workstation, action, document, amount, trailRows) values (");
    for (const auto& [name, text] : texts) {
        const Column* column = table->column(name);
        tsql.addValue(valueForBinding(valueForColumn(cutTo(text, *column), name, column->kind)));
        tsql.addFragment(u", ");
    }
    tsql.addValue(valueForColumn(action.amount, "amount", ColumnKind::Number));
    tsql.addFragment(u", ");
    tsql.addNumber(qlonglong(action.trailRows));
    tsql.addFragment(u")");
    physical.change(tsql);
}

void writeParts(PhysicalConnection& physical, const QString& token, const QVector<SavedPart>& parts) {
    QVector<SqlParts> rows;
    for (const SavedPart& part : parts)
        rows.append(partStatement(token, part).parts());
    physical.changeAll(rows);
}

} // namespace

QString freshToken() {
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

Sql partStatement(const QString& token, const SavedPart& part) {
    const Column* document = Catalog::instance().table("SavedParts")->column("document");
    return Sql("insert into SavedParts (token, kind, document, counted, amount) values ('")
           << token << "', '" << part.kind << "', '" << cutTo(part.document, *document) << "', " << part.counted << ", "
           << part.amount << ")";
}

struct Transaction::Private {
    std::shared_ptr<PhysicalConnection> physical; ///< null once it has ended
};

Transaction::Transaction(Connection& connection) : d(std::make_unique<Private>()) {
    ORVANE_ASSERT(!connection.inTransaction());
    connection.physical()->begin();
    d->physical = connection.physical();
}

Transaction::~Transaction() {
    rollback();
}

void Transaction::commit() {
    end({});
}

void Transaction::commit(const SavedAction& action) {
    ORVANE_ASSERT(d->physical);
    const QString token = action.token.isEmpty() ? freshToken() : action.token;
    try {
        writeAction(*d->physical, token, action);
        writeParts(*d->physical, token, action.parts);
    } catch (...) {
        rollback();
        throw;
    }
    end(token);
}

void Transaction::end(const QString& token) {
    ORVANE_ASSERT(d->physical);
    const std::shared_ptr<PhysicalConnection> physical = std::move(d->physical);
    physical->commit(token);
}

void Transaction::rollback() {
    const std::shared_ptr<PhysicalConnection> physical = std::move(d->physical);
    if (physical && physical->inTransaction)
        physical->rollback();
}

} // namespace orvane
