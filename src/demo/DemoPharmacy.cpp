#include "demo/DemoPharmacy.h"

#include "data/rows/Transaction.h"

#include <cmath>

namespace orvane {

namespace {

constexpr int purchaseOrders = 12;
constexpr int packsInBulk = 20;

QString purchaseOrder(int number) {
    return QStringLiteral("PO/%1").arg(number + 1, 4, 10, QLatin1Char('0'));
}

/// Of this category and with a price, by turns.
const DemoItem& drugOf(const DemoHospital& hospital, const QString& category, int turn) {
    QVector<const DemoItem*> drugs;
    for (const DemoItem& drug : hospital.drugs)
        if (drug.category == category && drug.price > 0)
            drugs.append(&drug);
    return *drugs.at(turn % drugs.size());
}

} // namespace

QVector<DemoOrder> injectionsOf(const DemoHospital& hospital, int turn) {
    return {{&drugOf(hospital, "INJECTIONS", 5 * turn), 1 + turn % 3}, {&drugOf(hospital, "DRESSING", turn), 1}};
}

void makeStore(Connection& billing, const DemoHospital& hospital) {
    Transaction transaction(billing);
    Recordset bulk(billing, Sql("select * from StockItems where 1=2"));
    for (int i = 0; i < hospital.drugs.size(); ++i) {
        const DemoItem& drug = hospital.drugs.at(i);
        // Now and then the supplier asks for more than patients pay.
        const double pack = std::round(drug.price * drug.unitsInPack * (i % 7 == 0 ? 1.1 : 0.8));
        addRow(bulk, {{"ItemID", drug.name},
                      {"ItemName", drug.name},
                      {"ItemCatID", drug.category},
                      {"QuantityPerUnit", QString::number(drug.unitsInPack)},
                      {"UnitPrice", pack},
                      {"UnitsInStock", packsInBulk},
                      {"Reorderlevel", packsInBulk / 2}});
    }
    Recordset orders(billing, Sql("select * from PurchaseOrder where 1=2"));
    for (int number = 0; number < purchaseOrders; ++number)
        addRow(orders, {{"POID", purchaseOrder(number)}});
    transaction.commit();
}

DemoPharmacy::DemoPharmacy(Program& program, QuietUi& ui, const DemoHospital& hospital)
    : m_program(program), m_ui(ui), m_hospital(hospital),
      m_officer('[' + hospital.employeesOf("PHARM").first().id + ']') {}

void DemoPharmacy::dispense(const DemoVisit& visit) {
    m_program.open("frmDispensing");
    Form& form = m_program.form("frmDispensing");
    Hand hand(form);
    hand.chooseContaining("cboVehNo", '[' + visit.consultID + ']');
    hand.chooseContaining("cboReason", m_officer);
    for (const DemoOrder& order : visit.injections)
        giveOne(hand, order);
    hand.click("OKButton");
    expectBoxes("dispensing", {"Record Succesfully saved"});
    form.unload();
}

void DemoPharmacy::giveOne(Hand& hand, const DemoOrder& order) {
    hand.choose("cboDrug", order.item->name);
    hand.type("txtQty", QString::number(order.quantity));
    hand.type("txtUsage", "STAT");
    hand.click("cmdAdd");
    expectBoxes("dispensing", {"This Drug is out of Stock !!! Click Stock Entry Button to enter Stock"});
}

void DemoPharmacy::takeGoods(int day) {
    m_program.open("frmStockEntry");
    Form& form = m_program.form("frmStockEntry");
    Hand hand(form);
    for (int delivery = 0; delivery < 2; ++delivery) {
        const DemoItem& drug = m_hospital.drugs.at((7 * day + delivery) % m_hospital.drugs.size());
        hand.choose("cboVehNo", drug.name);
        hand.type("txtFields(0)", QString::number(drug.unitsInPack * 5));
        hand.chooseContaining("cboDriver", m_officer);
        hand.choose("cboCust", purchaseOrder(day % purchaseOrders));
        hand.type("txtFields(1)", "IN GOOD CONDITION");
        hand.click("OKButton");
        expectBoxes("stock entry", {"Record Succesfully saved"});
    }
    form.unload();
}

void DemoPharmacy::expectBoxes(const QString& step, const QStringList& allowed) {
    for (const QString& box : m_ui.takeBoxes())
        if (!allowed.contains(box))
            throw DataError(step + ": " + box);
}

} // namespace orvane
