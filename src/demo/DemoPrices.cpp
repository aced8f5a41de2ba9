#include "data/rows/Transaction.h"
#include "demo/DemoParts.h"

#include <QHash>
#include <cmath>

namespace orvane {

namespace {

/// The revenue type of an item by its category; drugs and tests of other categories go to their kind's own.
const QHash<QString, QString> revenueTypeOfCategory = {
    {"CONSULTATION", "CONSULTATION"},
    {"RECORDS", "REGISTRATION"},
    {"WARD", "WARD"},
    {"NURSING", "NURSING"},
    {"PROCEDURE", "THEATRE"},
    {"THEATRE", "THEATRE"},
    {"MATERNITY", "MATERNITY"},
    {"FAMILY PLANNING", "MATERNITY"},
    {"DENTAL", "DENTAL"},
    {"EYE", "EYE"},
    {"PHYSIOTHERAPY", "PHYSIOTHERAPY"},
    {"MORTUARY", "SUNDRY"},
    {"RADIOLOGY", "RADIOLOGY"},
    {"ULTRASOUND", "RADIOLOGY"},
    {"CARDIOLOGY", "RADIOLOGY"},
};

/// What is given in the injection room stands in a group of its own. Vaccines are given elsewhere: a prescription ends
/// with an injection or a dressing only.
const QHash<QString, QString> groupOfCategory = {{"INJECTIONS", "INJECTIONS"}, {"DRESSING", "DRESSING"}};

/// Categories that capitation contracts mostly cover.
const QStringList capitatedCategories = {"CONSULTATION", "TABLETS",     "CAPSULES",    "SYRUP",
                                         "NURSING",      "HAEMATOLOGY", "MICROBIOLOGY"};

QString revenueType(const QString& kind, const QString& category) {
    const QString ofKind = kind == QLatin1String("DRUG")  ? "PHARMACY"
                           : kind == QLatin1String("LAB") ? "LABORATORY"
                                                          : "SUNDRY";
    return revenueTypeOfCategory.value(category, ofKind);
}

/// Naira, to the nearest five.
double roundedPrice(double price) {
    return std::round(price / 5) * 5;
}

void readItems(DemoHospital& hospital) {
    const auto item = [](const QStringList& fact, const QString& kind, int priceField) {
        return DemoItem{fact.at(0), fact.at(1), kind, revenueType(kind, fact.at(1)), fact.at(priceField).toDouble(), 1};
    };
    for (const QStringList& fact : demoFacts("drugs")) {
        hospital.drugs.append(item(fact, "DRUG", 3));
        hospital.drugs.last().unitsInPack = fact.at(2).toInt();
    }
    for (const QStringList& fact : demoFacts("labservices"))
        hospital.labServices.append(item(fact, "LAB", 2));
    for (const QStringList& fact : demoFacts("services"))
        hospital.services.append(item(fact, "SERVICE", 2));
}

void makeDrugs(Connection& billing, DemoHospital& hospital) {
    Recordset drugs(billing, Sql("select * from drugs where 1=2"));
    Recordset masters(billing, Sql("select * from drugMaster where 1=2"));
    Recordset stock(billing, Sql("select * from StockItemsRetail where 1=2"));
    Recordset categories(billing, Sql("select * from drugcategories where 1=2"));
    QStringList known;
    for (const DemoItem& drug : hospital.drugs) {
        addRow(drugs, {{"drgName", drug.name},
                       {"ItemID", drug.name},
                       {"drgCatName", drug.category},
                       {"qtyPerUnit", drug.unitsInPack},
                       {"Cost", drug.price},
                       {"Capitated", "NO"},
                       {"reorderlevel", drug.unitsInPack}});
        addRow(masters, {{"drgName", drug.name}, {"drgCatName", drug.category}, {"revType", drug.revType}});
        addRow(stock, {{"ItemID", drug.name},
                       {"ItemName", drug.name},
                       {"ItemCatID", drug.category},
                       {"QuantityPerUnit", QString::number(drug.unitsInPack)},
                       {"UnitPrice", drug.price},
                       {"UnitsInStock", drug.unitsInPack * hospital.random.between(0, 12)},
                       {"Reorderlevel", drug.unitsInPack}});
        if (!known.contains(drug.category)) {
            known.append(drug.category);
            addRow(categories,
                   {{"drgCatname", drug.category}, {"catremarks", groupOfCategory.value(drug.category, "PHARMACY")}});
        }
    }
}

void makeTestsAndServices(Connection& billing, const DemoHospital& hospital) {
    Recordset tests(billing, Sql("select * from labservices where 1=2"));
    for (const DemoItem& test : hospital.labServices)
        addRow(tests, {{"Drgname", test.name},
                       {"drgCatName", test.category},
                       {"Capitated", "NO"},
                       {"revType", test.revType},
                       {"coyID", "0001"},
                       {"Cost", test.price}});
    Recordset services(billing, Sql("select * from hservices where 1=2"));
    for (const DemoItem& service : hospital.services)
        addRow(services, {{"service", service.name},
                          {"Category", service.category},
                          {"Capitated", "NO"},
                          {"revType", service.revType},
                          {"coyID", "0001"},
                          {"Cost", service.price}});
}

/// A price list: the template key, the share of the private price in percent, and how it differs from a complete one.
struct PriceList {
    QString key;
    int percent = 100;
    int missing = 0; ///< items in a hundred that it does not hold
    int zero = 0;    ///< items in a hundred that it holds without a price
    bool capitation = false;
};

QVector<PriceList> priceLists(const DemoHospital& hospital) {
    QVector<PriceList> lists = {{"0001", 100, 0, 0, false}, {"NHIS", 65, 6, 3, true}};
    for (const DemoClient& client : hospital.clients) {
        if (client.percent == 0 || client.id == QLatin1String("0001"))
            continue;
        const bool capitation = client.category == QLatin1String("HMO") || client.category == QLatin1String("PHIS");
        lists.append({client.id, client.percent, 6, 3, capitation});
    }
    return lists;
}

void fillList(BulkInsert& rows, const char* nameColumn, const QVector<DemoItem>& items, const PriceList& list,
              DemoRandom& random) {
    for (const DemoItem& item : items) {
        const bool missing = random.chance(list.missing);
        const bool zero = random.chance(list.zero);
        const bool covered = random.chance(capitatedCategories.contains(item.category) ? 60 : 5);
        if (missing || item.price == 0)
            continue;
        rows.add({{nameColumn, item.name},
                  {"company", list.key},
                  {"Price", zero ? 0 : roundedPrice(item.price * list.percent / 100)},
                  {"Capitated", list.capitation && covered ? "YES" : "NO"},
                  {"RevType", item.revType}});
    }
}

} // namespace

void makePrices(Connection& billing, DemoHospital& hospital) {
    readItems(hospital);
    Transaction transaction(billing);
    makeDrugs(billing, hospital);
    makeTestsAndServices(billing, hospital);
    BulkInsert drugs(billing, "DrugNHIS");
    BulkInsert tests(billing, "LabServiceNHIS");
    BulkInsert services(billing, "hServiceNHIS");
    for (const PriceList& list : priceLists(hospital)) {
        fillList(drugs, "drgName", hospital.drugs, list, hospital.random);
        fillList(tests, "drgName", hospital.labServices, list, hospital.random);
        fillList(services, "service", hospital.services, list, hospital.random);
    }
    for (BulkInsert* rows : {&drugs, &tests, &services})
        rows->flush();
    transaction.commit();
}

} // namespace orvane
