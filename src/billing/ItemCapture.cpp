#include "billing/ItemCapture.h"

#include "billing/BillSummary.h"
#include "billing/Collate.h"
#include "billing/TreatmentPlan.h"
#include "data/words/Money.h"

namespace orvane {

ItemCapture::ItemCapture(Program& owner, const QString& formName, const QString& formCaption,
                         const TariffPolicy& tariff, const QString& dateRefusal)
    : Screen(owner, formName, formCaption), m_tariff(tariff), m_dateRefusal(dateRefusal) {
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
    cmdUpd.onClick = [this] { cmdUpd_Click(); };
    cboCat.onClick = [this] { cboCat_Click(); };
    cboPat.onClick = [this] { cboPat_Click(); };
    cboDrug.onClick = [this] { cboDrug_Click(); };
    // A typed item has no price of its own, and must not take the one of the item picked before.
    cboDrug.onChange = [this] { resetTariffFields(tariffFields()); };
    txtPrice.onChange = [this] { priceOrQuantity_Change(); };
    txtQty.onChange = [this] { priceOrQuantity_Change(); };
    txtSub.onChange = [this] { txtSub_Change(); };
    lblTotal.onChange = [this] { calcTotal(); };
    cmdAdd.onClick = [this] { cmdAdd_Click(); };
    OrderGridDrug.onDblClick = [this] { OrderGridDrug_DblClick(); };
    cmdRefresh.onClick = [this] { rereadEntries(); };
    cmdCancel.onClick = [this] {
        resetEntryLine();
        rereadEntries();
    };
    CancelButton.onClick = [this] { unload(); };
    OKButton.onClick = [this] { OKButton_Click(); };
}

void ItemCapture::addRevenueTypes() {
    cboRev.emplace(*this, "cboRev", ComboBox::ListOnly);
    fraDrug.holds({&*cboRev});
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
    cboCat.addItems({"", "DRUG", "INVESTIGATION", "SERVICE"});
    cboFFS.addItems({"", "YES", "NO"});
    cboFFS2.addItems({"", "YES", "NO"});
    loadPatient();
    saveBillSummary(program, *this, session.gConsultID);
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
        preProcessing(connection);
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

/// Repairs the rows of the visit, each statement alone.
void ItemCapture::preProcessing(Connection& connection) {
    const QString& id = session.gConsultID;
    connection.execute(Sql("update BillAccum set capitated='NO' where capitated='BIL' and consultID = '") << id << "'");
    connection.execute(Sql("update BillAccum set CoyName='")
                       << sRetainID << "' where coyName is null and consultID = '" << id << "'");
    connection.execute(Sql("update BillAccum set BillTo='")
                       << sRetainCode << "' where BillTo is null and consultID = '" << id << "'");
    if (!isCapitatedCategory(lblClient.text()) || lblFFS.text() == "YES")
        connection.execute(Sql("update BillAccum set capitated='NO' where consultID = '") << id << "'");
    else
        connection.execute(Sql("update BillAccum set capitated='NO' where capitated='' and consultID = '")
                           << id << "'");
}

/// Shows the lines already in the database; lines not yet saved are lost.
void ItemCapture::prevEntries(Connection& connection) {
    OrderGridDrug.clear();
    total = 0;
    for (Label* label : {&lblGen, &lblBilled, &lblPaid})
        label->setText(formatTwoDecimals(0));
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

void ItemCapture::rereadEntries() {
    Connection connection = program.openBilling();
    prevEntries(connection);
    saveBillSummary(program, *this, session.gConsultID);
}

/// Sets the visit to fee-for-service or back: all its items flip at once.
void ItemCapture::cmdUpd_Click() {
    if (cboFFS.text().isEmpty()) {
        program.box("Specify FeeForService");
        cboFFS.setFocus();
        return;
    }
    Connection connection = program.openBilling();
    Transaction transaction(connection);
    if (isBillProcessed(connection, lblBill.text())) {
        transaction.rollback();
        program.box(billProcessedText());
        return;
    }
    connection.execute(Sql("update hrecords set referal='")
                       << cboFFS.text() << "' where consultID='" << lblBill.text() << "'");
    connection.execute(Sql("update hPatients set ref='") << cboFFS.text() << "' where pno='" << lblNo.text() << "'");
    if (cboFFS.text() == "NO")
        connection.execute(Sql("update billAccum set capitated='YES' where consultID='") << lblBill.text() << "'");
    else
        connection.execute(Sql("update billAccum set capitated='NO' where consultID='") << lblBill.text() << "'");
    transaction.commit();
    rereadEntries();
}

TariffVisit ItemCapture::visit() const {
    return {lblClient.text(), sRetainID, lblFFS.text()};
}

} // namespace orvane
