#include "books/ChartAccount.h"

#include "data/rows/Recordset.h"

namespace orvane {

QString accountName(Connection& billing, const QString& accountNo) {
    const Recordset account(billing, Sql("select AccountName from ChartOfAccounts where AccountNo='")
                                         << accountNo << "'");
    return account.eof() ? QString() : account.text("AccountName");
}

} // namespace orvane
