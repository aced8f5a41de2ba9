#include "billing/frmPriceAdjustVerify.h"

#include "billing/BillingRow.h"
#include "billing/Collate.h"
#include "billing/Tariff.h"
#include "receipts/PatientAccount.h"

#include <cmath>

namespace orvane {

namespace {

/// A carried balance is signed by its name, whatever sign was typed.
double carriedDebt(const QString& item, double price) {
    return item == QLatin1String("PREVIOUS DEBT") ? -std::abs(price) : std::abs(price);
}

} // namespace

frmPriceAdjustVerify::frmPriceAdjustVerify(Program& owner)
    : PriceAdjustScreen(owner, "frmPriceAdjustVerify", "Bill Adjustment") {
    chkAll.onClick = [this] { chkAll_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
}

Layout frmPriceAdjustVerify::layout() const {
    using namespace orvane::layout;
    return fieldsAbove({field("Capitated", cboCap, 8), field("Attended", cboAttend, 8),
                        field("Revenue Type", cboRev, 24), field("Bill To", cboPat, 44), cell(chkAll), cell(chkRct),
                        stretch(), buttons({&cmdCancel}, {&CancelButton, &cmdSave})});
}

void frmPriceAdjustVerify::Form_Load() {
    setCaption("Adjust Bill for " + session.sBillPatName);
    cboCap.addItems({"", "YES", "NO"});
    cboAttend.addItems({"YES", "NO"});
    cboAttend.setLocked(true);
    Connection connection = program.openBilling();
    fillRevenueTypes(connection);
    const Recordset item = openRow(connection);
    if (!showRow(item, "consultID")) {
        program.box("Please specify Item");
        cmdCancel.setEnabled(false);
        return;
    }
    readVisit(connection);
    showItem(connection, item);
}

void frmPriceAdjustVerify::fillRevenueTypes(Connection& connection) {
    cboRev.addItems({"", "OTHERS"});
    for (Recordset types(connection,
                         Sql("select distinct revType from hRevenueType where Active='YES' order by revType"));
         !types.eof(); types.moveNext())
        if (!cboRev.items().contains(types.text("revType"), Qt::CaseInsensitive))
            cboRev.addItem(types.text("revType"));
}

/// The item in hand, on the bill in hand.
Recordset frmPriceAdjustVerify::openRow(Connection& connection) const {
    return Recordset(connection, Sql("select * from BillAccum where SNO=")
                                     << session.lWorkSNo << " and consultID='" << session.gConsultID << "'");
}

void frmPriceAdjustVerify::readVisit(Connection& connection) {
    const Recordset visit(connection,
                          Sql("select clientcat,referal,retainID from qryhVisitsForAttend where consultID ='")
                              << m_billNo << "'");
    if (visit.eof())
        return;
    m_category = visit.text("clientcat");
    m_referal = visit.text("referal");
    m_retainID = visit.text("retainID");
}

void frmPriceAdjustVerify::showItem(Connection& connection, const Recordset& item) {
    m_pno = item.text("PNo");
    m_billTo = item.text("billTo");
    m_coyName = item.text("coyName");
    m_itemCategory = item.text("Category");
    m_date = item.date("dtDate");
    m_oldAmount = item.number("SubTotal");
    const QString capitated = item.text("Capitated");
    cboCap.setText(capitated.isEmpty() || !isCapitatedCategory(m_category) ? "NO" : capitated);
    cboAttend.setText(item.integer("attendedto") == 1 ? "YES" : "NO");
    const QString revType = item.text("revType");
    if (!revType.isEmpty() && !cboRev.items().contains(revType, Qt::CaseInsensitive))
        cboRev.addItem(revType);
    cboRev.setText(revType.isEmpty() ? "OTHERS" : revType);
    offerClients(cboPat, connection, payers(m_billTo), m_billTo);
}

void frmPriceAdjustVerify::chkAll_Click() {
    for (Control* control : std::initializer_list<Control*>{&txtDrug, &txtQty, &txtPrice, &cboCap, &cboRev, &cboPat})
        control->setEnabled(!chkAll.isChecked());
}

std::vector<PriceAdjustScreen::Check> frmPriceAdjustVerify::checks() {
    const bool lacksRevenueType = cboRev.text().isEmpty() || cboRev.text() == QLatin1String("OTHERS");
    return {{!isPriceValid(), " Please enter valid price ", txtPrice},
            {cboCap.text().isEmpty(), "Please specify Capitation", cboCap},
            {lacksRevenueType, "Please specify Revenue Type!", cboRev},
            {change().newItem.isEmpty(), "Please specify Item", txtDrug}};
}

void frmPriceAdjustVerify::saveRow(Connection& connection, Recordset& item) {
    const ItemChange now = change();
    saveItem(item, now);
    if (now.newAmount() != now.oldAmount()) {
        auditAdjustment(program, now, "Bill Adjustment: Item from: ");
        traceAdjustment(program, connection, now, "BILL ADJUST");
    }
    Recordset line(connection, Sql("select * from BillingDetails where SNO=") << m_sno);
    if (!line.eof())
        changeLine(connection, line, now);
    else if (cboCap.text() == QLatin1String("NO"))
        addLine(connection, now);
    refreshBillFromLines(program, connection, m_billNo);
}

/// Who pays the item from now on. A mere request for the tariff leaves that alone.
QString frmPriceAdjustVerify::newBillTo() const {
    return chkRct.isChecked() || cboPat.text().isEmpty() ? m_billTo : chosenClient(cboPat);
}

void frmPriceAdjustVerify::saveItem(Recordset& item, const ItemChange& now) {
    setAmounts(item, now);
    item.set("Capitated", cboCap.text());
    item.set("attendedto", 1);
    item.set("isBilled", 1);
    item.set("billTo", newBillTo());
    item.set("revType", cboRev.text());
    item.update();
}

/// An item that waited is billed by its adjustment.
void frmPriceAdjustVerify::addLine(Connection& connection, const ItemChange& now) {
    Recordset line(connection, Sql("select * from BillingDetails where 1=2"));
    line.addNew();
    setAmounts(line, now);
    line.set("dtDate", m_date);
    line.set("SNo", m_sno);
    line.set("billNo", m_billNo);
    line.set("PNo", m_pno);
    line.set("dosage", "N/A");
    line.set("billType", "SERVICE");
    line.set("conID", 0);
    line.set("Capitated", "NO");
    line.set("billTo", newBillTo());
    line.set("coyName", m_coyName);
    line.set("revType", cboRev.text());
    line.set("BillBy", session.gUsername);
    line.update();
    audit("insert BillDetails Item for " + session.sBillPatName,
          now.newItem + ": " + formatNumber(now.newAmount(), "0.00"));
    connection.execute(Sql("update BillAccum set attendedTo=1,isbilled=1 where SNO =") << m_sno);
    if (isCarriedBalance(now.newItem))
        reviewCarriedBalance(connection, m_billNo, m_pno, session.gServerDate, carriedDebt(now.newItem, now.newPrice));
    else
        post(connection, 0 - now.newAmount(), newBillTo(), "New Bill Item: " + now.newItem);
}

/// A line that is turned capitated stays listed at no charge until the next collation takes it away, and its charge
/// goes back. A carried balance is charged by no one, so renaming an item to one, or back, moves its whole charge.
void frmPriceAdjustVerify::changeLine(Connection& connection, Recordset& line, const ItemChange& now) {
    const bool capitated = cboCap.text() == QLatin1String("YES");
    const bool wasCarried = isCarriedBalance(line.text("drgName"));
    const bool isCarried = isCarriedBalance(now.newItem);
    const double before = wasCarried ? 0 : line.number("SubTotal");
    const double after = capitated || isCarried ? 0 : now.newAmount();
    setAmounts(line, now);
    if (capitated) {
        line.set("Price", 0);
        line.set("SubTotal", 0);
    }
    line.set("revType", cboRev.text());
    line.update();
    if (wasCarried || isCarried)
        reviewCarriedBalance(connection, m_billNo, m_pno, session.gServerDate,
                             carriedDebt(isCarried ? now.newItem : now.oldItem, now.newPrice));
    if (after != before)
        post(connection, before - after, line.text("billTo"),
             (capitated ? "Bill Item Capitated: " : "Adjusted Bill Item: ") + now.newItem);
}

void frmPriceAdjustVerify::post(Connection& connection, double amount, const QString& billTo, const QString& remarks) {
    postPatientTran(program, connection, session.gServerDate, m_pno, m_billNo, amount, billTo, remarks);
}

void frmPriceAdjustVerify::afterSave() {
    session.sAdjustItem = change().newItem;
    if (chkRct.isChecked())
        requestTariff();
    rememberChoice();
}

/// A request only: the tariff itself is not changed here.
void frmPriceAdjustVerify::requestTariff() {
    const ItemChange now = change();
    {
        Connection connection = program.openBilling();
        Recordset request(connection, Sql("select * from TariffAdjust where 1=2"));
        request.addNew();
        request.set("SNo", m_sno);
        request.set("ItemName", now.newItem);
        request.set("OldPrice", now.oldPrice);
        request.set("newPrice", now.newPrice);
        request.set("revType", cboRev.text());
        request.set("coyName", m_coyName);
        request.set("billNo", m_billNo);
        request.set("Category", m_itemCategory);
        request.update();
    }
    program.box("Request Submitted");
}

void frmPriceAdjustVerify::rememberChoice() {
    Connection connection = program.openBilling();
    const Recordset item(connection, Sql("select billtype from billAccum where SNo=") << m_sno);
    if (item.eof())
        return; // removed since
    const QString kind = item.text("billtype").isEmpty() ? "SERVICE" : item.text("billtype");
    if (const TariffKind* known = tariffKind(kind, BillPatTariff))
        rememberTemplateFlags(connection, *known, {m_category, m_retainID, m_referal}, change().newItem, cboCap.text(),
                              cboRev.text());
}

void frmPriceAdjustVerify::cmdCancel_Click() {
    if (settlesSave() || isFrozen())
        return;
    if (!program.question("Are you sure to Remove Bill Item", "Adjustment"))
        return;
    changeBill(
        cmdCancel, [this](Connection& connection) { remove(connection); },
        [this] {
            program.box(" Bill Item successfully Removed");
            audit("Remove Bill Item for " + session.sBillPatName,
                  m_oldItem + ": Qty:" + QString::number(dQty) + " Amount: " + formatNumber(m_oldAmount, "0.00"));
            unload();
        });
}

/// Only what was charged goes back, to the account that bore it: an item that never reached the bill has charged
/// nothing.
void frmPriceAdjustVerify::remove(Connection& connection) {
    requireUnchanged(openRow(connection));
    const Recordset line(connection, Sql("select SubTotal,billTo from BillingDetails where SNO=") << m_sno);
    connection.execute(Sql("delete from billingdetails where SNO = '") << m_sno << "'");
    connection.execute(Sql("delete from billAccum where SNO = '") << m_sno << "'");
    ItemChange gone = change();
    gone.newItem = gone.oldItem;
    gone.newQty = 0;
    gone.newPrice = 0;
    traceAdjustment(program, connection, gone, "BILL DELETED");
    if (isCarriedBalance(m_oldItem))
        reviewCarriedBalance(connection, m_billNo, m_pno, session.gServerDate, carriedDebt(m_oldItem, dPrice));
    else if (!line.eof() && line.number("SubTotal") != 0)
        post(connection, line.number("SubTotal"), line.text("billTo"), "Bill Item Removed: " + m_oldItem);
    refreshBillFromLines(program, connection, m_billNo);
}

void frmPriceAdjustVerify::audit(const QString& action, const QString& detail) {
    program.writeAuditTrail({action, m_billNo, detail});
}

} // namespace orvane
