// What looks after the ledger: its periods, and what no screen offers for posting any more.
#include "books/InvoicePosting.h"
#include "books/Period.h"
#include "books/ToolContext.h"
#include "books/VoucherPosting.h"
#include "data/rows/SharedTables.h"
#include "session/Settings.h"
#include "tool/Command.h"

namespace orvane {

namespace {

QDate monthOf(const QString& period) {
    const QDate month = QDate::fromString(period + "/01", "yyyy/MM/dd");
    if (!month.isValid())
        throw UsageError{"A period is a month of the form 2026/03."};
    return month;
}

} // namespace

int periodListCommand(Call& call) {
    Workplace workplace(call.required("home"));
    Connection accounting = workplace.program().openAccounting();
    const QString current = currentPeriod(accounting);
    for (const Period& period : readPeriods(accounting))
        call.out << period.name << "  ends " << period.lastDay.toString("dd/MM/yyyy") << "  "
                 << (period.isClosed          ? "closed"
                     : period.name == current ? "current"
                                              : "open")
                 << '\n';
    return Done;
}

int periodOpenCommand(Call& call) {
    const QDate month = monthOf(call.operands.value(0));
    Workplace workplace(call.required("home"));
    Connection accounting = workplace.program().openAccounting();
    call.out << openPeriodsUpTo(accounting, month) << " periods were opened.\n";
    Connection billing = workplace.program().openBilling();
    saveToolWork(billing, "PERIOD OPEN", call.operands.value(0));
    return Done;
}

int periodCloseCommand(Call& call) {
    const QString period = call.operands.value(0);
    monthOf(period);
    Workplace workplace(call.required("home"));
    Connection billing = workplace.program().openBilling();
    Connection accounting = workplace.program().openAccounting();
    const QStringList lines = closePeriod(billing, accounting, period);
    for (const QString& line : lines)
        call.out << line << '\n';
    if (!lines.isEmpty()) {
        call.out << "The period " << period << " stays open.\n";
        return Refused;
    }
    saveToolWork(billing, "PERIOD CLOSE", period);
    copySharedTables(billing, accounting);
    keepPeriodsOpen(accounting, QDate::currentDate());
    call.out << "The period " << period << " is closed; the current one is " << currentPeriod(accounting) << ".\n";
    return Done;
}

int postCommand(Call& call) {
    if (!call.parser.isSet("left-over"))
        throw UsageError{"orvane-db post posts what was left over: say --left-over."};
    Workplace workplace(call.required("home"));
    Program& program = workplace.program();
    program.session.gUsername = "orvane-db";
    program.session.gServerDate = QDate::currentDate();
    if (!readSettings(program) || !program.session.gAcctPostOn)
        throw DataError("Posting is not switched on, or its settings are not complete; nothing was posted.");
    LedgerDesk ledger = program.ledgerDesk();
    const auto tellSettled = [&] {
        for (const QString& settled : ledger.takeSettled())
            call.out << settled << '\n';
    };
    ledger.settle();
    tellSettled();
    const Given<QStringList> invoices = postInvoicesLeftOver(ledger);
    if (!invoices)
        throw DataError(refusalText(invoices.refusal()));
    for (const QString& invoice : *invoices)
        call.out << "Invoice " << invoice << " was flagged without its entry, and is posted now.\n";
    const Given<QStringList> vouchers = postVouchersLeftOver(ledger);
    tellSettled();
    if (!vouchers)
        throw DataError(refusalText(vouchers.refusal()));
    for (const QString& voucher : *vouchers)
        call.out << "Voucher " << voucher << " was paid and not posted, and is posted now.\n";
    return Done;
}

} // namespace orvane
