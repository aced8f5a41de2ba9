#include "books/DrugPrice.h"

#include "data/words/Money.h"

namespace orvane {

std::optional<double> baseCost(double stated, double percent) {
    return percent > -100 ? std::optional(round2(stated * 100 / (percent + 100))) : std::nullopt;
}

Given<Saved> changeDrugPrice(Books& books, const DrugPrice& price) {
    Recordset drug(books.connection, Sql("select * from Drugs where drgname ='") << price.drug << "'");
    if (drug.eof())
        return Refusal::NoDrug;
    drug.set("qtyPerUnit", price.unitDosage);
    drug.set("Cost", price.cost);
    drug.update();
    books.record(price.drug, price.cost);
    return Saved{};
}

void takePriceLoad(Books& books) {
    Recordset drugs(books.connection, Sql("select * from drugs where 1=2"));
    int taken = 0;
    for (Recordset load(books.connection, Sql("select * from drugsxxx")); !load.eof(); load.moveNext()) {
        drugs.addNew();
        for (const char* column : {"drgName", "drgCatName", "qtyPerUnit", "Cost"})
            drugs.set(column, load.value(QString(column)));
        drugs.update();
        ++taken;
    }
    if (taken > 0)
        books.record(QStringLiteral("%1 drugs").arg(taken), 0);
}

} // namespace orvane
