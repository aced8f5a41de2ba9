#include "session/SaveWords.h"

#include "data/words/Money.h"

#include <QHash>
#include <QStringList>
#include <cmath>

namespace orvane {

namespace {

/// By action; %1 is the document, %2 the amount, which falls away with its brackets where there is none. What changes a
/// bill shows by how much, with its sign.
const QHash<QString, QString>& patterns() {
    static const QHash<QString, QString> table = {
        {"VISIT", "Visit %1 saved[, consultation %2]"},
        {"CHANGE VISIT", "Visit %1 changed"},
        {"DELETE VISIT", "Visit %1 deleted"},
        {"CLIENT MOVE", "Bill %1 moved to another client"},
        {"RECEIPT", "Receipt %1[ of %2] saved"},
        {"REVERSAL", "Reversal %1[ of %2] saved"},
        {"DEPOSIT", "Deposit receipt %1[ of %2] saved"},
        {"MANUAL RECEIPT", "Manual receipt %1[ of %2] saved"},
        {"COLLATED BILL", "Bill %1[ of %2] saved"},
        {"BILL WITH RECEIPT", "Bill saved with receipt %1[ of %2]"},
        {"PROF FEE", "Professional fee[ of %2] added to bill %1"},
        {"NHIS FEE", "NHIS fee[ of %2] added to bill %1"},
        {"CAPITATE ALL", "Bill %1 capitated[ (%2)]"},
        {"DISCOUNT", "Bill %1 changed by a discount entry[ (%2)]"},
        {"BILL ITEMS", "Items[ of %2] saved on bill %1"},
        {"COLLATED ITEMS", "Items[ of %2] saved on bill %1"},
        {"BILL ITEM REMOVED", "Item removed from bill %1[ (%2)]"},
        {"BILL ADJUST", "Bill %1 adjusted[ (%2)]"},
        {"BILL CUSTOM", "Bill %1 adjusted[ (%2)]"},
        {"PRICE ADJUST", "Bill %1 adjusted[ (%2)]"},
        {"BILL SPLIT", "Item[ of %2] on bill %1 has another payer"},
        {"FEE FOR SERVICE", "Fee for service of visit %1 changed"},
        {"APPROVAL CODE", "Approval code of visit %1 saved"},
        {"APPROVAL DELETE", "Approval code of visit %1 deleted"},
        {"DRUG PRICE", "Price[ %2] of %1 saved"},
        {"PRICE LOAD", "Prices of %1 taken"},
        {"PROCESS BATCH", "Batch %1[ of %2] processed"},
        {"REVERSE BATCH", "Batch %1 reversed[ (%2)]"},
        {"SHIFT BILLS", "Bills shifted to batch %1"},
        {"CAPITATE BILLS", "Bills of batch %1 capitated[ (%2)]"},
        {"SPLIT OFF", "Bill %1[ of %2] split off"},
        {"BILL DATES", "Bill dates from %1 on brought back to the attendance"},
        {"REVENUE TYPE ADD", "Revenue type %1 saved"},
        {"REVENUE TYPE EDIT", "Revenue type %1 saved"},
        {"REVENUE TYPE DELETE", "Revenue type %1 deleted"},
        {"REVENUE CORRECTION", "Line of bill %1 corrected"},
        {"SUPPLIER ADD", "Creditor %1 saved"},
        {"SUPPLIER EDIT", "Creditor %1 saved"},
        {"SUPPLIER DELETE", "Creditor %1 deleted"},
        {"CASH ACCOUNT", "Bank account of %1 saved"},
        {"CASH DISTRIBUTION", "Receipt %1 distributed[: %2]"},
        {"INVENTORY ACCOUNT", "Inventory account of entry %1 saved"},
        {"VOUCHER PAYMENT", "Voucher %1 paid[: %2]"},
        {"DISPENSING", "Items[ of %2] dispensed for visit %1"},
        {"STOCK ENTRY", "Stock of %1 entered"},
        {"STOCK ENTRY EDIT", "Stock entry of %1 changed"},
        {"OUTLET REQUEST", "Outlet request %1[ of %2] saved"},
        {"OUTLET BILL", "Outlet bill %1[ of %2] saved"},
        {"OUTLET RECEIPT", "Outlet bill saved with receipt %1[ of %2]"},
        {"OUTLET TARIFF", "Price[ %2] of %1 saved in the price list"},
        {"USER", "User %1 saved"},
        {"PASSWORD", "Password of %1 changed"},
    };
    return table;
}

} // namespace

QString nairaText(double amount) {
    return (amount < 0 ? "-N" : "N") + formatTwoDecimals(std::abs(amount));
}

QString savedWords(const QString& action, const QString& document, double amount) {
    if (document.isEmpty())
        return {};
    QString words = patterns().value(action, "%1[ of %2] saved");
    if (amount == 0) {
        const qsizetype from = words.indexOf(QLatin1Char('['));
        words.remove(from, from < 0 ? 0 : words.indexOf(QLatin1Char(']')) - from + 1);
    }
    words.remove(QLatin1Char('[')).remove(QLatin1Char(']'));
    return words.contains("%2") ? words.arg(document, nairaText(amount)) : words.arg(document);
}

QString aboutLines(std::initializer_list<QString> lines) {
    QStringList about(lines);
    about.removeAll(QString());
    return about.join(QLatin1Char('\n'));
}

} // namespace orvane
