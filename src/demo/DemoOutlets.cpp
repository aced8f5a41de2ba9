#include "demo/DemoOutlets.h"

#include <cmath>

namespace orvane {

namespace {

const QStringList results = {"NORMAL", "NOT SEEN", "WITHIN REFERENCE RANGE", "POSITIVE", "SEE COMMENT"};

/// One outlet: what it gives, mostly, and what a receipt of it is for.
struct Outlet {
    const char* name;
    const char* kind;
    QString revType;
    const QVector<DemoItem>& items;
};

OutletOrder orderOf(const Outlet& outlet, DemoRandom& random) {
    const DemoItem* item = &random.pick(outlet.items);
    while (item->price == 0 || item->revType != outlet.revType)
        item = &random.pick(outlet.items);
    return {outlet.kind, item->name, "1"};
}

void expectBox(QuietUi& ui, const QString& step, const QStringList& expected) {
    if (const QStringList boxes = ui.takeBoxes(); boxes != expected)
        throw DataError(QStringLiteral("Outlet, %1: %2").arg(step, boxes.join(QLatin1String(" / "))));
}

/// The number of the visit that was saved last.
QString newestVisit(Program& program) {
    Connection connection = program.openBilling();
    return Recordset(connection, Sql("select top 1 consultID from hRecordsPublic order by ID desc")).text(0);
}

/// In full, mostly; in part, or nothing yet.
QString payment(double payable, DemoRandom& random) {
    const int way = random.below(100);
    if (way < 80)
        return QString::number(payable, 'f', 2);
    return way < 92 ? QString::number(std::ceil(payable / 200) * 100, 'f', 2) : QString();
}

void collate(Program& program, QuietUi& ui, const Outlet& outlet, double payable, DemoRandom& random) {
    const QString paid = payment(payable, random);
    enterOutletBill(program, newestVisit(program), paid, outlet.revType).click("OKButton");
    expectBox(ui, "bill", paid.isEmpty() ? QStringList{"Record Succesfully saved"} : QStringList());
    if (Form* receipt = program.loadedForm("frmCashReceiptLab"))
        receipt->unload();
    program.form("frmBillingPublic").unload();
}

/// What another program of the hospital writes.
void enterResults(Program& program, DemoRandom& random) {
    Connection connection = program.openBilling();
    connection.execute(Sql("update hInvestigateFindings set attendedto=1,attendedTobyLab=1,Result='")
                       << random.pick(results) << "' where consultID='" << newestVisit(program) << "'");
    connection.execute(Sql("update hInvestigate set attendedto=1,attendedTobyLab=1 where consultID='")
                       << newestVisit(program) << "'");
}

} // namespace

Hand enterOutletRequest(Program& program, const QString& surname, const QString& firstName,
                        const QVector<OutletOrder>& orders, const QString& outlet) {
    program.open("frmInvestigatePublic");
    Hand hand(program.form("frmInvestigatePublic"));
    hand.click("cmdNew");
    hand.type("txtName", surname);
    hand.type("txtFirst", firstName);
    hand.choose("cboMat", "ADULT");
    hand.choose("txtSex", "FEMALE");
    hand.type("txtAge", "30");
    hand.type("txtLabNo", "L" + hand.value("lblBill").right(6));
    if (!outlet.isEmpty())
        hand.choose("cboRef", outlet);
    for (const OutletOrder& order : orders) {
        hand.choose("cboCat", order.kind);
        hand.choose("cboDrug", order.item);
        hand.type("txtQty", order.quantity);
        hand.click("cmdAdd");
    }
    return hand;
}

Hand enterOutletBill(Program& program, const QString& consultID, const QString& paid, const QString& payFor) {
    program.session.gSearchBillNo = consultID;
    program.open("frmBillingPublic"); // which takes it
    Hand hand(program.form("frmBillingPublic"));
    hand.tick("chkRct", !paid.isEmpty());
    hand.choose("cboPay", "CASH");
    if (paid.isEmpty()) {
        hand.chooseContaining("cboClinic", "");
        return hand;
    }
    hand.choose("cboCat", payFor);
    hand.type("txtHt", paid);
    return hand;
}

void serveOutlets(Program& program, QuietUi& ui, const DemoHospital& hospital, QDate day, DemoRandom& random) {
    const Outlet outlets[] = {{"LABORATORY", "INVESTIGATION", "LABORATORY", hospital.labServices},
                              {"RADIOLOGY", "INVESTIGATION", "RADIOLOGY", hospital.labServices},
                              {"DENTAL", "SERVICE", "DENTAL", hospital.services}};
    const QVector<QStringList> surnames = demoFacts("surnames"), firstNames = demoFacts("firstnames");
    for (int customer = random.between(2, 5); customer > 0; --customer) {
        const Outlet& outlet = outlets[random.chance(70) ? 0 : random.between(1, 2)];
        QVector<OutletOrder> orders = {orderOf(outlet, random)};
        if (random.chance(25)) {
            const DemoItem& drug = hospital.drugs.at(random.below(10));
            if (drug.price > 0)
                orders.append({"DRUG", drug.name, QString::number(random.between(1, 20))});
        }
        Hand hand = enterOutletRequest(program, random.pick(surnames).at(0), random.pick(firstNames).at(0), orders,
                                       outlet.name);
        hand.date("dtDate", day);
        const double payable = hand.value("lblTotal").remove(QLatin1Char(',')).toDouble();
        hand.click("OKButton");
        expectBox(ui, "request", {"Record Succesfully saved !!! Please collate bill"});
        collate(program, ui, outlet, payable, random);
        if (day < hospital.options.until)
            enterResults(program, random);
    }
    program.form("frmInvestigatePublic").unload();
}

} // namespace orvane
