// What adds rows: load and user add.
#include "books/NewUser.h"
#include "data/rows/SharedTables.h"
#include "tool/Command.h"
#include "tool/CsvLoad.h"
#include "tool/Password.h"

#include <QFile>

namespace orvane {

namespace {

const Table& tableOf(const QString& database, const QString& name) {
    for (const Table* table : Catalog::instance().tables(database))
        if (table->name.compare(name, Qt::CaseInsensitive) == 0)
            return *table;
    throw DataError(QStringLiteral("The %1 database has no table %2.").arg(database, name));
}

} // namespace

int loadCommand(Call& call) {
    const QString database = call.choice("database", {"billing", "accounting"});
    const Table& table = tableOf(database, call.operands.at(0));
    QFile file(call.operands.at(1));
    if (!file.open(QIODevice::ReadOnly))
        throw DataError(QStringLiteral("The file %1 cannot be read: %2").arg(file.fileName(), file.errorString()));
    Workplace workplace(call.required("home"));
    Program& program = workplace.program();
    Connection connection = database == QLatin1String("billing") ? program.openBilling() : program.openAccounting();
    if (database == QLatin1String("billing") && sharedTables().contains(table.name))
        throw DataError(QStringLiteral("%1 has its home in the accounting database: load it there (--database "
                                       "accounting), and the billing database follows.")
                            .arg(table.name));
    const int rows = loadCsv(connection, table, file.fileName(), file.readAll());
    if (sharedTables().contains(table.name)) {
        Connection billing = program.openBilling();
        copySharedTables(billing, connection);
    }
    call.out << rows << " row(s) added to " << table.name << ".\n";
    return Done;
}

int userAddCommand(Call& call) {
    NewUser user;
    user.name = call.operands.at(0);
    user.fullName = call.required("fullname");
    user.employeeID = call.parser.value("empid");
    if (call.parser.isSet("password-file"))
        user.password = readPassword(call.parser.value("password-file"));
    user.roles = call.parser.values("role");
    user.roles.removeAll(QString());
    user.accounts = call.parser.isSet("accounts");
    if (user.roles.isEmpty())
        throw UsageError{"--role is needed."};
    Workplace workplace(call.required("home"));
    Connection billing = workplace.program().openBilling();
    admitUser(billing, user);
    call.out << "The user " << user.name << " is added.\n";
    return Done;
}

} // namespace orvane
