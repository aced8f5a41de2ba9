#include "demo/DemoBilling.h"

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

/// What the screens may say while a bill is made; any other box means that a step was refused.
const QStringList expectedOnItems = {
    "Price Template for this HMO/Company Yet to be Created! Proceed to use Hospital Private tariff",
    "No price for this HMO/Company! Proceed to use Hospital Private tariff",
    "Duplicate Entry Detected please Confirm",
};
const QStringList expectedOnSave = {"Record Succesfully saved"};

double amount(const QString& shown) {
    return QString(shown).remove(QLatin1Char(',')).toDouble();
}

QString typed(double amount) {
    return QString::number(amount, 'f', 2);
}

} // namespace

DemoBilling::DemoBilling(Program& program, QuietUi& ui, DemoHospital& hospital)
    : m_program(program), m_ui(ui), m_hospital(hospital) {
    m_ui.onModal = [this](Form& form) {
        if (form.name() == QLatin1String("frmBillPat"))
            addOrders(form);
    };
}

void DemoBilling::bill(const DemoVisit& visit) {
    m_visit = &visit;
    m_ui.takeBoxes();
    m_program.open("frmBillingVerify");
    Form& form = m_program.form("frmBillingVerify");
    Hand hand(form);
    hand.type("txtSearch", visit.consultID);
    hand.click("cmdOK");
    expectBoxes("collate", {});
    hand.click("cmdAddBill");
    expectBoxes("add items", expectedOnItems);
    if (!visit.patient->feeForService && visit.patient->category == QLatin1String("HMO") &&
        m_hospital.random.chance(60))
        hand.type("txtApprv", QStringLiteral("AP/%1").arg(m_hospital.random.between(10000, 99999)));
    if (visit.patient->category == QLatin1String("PRIVATE"))
        takeReceipt(hand);
    hand.click("OKButton");
    expectBoxes("save", expectedOnSave);
    if (Form* receipt = m_program.loadedForm("frmCashReceipt"))
        receipt->unload();
    form.unload();
}

void DemoBilling::expectBoxes(const QString& step, const QStringList& allowed) {
    for (const QString& box : m_ui.takeBoxes())
        if (!allowed.contains(box))
            throw DataError(QStringLiteral("Bill %1, %2: %3").arg(m_visit->consultID, step, box));
}

void DemoBilling::addOrders(Form& itemScreen) {
    Hand hand(itemScreen);
    hand.chooseContaining("cboPat", m_hospital.clientName(m_visit->patient->clientID));
    for (const DemoOrder& order : m_visit->orders)
        addOrder(hand, order);
    hand.click("OKButton");
}

void DemoBilling::addOrder(Hand& hand, const DemoOrder& order) {
    const bool test = order.item->kind == QLatin1String("LAB");
    hand.choose("cboCat", test ? "INVESTIGATION" : order.item->kind);
    hand.choose("cboDrug", order.item->name);
    // A price of the private tariff brings no revenue type along: the officer chooses it.
    if (const QString type = hand.value("cboRev"); type.isEmpty() || type == QLatin1String("OTHERS"))
        hand.choose("cboRev", order.item->revType);
    hand.type("txtQty", QString::number(order.quantity));
    hand.click("cmdAdd");
}

void DemoBilling::takeReceipt(Hand& hand) {
    const double payable = amount(hand.value("txtEmp"));
    if (payable <= 0 || m_hospital.random.chance(8)) // leaves without paying
        return;
    hand.tick("chkRct");
    hand.choose("cboPayFor", "CONSULTING AND DRUGS");
    pay(hand, payable);
}

/// In full in cash, mostly; else by card or transfer, over two ways, in part, or rounded up.
void DemoBilling::pay(Hand& hand, double payable) {
    const int way = m_hospital.random.below(100);
    if (way < 60) {
        hand.type("txtAmt(0)", typed(payable));
    } else if (way < 80) {
        const bool card = way < 70;
        hand.chooseContaining(card ? "cboBank(1)" : "cboBank(3)", card ? "[1220030]" : "[1220020]");
        hand.type(card ? "txtAmt(1)" : "txtAmt(3)", typed(payable));
    } else if (way < 87) {
        const double cash = std::floor(payable / 200) * 100;
        hand.chooseContaining("cboBank(1)", "[1220030]");
        hand.type("txtAmt(0)", typed(cash));
        hand.type("txtAmt(1)", typed(payable - cash));
    } else if (way < 97) {
        hand.type("txtAmt(0)", typed(std::max(100.0, std::floor(payable / 300) * 100)));
    } else {
        hand.type("txtAmt(0)", typed(std::ceil(payable / 1000) * 1000));
    }
}

} // namespace orvane
