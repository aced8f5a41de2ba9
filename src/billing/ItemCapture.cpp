#include "billing/ItemCapture.h"

#include "billing/BillLook.h"
#include "billing/TreatmentPlan.h"
#include "books/Bill.h"
#include "data/words/Money.h"

namespace orvane {

ItemCapture::ItemCapture(Program& owner, const QString& formName, const QString& formCaption, const Kind& kind)
    : Screen(owner, formName, formCaption), m_kind(kind) {
    txtPresc.multiline().setLocked(true);
    cboDrug.upperCase();
    for (TextBox* box : {&txtPrice, &txtQty, &txtSub})
        box->numeric();
    fraDrug.holds({&dtDate, &cboCat, &cboPat, &cboDrug, &cboFFS2, &txtPrice, &txtQty, &txtSub, &lblStock, &lblCat,
                   &lblInfo, &cmdAdd});
    OrderGridDrug.setHead(
        "----------------------------Item--------------------------------------|-------Category------|------Price------"
        "|---No Of Units---|-----------Sub Total------------|-------------------Usage-----------|--Capitated--"
        "|-------EntryType----|--------Status-----------|----------BillTo---------"
        "|----------CoyName----------|----------RevenueType----------");
    OrderGridDrug.setMoney({Price, Units, SubTotal});
    OrderGridDrug.onDelete = OrderGridDrug.onDblClick;
    // A typed item has no price of its own, and must not take the one of the item picked before.
    cboDrug.onChange = [this] { resetTariffFields(); };
    if (kind.asksRevenueType) {
        cboRev.emplace(*this, "cboRev", ComboBox::ListOnly);
        fraDrug.holds({&*cboRev});
    }
}

Layout ItemCapture::entryLayout() const {
    using namespace orvane::layout;
    Layout item = column({field("Date", dtDate), field("Category", cboCat), field("Drug/Service", cboDrug, 36),
                          field("BillTo", cboPat, 36)});
    if (cboRev)
        item.children.append(field("Revenue Type", *cboRev, 36));
    return group("New Item",
                 {row({item, column({field("Price", txtPrice), field("Quantity", txtQty), field("Sub Total", txtSub),
                                     field("Capitated", cboFFS2), field("In Stock", lblStock)})}),
                  row({field("Item Category", lblCat), stretch(), cell(cmdAdd)}), cell(lblInfo)},
                 &fraDrug);
}

Layout ItemCapture::layout() const {
    using namespace orvane::layout;
    return column({facts({{"Patient No", &lblNo},
                          {"Bill No", &lblBill},
                          {"Age", &lblAge},
                          {"Clinic", &lblClinic},
                          {"Physician", &lblPhy},
                          {"Company", &lblCoy},
                          {"Category", &lblClient},
                          {"Fee for Service", &lblFFS}}),
                   row({growing(group("Treatment Plan", {growing(cell(txtPresc, 64))})),
                        column({entryLayout(), row({field("Fee for Service", cboFFS), cell(cmdUpd), stretch()})})}),
                   growing(row({growing(cell(OrderGridDrug)),
                                column({card({field("Amount Generated", lblGen), field("Amount Billed", lblBilled),
                                              field("Amount Paid", lblPaid), large("Total", lblTotal)}),
                                        cell(Label5)})})),
                   buttons({&cmdRefresh, &cmdCancel}, {&CancelButton, &OKButton})});
}

void ItemCapture::Form_Load() {
    lblInfo.clear();
    dtDate.setDate(program.getServerDateTime().date());
    txtPrice.setLocked(session.gLockPrice == "YES");
    lblTotal.setText("0");
    fraDrug.setEnabled(true);
    cboCat.addItems({"", "DRUG", m_kind.tariff.laboratory, "SERVICE"});
    cboFFS.addItems({"", "YES", "NO"});
    cboFFS2.addItems({"", "YES", "NO"});
    loadPatient();
    showFigures();
    if (cboRev)
        fillRevenueTypes();
}

void ItemCapture::fillRevenueTypes() {
    Connection connection = program.openBilling();
    cboRev->addItem("");
    Recordset type(connection, Sql("select distinct revType from hRevenueType where Active='YES' order by revType"));
    for (; !type.eof(); type.moveNext())
        cboRev->addItem(type.text("revType"));
    cboRev->setText("OTHERS");
}

void ItemCapture::loadPatient() {
    txtPresc.clear();
    lblBill.setText(session.gConsultID);
    Connection connection = program.openBilling();
    const Recordset visit(
        connection,
        Sql("select distinct  "
            "retainID,RetainCode,cdate,cTime,ref,BillRemarks,company,prescription,Diagnosis,Investigate,"
            "services,consultID,clientcat,pno,remarks,treatedby,Age from vwhConsultingDetailsForBillingAlt where "
            "consultID='")
            << session.gConsultID << "' order by cdate desc");
    txtPresc.setText(treatmentPlan(visit));
    if (visit.eof()) {
        for (Label* label : {&lblClient, &lblClinic, &lblNo, &lblAge, &lblPhy, &lblCoy, &lblFFS})
            label->clear();
    } else {
        showPatient(visit);
        fillBillTo(connection);
        preProcessing();
        prevEntries(connection);
    }
    const Recordset markUp(connection, Sql("select  pcent,pvalue from billingprice where clientcatID ='")
                                           << lblClient.text() << "'");
    dMarkUp = markUp.eof() ? 0 : markUp.number("pvalue");
}

void ItemCapture::showPatient(const Recordset& visit) {
    sRetainID = visit.text("retainID");
    sRetainCode = visit.text("retainCode");
    lblClient.setText(visit.text("clientCat"));
    lblClinic.setText(visit.text("Remarks"));
    lblNo.setText(visit.text("PNo"));
    session.gConsultID = visit.text("consultID");
    lblBill.setText(session.gConsultID);
    lblPhy.setText(visit.text("treatedby"));
    lblAge.setText(visit.text("Age"));
    lblCoy.setText(visit.text("Company"));
    session.sAuditCoy = lblCoy.text();
    lblFFS.setText(visit.text("ref").isEmpty() ? "NO" : visit.text("ref"));
}

void ItemCapture::fillBillTo(Connection& connection) {
    cboPat.clear();
    cboPat.addItem("");
    Recordset client(connection,
                     Sql("Select distinct retainCode ,retainID,retainName from hretainership where retainID in ('")
                         << sRetainID << "','" << session.gPrivateTariff << "') order by retainCode desc");
    for (; !client.eof(); client.moveNext())
        cboPat.addItem(client.text("retainName"), client.text("retainCode"));
}

void ItemCapture::preProcessing() {
    program.desk().save<Saved>(
        "ITEM REPAIR",
        [this](Books& books) -> Given<Saved> {
            prepareItems(books, entered(), sRetainCode);
            return Saved{};
        });
}

/// Shows the lines already in the database; lines not yet saved are lost.
void ItemCapture::prevEntries(Connection& connection) {
    OrderGridDrug.clear();
    total = 0;
    showAmount({&lblGen, &lblBilled, &lblPaid}, 0);
    Recordset row(connection, Sql("select distinct * from qrybillAccumHome   where consultID='")
                                  << session.gConsultID << "'");
    for (; !row.eof(); row.moveNext()) {
        const QString type = row.text("billType");
        const bool isKnownType = type == "DRUG" || type == "LAB" || type == "SERVICE";
        const QString cells[] = {row.text("Service"),
                                 row.text("Category"),
                                 formatTwoDecimals(row.number("UnitPrice")),
                                 row.text("Qty"),
                                 formatTwoDecimals(row.number("SubTotal")),
                                 row.text("usage"),
                                 row.text("Capitated"),
                                 isKnownType ? type : "SERVICE",
                                 "OLD",
                                 row.text("billTo").isEmpty() ? sRetainCode : row.text("billTo"),
                                 row.text("coyName").isEmpty() ? sRetainID : row.text("coyName")};
        const int line = OrderGridDrug.rows() - 1;
        for (int column = Item; column <= CoyName; ++column)
            OrderGridDrug.setCell(line, column, cells[column]);
        OrderGridDrug.addRow();
    }
}

void ItemCapture::showFigures() {
    const BillFigures figures = lookAtBill(program, session.gConsultID);
    showAmount({&lblGen}, figures.generated);
    showAmount({&lblBilled, &lblTotal}, figures.billed);
    showAmount({&lblPaid}, figures.paid);
}

void ItemCapture::rereadEntries() {
    Connection connection = program.openBilling();
    prevEntries(connection);
    showFigures();
}

void ItemCapture::cmdCancel_Click() {
    resetEntryLine();
    rereadEntries();
}

bool ItemCapture::isBillOpen() {
    Connection connection = program.openBilling();
    return passes({{isBillProcessed(connection, lblBill.text()), refusalText(Refusal::BillProcessed)}});
}

/// Sets the visit to fee-for-service or back: all its items flip at once.
void ItemCapture::cmdUpd_Click() {
    save<Saved>(
        {.button = cmdUpd,
         .action = "FEE FOR SERVICE",
         .allowed =
             [this] {
                 return passes({{cboFFS.text().isEmpty(), "Specify FeeForService", &cboFFS}}) && isBillOpen();
             },
         .step = [this](Books& books) { return setFeeForService(books, lblBill.text(), lblNo.text(), cboFFS.text()); },
         .follow = [this](const Saved&) { rereadEntries(); }});
}

bool ItemCapture::areLinesReady() {
    return passes({{dtDate.isEmpty(), m_kind.dateRefusal, &dtDate},
                   {OrderGridDrug.rows() < 3, "No  Item is Processed!!! Please Verify", &cboDrug}});
}

void ItemCapture::OKButton_Click() {
    save<Saved>({.button = OKButton,
                 .action = m_kind.action,
                 .allowed = [this] { return areLinesReady() && isBillOpen(); },
                 .question = "Are you sure to save?",
                 .title = "About to save",
                 .detail =
                     [this] {
                         double amount = 0;
                         for (const auto& item : entered().items)
                             amount += item.subTotal;
                         return aboutLines({session.sBillPatName, "Bill " + lblBill.text(), nairaText(amount)});
                     },
                 .step = [this](Books& books) { return m_kind.save(books, entered()); },
                 .follow = [this](const Saved&) { unload(); }});
}

EnteredItems ItemCapture::entered() const {
    EnteredItems all{.consultID = lblBill.text(),
                     .pno = lblNo.text(),
                     .retainID = sRetainID,
                     .category = lblClient.text(),
                     .feeForService = lblFFS.text(),
                     .date = dtDate.date(),
                     .company = session.sAuditCoy};
    for (int row = 1; row < OrderGridDrug.rows() - 1; ++row)
        if (cellText(row, Status) == "NEW")
            all.items.append({.name = cellText(row, Item),
                              .category = cellText(row, Category),
                              .price = amountIn(row, Price),
                              .qty = amountIn(row, Units),
                              .subTotal = amountIn(row, SubTotal),
                              .usage = cellText(row, Usage),
                              .capitated = cellText(row, Capitated),
                              .billType = cellText(row, EntryType),
                              .billTo = cellText(row, BillTo),
                              .coyName = cellText(row, CoyName),
                              .revType = cellText(row, RevenueType)});
    return all;
}

double ItemCapture::amountIn(int row, Column column) const {
    return parseAmount(cellText(row, column)).value_or(0);
}

TariffVisit ItemCapture::visit() const {
    return {lblClient.text(), sRetainID, lblFFS.text()};
}

} // namespace orvane
