#include "data/rows/ActionParts.h"

#include "data/rows/Recordset.h"

namespace orvane {

namespace {

Sql besideSaves(SqlLiteral columns) {
    return Sql("select ") << columns
                          << "kind,document,sum(counted) as counted,sum(amount) as amount from ("
                             "select 'RECEIPT' as kind,isnull(ReceiptNo, '') as document,1 as counted,"
                             "isnull(AmountPaid, 0) as amount from Payments "
                             "union all select 'BILL' as kind,isnull(billNo, '') as document,1 as counted,0 as amount "
                             "from Billing "
                             "union all select 'LINE' as kind,isnull(billNo, '') as document,1 as counted,"
                             "isnull(SubTotal, 0) as amount from BillingDetails "
                             "union all select 'DISCOUNT' as kind,isnull(billNo, '') as document,1 as counted,"
                             "isnull(Amount, 0) as amount from billDiscounts "
                             "union all select kind,document,0 - counted as counted,0 - amount as amount from "
                             "SavedParts where kind <> 'POSTING') t group by kind,document "
                             "having sum(counted) <> 0 or abs(sum(amount)) > 0.005";
}

} // namespace

QVector<SavedPart> moneyBesideSaves(Connection& billing) {
    QVector<SavedPart> parts;
    for (Recordset row(billing, besideSaves("") << " order by kind,document"); !row.eof(); row.moveNext())
        parts.append({row.text("kind"), row.text("document"), int(row.integer("counted")), row.number("amount")});
    return parts;
}

void noteOpening(Connection& billing) {
    if (Recordset(billing, besideSaves("top 1 ")).eof())
        return;
    const QString token = freshToken();
    billing.execute(Sql("insert into SavedActions (token, action) values ('") << token << "', 'OPENING')");
    billing.execute(Sql("insert into SavedParts (token, kind, document, counted, amount) select '")
                    << token << "',kind,document,counted,amount from (" << besideSaves("") << ") o");
}

} // namespace orvane
