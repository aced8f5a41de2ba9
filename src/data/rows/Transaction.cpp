#include "data/rows/Transaction.h"

#include "data/Assert.h"
#include "data/dialect/Value.h"
#include "data/engine/Physical.h"

#include <QUuid>

namespace orvane {

namespace {

/// At most so many characters, none of them half.
QString cut(const QString& text, int longest) {
    const bool inMidCharacter = text.size() > longest && text.at(longest).isLowSurrogate();
    return text.left(inMidCharacter ? longest - 1 : longest);
}

void writeToken(PhysicalConnection& physical, const QString& token, const SavedAction& action) {
    const Table* table = Catalog::instance().table("SavedActions");
    const std::pair<QString, QString> texts[] = {{"token", token},
                                                 {"username", action.user},
                                                 {"workstation", action.workstation},
                                                 {"action", action.action},
                                                 {"document", action.document}};
    SqlParts tsql;
    tsql.addFragment(u"insert into SavedActions (token, username, workstation, action, document, amount) values (");
    for (const auto& [name, text] : texts) {
        const Column* column = table->column(name);
        tsql.addValue(valueForBinding(valueForColumn(cut(text, column->length), name, column->kind)));
        tsql.addFragment(u", ");
    }
    tsql.addValue(valueForColumn(action.amount, "amount", ColumnKind::Number));
    tsql.addFragment(u")");
    physical.change(tsql);
}

} // namespace

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
    const QString token = QUuid::createUuid().toString(QUuid::WithoutBraces);
    try {
        writeToken(*d->physical, token, action);
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
