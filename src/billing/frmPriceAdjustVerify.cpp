#include "billing/frmPriceAdjustVerify.h"

#include "billing/BillingRow.h"
#include "billing/Collate.h"
#include "billing/Tariff.h"
#include "data/Money.h"
#include "receipts/PatientAccount.h"

#include <cmath>

namespace orvane {

namespace {

/// A carried balance is signed by its name, whatever sign was typed.
double carriedDebt(const QString& item, double price) {
    return item == QLatin1String("PREVIOUS DEBT") ? -std::abs(price) : std::abs(price);
}

} // namespace

frmPriceAdjustVerify::frmPriceAdjustVerify(Program& owner) : Screen(owner, "frmPriceAdjustVerify", "Bill Adjustment") {
    txtQty.numeric();
    txtPrice.numeric();
    connectHandlers();
}

void frmPriceAdjustVerify::connectHandlers() {
    txtQty.onChange = [this] { workOutSubTotal(); };
    txtPrice.onChange = [this] { workOutSubTotal(); };
    chkAll.onClick = [this] { chkAll_Click(); };
    cmdSave.onClick = [this] { cmdSave_Click(); };
    cmdCancel.onClick = [this] { cmdCancel_Click(); };
    CancelButton.onClick = [this] { unload(); };
}

Layout frmPriceAdjustVerify::layout() const {
    using namespace orvane::layout;
    return column({field("Item", txtDrug, 44), field("Quantity", txtQty, 10), field("Unit Price", txtPrice, 14),
                   field("Amount", lblSub), field("Capitated", cboCap, 8), field("Attended", cboAttend, 8),
                   field("Revenue Type", cboRev, 24), field("Bill To", cboPat, 30), cell(chkAll), cell(chkRct),
                   stretch(), buttons({&cmdCancel}, {&CancelButton, &cmdSave})});
}

void frmPriceAdjustVerify::Form_Load() {
    setCaption("Adjust Bill for " + session.sBillPatName);
    cboCap.addItems({"", "YES", "NO"});
    cboAttend.addItems({"YES", "NO"});
    cboAttend.setLocked(true);
    Connection connection = program.openBilling();
    fillRevenueTypes(connection);
    if (!readItem(connection)) {
        program.box("Please specify Item");
        cmdSave.setEnabled(false);
        cmdCancel.setEnabled(false);
    }
}

void frmPriceAdjustVerify::fillRevenueTypes(Connection& connection) {
    cboRev.addItems({"", "OTHERS"});
    for (Recordset types(connection,
                         Sql("select distinct revType from hRevenueType where Active='YES' order by revType"));
         !types.eof(); types.moveNext())
        cboRev.addItem(types.text("revType"));
}

bool frmPriceAdjustVerify::readItem(Connection& connection) {
    m_sno = session.lWorkSNo;
    m_billNo = session.gConsultID;
    const Recordset item(connection, Sql("select * from BillAccum where SNO=") << m_sno);
    if (item.eof() || item.text("consultID") != m_billNo)
        return false;
    m_pno = item.text("PNo");
    m_oldItem = item.text("drgName");
    m_billTo = item.text("billTo");
    m_coyName = item.text("coyName");
    m_dosage = item.text("usage");
    m_date = item.date("dtDate");
    dPrice = item.number("Price");
    dQty = item.number("Qty");
    m_oldAmount = item.number("SubTotal");
    const Recordset visit(connection,
                          Sql("select clientcat,referal,retainID from qryhVisitsForAttend where consultID ='")
                              << m_billNo << "'");
    m_category = visit.eof() ? QString() : visit.text("clientcat");
    m_referal = visit.eof() ? QString() : visit.text("referal");
    m_retainID = visit.eof() ? m_coyName : visit.text("retainID");

    txtDrug.setText(m_oldItem);
    txtQty.setText(QString::number(dQty, 'g', 15));
    txtPrice.setText(formatNumber(dPrice, "0.00"));
    const QString capitated = item.text("Capitated");
    cboCap.setText(capitated.isEmpty() || !isCapitatedCategory(m_category) ? QStringLiteral("NO") : capitated);
    cboAttend.setText(item.integer("attendedto") == 1 ? "YES" : "NO");
    const QString revType = item.text("revType");
    if (!revType.isEmpty() && !cboRev.items().contains(revType, Qt::CaseInsensitive))
        cboRev.addItem(revType);
    cboRev.setText(revType.isEmpty() ? QStringLiteral("OTHERS") : revType);
    cboPat.addItems({"", m_billTo, session.gBillTo});
    cboPat.setText(m_billTo);
    return true;
}

void frmPriceAdjustVerify::workOutSubTotal() {
    const std::optional<double> qty = parseAmount(txtQty.text());
    const std::optional<double> price = parseAmount(txtPrice.text());
    lblSub.setText(qty && price ? formatNumber(*qty * *price, "#,##0.00") : QString());
}

void frmPriceAdjustVerify::chkAll_Click() {
    for (Control* control : std::initializer_list<Control*>{&txtDrug, &txtQty, &txtPrice, &cboCap, &cboRev, &cboPat})
        control->setEnabled(!chkAll.isChecked());
}

ItemChange frmPriceAdjustVerify::change() const {
    ItemChange change;
    change.billNo = m_billNo;
    change.oldItem = m_oldItem;
    change.newItem = txtDrug.text().trimmed();
    change.oldQty = dQty;
    change.newQty = parseAmount(txtQty.text()).value_or(0);
    change.oldPrice = dPrice;
    change.newPrice = parseAmount(txtPrice.text()).value_or(0);
    return change;
}

bool frmPriceAdjustVerify::isProcessed() {
    Connection connection = program.openBilling();
    if (!isBillProcessed(connection, m_billNo))
        return false;
    program.box(billProcessedText());
    return true;
}

bool frmPriceAdjustVerify::checkFields() {
    const struct {
        bool wrong;
        const char* text;
        Control& control;
    } checks[] = {
        {!parseAmount(txtPrice.text()), " Please enter valid price ", txtPrice},
        {!parseAmount(txtQty.text()), " Please enter valid price ", txtQty},
        {cboCap.text().isEmpty(), "Please specify Capitation", cboCap},
        {cboRev.text().isEmpty() || cboRev.text() == QLatin1String("OTHERS"), "Please specify Revenue Type!", cboRev},
        {txtDrug.text().trimmed().isEmpty(), "Please specify Item", txtDrug},
    };
    for (const auto& check : checks) {
        if (check.wrong) {
            program.box(check.text);
            check.control.setFocus();
            return false;
        }
    }
    return true;
}

void frmPriceAdjustVerify::cmdSave_Click() {
    if (isProcessed() || !checkFields())
        return;
    if (!save()) {
        program.box(billProcessedText());
        return;
    }
    session.sAdjustItem = txtDrug.text().trimmed();
    if (chkRct.isChecked())
        requestTariff();
    rememberChoice();
    unload();
}

bool frmPriceAdjustVerify::save() {
    Connection connection = program.openBilling();
    Transaction transaction(connection);
    if (isBillProcessed(connection, m_billNo))
        return false;
    const ItemChange now = change();
    saveItem(connection, now);
    Recordset line(connection, Sql("select * from BillingDetails where SNO=") << m_sno);
    if (!line.eof())
        changeLine(connection, line, now);
    else if (cboCap.text() == QLatin1String("NO"))
        addLine(connection, now);
    refreshBillFromLines(program, connection, m_billNo);
    transaction.commit();
    return true;
}

void frmPriceAdjustVerify::saveItem(Connection& connection, const ItemChange& now) {
    Recordset item(connection, Sql("select * from BillAccum where SNO=") << m_sno);
    if (item.eof() || item.number("Price") != dPrice || item.number("Qty") != dQty)
        throw DataError(
            "Row cannot be located for updating. Some values may have been changed since it was last read.");
    item.set("Price", now.newPrice);
    item.set("Qty", now.newQty);
    item.set("SubTotal", now.newAmount());
    item.set("drgName", now.newItem);
    item.set("Capitated", cboCap.text());
    item.set("attendedto", 1);
    item.set("isBilled", 1);
    if (!chkRct.isChecked() && !cboPat.text().isEmpty())
        item.set("billTo", cboPat.text());
    item.set("revType", cboRev.text());
    item.update();
    if (now.newAmount() == now.oldAmount())
        return;
    audit("Bill Adjustment: Item from: " + now.oldItem + " : => " + now.newItem,
          " Qty from: " + QString::number(now.oldQty) + " : => " + QString::number(now.newQty) +
              " price from: " + formatNumber(now.oldPrice, "0.00") + " : => " + formatNumber(now.newPrice, "0.00"));
    traceAdjustment(program, connection, now, "BILL ADJUST");
}

/// An item that waited is billed by its adjustment.
void frmPriceAdjustVerify::addLine(Connection& connection, const ItemChange& now) {
    Recordset line(connection, Sql("select * from BillingDetails where 1=2"));
    line.addNew();
    line.set("dtDate", m_date);
    line.set("SNo", m_sno);
    line.set("billNo", m_billNo);
    line.set("PNo", m_pno);
    line.set("drgName", now.newItem);
    line.set("Price", now.newPrice);
    line.set("Qty", now.newQty);
    line.set("SubTotal", now.newAmount());
    line.set("dosage", "N/A");
    line.set("billType", "SERVICE");
    line.set("conID", 0);
    line.set("Capitated", "NO");
    line.set("billTo", m_billTo);
    line.set("coyName", m_coyName);
    line.set("revType", cboRev.text());
    line.set("BillBy", session.gUsername);
    line.update();
    refreshBillFromLines(program, connection, m_billNo);
    if (!isCarriedBalance(now.newItem))
        postPatientTran(program, connection, session.gServerDate, m_pno, m_billNo, 0 - now.newAmount(), m_billTo,
                        "New Bill Item: " + now.newItem);
    audit("insert BillDetails Item for " + session.sBillPatName,
          now.newItem + ": " + formatNumber(now.newAmount(), "0.00"));
    connection.execute(Sql("update BillAccum set attendedTo=1,isbilled=1 where SNO =") << m_sno);
    if (isCarriedBalance(now.newItem))
        reviewCarriedBalance(connection, m_billNo, m_pno, session.gServerDate, carriedDebt(now.newItem, now.newPrice));
}

/// A line that is turned capitated stays listed at no charge until the next collation takes it away; its charge goes
/// back.
void frmPriceAdjustVerify::changeLine(Connection& connection, Recordset& line, const ItemChange& now) {
    const bool capitated = cboCap.text() == QLatin1String("YES");
    const double charged = line.number("SubTotal");
    line.set("Price", capitated ? 0 : now.newPrice);
    line.set("Qty", now.newQty);
    line.set("SubTotal", capitated ? 0 : now.newAmount());
    line.set("revType", cboRev.text());
    line.set("drgName", now.newItem);
    line.update();
    refreshBillFromLines(program, connection, m_billNo);
    if (isCarriedBalance(now.oldItem)) {
        reviewCarriedBalance(connection, m_billNo, m_pno, session.gServerDate, carriedDebt(now.oldItem, now.newPrice));
        return;
    }
    if (capitated)
        postPatientTran(program, connection, session.gServerDate, m_pno, m_billNo, charged, m_billTo,
                        "Bill Item Capitated: " + now.newItem);
    else if (now.newAmount() != charged)
        postPatientTran(program, connection, session.gServerDate, m_pno, m_billNo, charged - now.newAmount(), m_billTo,
                        "Adjusted Bill Item: " + now.newItem);
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
        request.set("Category", m_category);
        request.update();
    }
    program.box("Request Submitted");
}

void frmPriceAdjustVerify::rememberChoice() {
    Connection connection = program.openBilling();
    const Recordset item(connection, Sql("select billtype from billAccum where SNo=") << m_sno);
    const QString kind =
        item.eof() || item.text("billtype").isEmpty() ? QStringLiteral("SERVICE") : item.text("billtype");
    if (const TariffKind* known = tariffKind(kind, BillPatTariff))
        rememberTemplateFlags(connection, *known, {m_category, m_retainID, m_referal}, txtDrug.text().trimmed(),
                              cboCap.text(), cboRev.text());
}

void frmPriceAdjustVerify::cmdCancel_Click() {
    if (isProcessed())
        return;
    if (!program.question("Are you sure to Remove Bill Item", "Adjustment"))
        return;
    if (!remove()) {
        program.box(billProcessedText());
        return;
    }
    program.box(" Bill Item successfully Removed");
    audit("Remove Bill Item for " + session.sBillPatName,
          m_oldItem + ": Qty:" + QString::number(dQty) + " Amount: " + formatNumber(m_oldAmount, "0.00"));
    unload();
}

bool frmPriceAdjustVerify::remove() {
    Connection connection = program.openBilling();
    Transaction transaction(connection);
    if (isBillProcessed(connection, m_billNo))
        return false;
    // Only what was charged goes back: an item that never reached the bill has charged nothing.
    const Recordset line(connection, Sql("select SubTotal,billTo from BillingDetails where SNO=") << m_sno);
    const double charged = line.eof() ? 0 : line.number("SubTotal");
    const QString billTo = line.eof() ? m_billTo : line.text("billTo");
    connection.execute(Sql("delete from billingdetails where SNO = '") << m_sno << "'");
    connection.execute(Sql("delete from billAccum where SNO = '") << m_sno << "'");
    ItemChange gone = change();
    gone.newItem = gone.oldItem;
    gone.newQty = 0;
    gone.newPrice = 0;
    traceAdjustment(program, connection, gone, "BILL DELETED");
    if (isCarriedBalance(m_oldItem))
        reviewCarriedBalance(connection, m_billNo, m_pno, session.gServerDate, carriedDebt(m_oldItem, dPrice));
    else if (charged != 0)
        postPatientTran(program, connection, session.gServerDate, m_pno, m_billNo, charged, billTo,
                        "Bill Item Removed: " + m_oldItem);
    refreshBillFromLines(program, connection, m_billNo);
    transaction.commit();
    return true;
}

void frmPriceAdjustVerify::audit(const QString& action, const QString& detail) {
    program.writeAuditTrail(session.gUsername, action, m_billNo, detail, session.sComputerName);
}

} // namespace orvane
