#include "books/ActionRights.h"

#include <algorithm>

namespace orvane {

namespace {

/// What the screens of the menu Accounts save.
constexpr const char* ofAccounts[] = {"CASH ACCOUNT",      "CASH DISTRIBUTION", "REVENUE CORRECTION",
                                      "INVENTORY ACCOUNT", "POST INVOICE",      "CAPITATE BILLS"};

bool opensAccounts(Books& books) {
    return !Recordset(books.connection, Sql("select username from UsersForAccts where username='")
                                            << books.actor().user << "'")
                .eof();
}

} // namespace

std::optional<Refusal> missingRight(Books& books, const QString& action) {
    const bool asked = std::any_of(std::begin(ofAccounts), std::end(ofAccounts),
                                   [&](const char* name) { return action == QLatin1String(name); });
    if (!asked || books.actor().user == toolUser || opensAccounts(books))
        return std::nullopt;
    return Refusal::NotOfAccounts;
}

} // namespace orvane
