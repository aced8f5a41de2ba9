#include "billing/frmPriceAdjustVerify.h"

#include "books/BillInHand.h"
#include "books/Tariff.h"
#include "data/words/Money.h"

namespace orvane {

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
                              << m_row.billNo << "'");
    if (visit.eof())
        return;
    m_category = visit.text("clientcat");
    m_referal = visit.text("referal");
    m_retainID = visit.text("retainID");
}

void frmPriceAdjustVerify::showItem(Connection& connection, const Recordset& item) {
    m_coyName = item.text("coyName");
    m_itemCategory = item.text("Category");
    m_oldAmount = item.number("SubTotal");
    const QString capitated = item.text("Capitated");
    cboCap.setText(capitated.isEmpty() || !isCapitatedCategory(m_category) ? "NO" : capitated);
    cboAttend.setText(item.integer("attendedto") == 1 ? "YES" : "NO");
    const QString revType = item.text("revType");
    if (!revType.isEmpty() && !cboRev.items().contains(revType, Qt::CaseInsensitive))
        cboRev.addItem(revType);
    cboRev.setText(revType.isEmpty() ? "OTHERS" : revType);
    const QString billTo = payerNow(connection, item);
    offerClients(cboPat, connection, payers(billTo), billTo);
}

/// Of the line where the item is billed: a split may have named another payer than the item does.
QString frmPriceAdjustVerify::payerNow(Connection& connection, const Recordset& item) const {
    const Recordset line(connection, Sql("select billTo from BillingDetails where SNo=") << m_row.sno);
    return (line.eof() ? item : line).text("billTo");
}

void frmPriceAdjustVerify::chkAll_Click() {
    for (Control* control : std::initializer_list<Control*>{&txtDrug, &txtQty, &txtPrice, &cboCap, &cboRev, &cboPat})
        control->setEnabled(!chkAll.isChecked());
}

bool frmPriceAdjustVerify::isComplete() {
    const bool lacksRevenueType = cboRev.text().isEmpty() || cboRev.text() == "OTHERS";
    return passes({{!isPriceValid(), " Please enter valid price ", &txtPrice},
                   {cboCap.text().isEmpty(), "Please specify Capitation", &cboCap},
                   {lacksRevenueType, "Please specify Revenue Type!", &cboRev},
                   {change().newItem.isEmpty(), "Please specify Item", &txtDrug}});
}

/// A mere request for the tariff leaves the payer alone.
Given<Saved> frmPriceAdjustVerify::write(Books& books) {
    return adjustItem(books, {.change = change(),
                              .capitated = cboCap.text() == "YES",
                              .revType = cboRev.text(),
                              .billTo = chkRct.isChecked() ? QString() : chosenClient(cboPat),
                              .patient = session.sBillPatName});
}

void frmPriceAdjustVerify::afterSave() {
    const ItemChange now = change();
    session.sAdjustItem = now.newItem;
    program.desk().save<Saved>("TARIFF FLAGS", [&](Books& books) -> Given<Saved> {
        if (chkRct.isChecked())
            requestTariff(books, {now, cboRev.text(), m_coyName, m_itemCategory});
        rememberChoice(books, now.newItem);
        return Saved{};
    });
    if (chkRct.isChecked())
        program.box("Request Submitted");
}

void frmPriceAdjustVerify::rememberChoice(Books& books, const QString& name) {
    const Recordset item(books.connection, Sql("select billtype from billAccum where SNo=") << m_row.sno);
    if (item.eof())
        return; // removed since
    const QString kind = item.text("billtype").isEmpty() ? "SERVICE" : item.text("billtype");
    if (const TariffKind* known = tariffKind(kind, BillPatTariff))
        rememberTemplateFlags(books, *known, {m_category, m_retainID, m_referal}, name, cboCap.text(), cboRev.text());
}

void frmPriceAdjustVerify::cmdCancel_Click() {
    save<Saved>({.button = cmdCancel,
                 .action = "BILL ITEM REMOVED",
                 .allowed = [this] { return isBillOpen(); },
                 .question = "Are you sure to Remove Bill Item",
                 .title = "Adjustment",
                 .consent = Consent::Destroys,
                 .detail =
                     [this] {
                         return aboutLines(
                             {session.sBillPatName, "Bill " + m_row.billNo, m_row.oldItem, nairaText(m_oldAmount)});
                     },
                 .step = [this](Books& books) { return removeItem(books, m_row); },
                 .follow = [this, gone = m_row](const Saved&) { afterRemoval(gone); },
                 .trailRows = 1});
}

void frmPriceAdjustVerify::afterRemoval(const ItemChange& gone) {
    program.box(" Bill Item successfully Removed");
    program.writeAuditTrail(
        {"Remove Bill Item for " + session.sBillPatName, gone.billNo,
         gone.oldItem + ": Qty:" + QString::number(gone.oldQty) + " Amount: " + formatNumber(m_oldAmount, "0.00")});
    unload();
}

} // namespace orvane
