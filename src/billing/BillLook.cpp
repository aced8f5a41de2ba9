#include "billing/BillLook.h"

#include "data/words/Money.h"

namespace orvane {

namespace {

BillFigures savedSummary(Program& program, const QString& billNo) {
    try {
        return *program.desk().save<BillFigures>(
            "BILL SUMMARY", [&](Books& books) { return saveBillSummary(books, billNo, program.session.sBillPno); });
    } catch (const DataError&) {
        return {};
    }
}

} // namespace

BillFigures lookAtBill(Program& program, const QString& billNo) {
    const BillFigures figures = billNo.isEmpty() ? BillFigures{} : savedSummary(program, billNo);
    Session& session = program.session;
    session.dAmountGen = figures.generated;
    session.dAmountBal = figures.balance;
    session.dAmountPaid = figures.paid;
    session.dBillTotal = figures.billed;
    program.amountToUpperWords();
    return figures;
}

void showAmount(std::initializer_list<Label*> labels, double amount) {
    for (Label* label : labels)
        label->setText(formatTwoDecimals(amount));
}

} // namespace orvane
