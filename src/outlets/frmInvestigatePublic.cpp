#include "outlets/frmInvestigatePublic.h"

namespace orvane {

frmInvestigatePublic::frmInvestigatePublic(Program& owner)
    : Screen(owner, "frmInvestigatePublic", "External Patients") {
    OrderGrid.setHead("----------------------------Item----------------------------|-------Category------|"
                      "------Price------|---No Of Units---|-----------Sub Total------------|"
                      "-----------RevenueType-----------|-------EntryType----");
    OrderGrid.setMoney({Price, Units, SubTotal});
    OrderGrid.onClick = [this] { OrderGrid_Click(); };
    OrderGrid.onDelete = OrderGrid.onClick;
    OrderGrid.setToolTip("A click on a line takes it away");
    for (TextBox* number : {&txtPrice, &txtQty, &txtAge})
        number->numeric();
    txtName.upperCase();
    txtFirst.upperCase();
    cboCat.addItems({"", "DRUG", "INVESTIGATION", "SERVICE"});
    cboMat.addItems({"ADOLESCENT", "ADULT", "CHILD"});
    txtSex.addItems({"FEMALE", "MALE"});
}

Layout frmInvestigatePublic::personLayout() const {
    using namespace orvane::layout;
    return column({row({field("Surname", txtName, 24), field("Firstname", txtFirst, 24), field("Phone", txtPhone, 16)}),
                   row({field("Maturity", cboMat, 14), field("Sex", txtSex, 10), field("Age", txtAge, 6),
                        field("Service/Lab No", txtLabNo, 14), field("Refer To", cboRef, 20)}),
                   field("Remarks:", txtPresc)});
}

Layout frmInvestigatePublic::itemLayout() const {
    using namespace orvane::layout;
    return column({row({field("Drug/Service", cboCat, 16), field("Item", cboDrug, 44), cell(lblCat), stretch()}),
                   row({field("RevenueType", cboRev, 24), field("Price", txtPrice, 12), field("Qty", txtQty, 8),
                        field("SubTotal", lblSub), stretch(), cell(cmdAdd)})});
}

Layout frmInvestigatePublic::layout() const {
    using namespace orvane::layout;
    return column({row({cell(lblHead), stretch(), field("Date", dtDate), cell(cmdNew)}),
                   facts({{"Sys No:", &lblBill}, {"Client Cat:", &lblClient}}), group("Patient", {personLayout()}),
                   group("Items", {itemLayout()}), growing(cell(OrderGrid)), row({stretch(), large("Total", lblTotal)}),
                   buttons({&cmdRefresh, &cmdBill}, {&cmdCancel, &CancelButton, &OKButton})});
}

void frmInvestigatePublic::Form_Load() {
    cmdRefresh_Click();
    reset();
    cmdNew.setFocus();
}

void frmInvestigatePublic::fillOutlets(Connection& connection) {
    const QString chosen = cboRef.text();
    cboRef.clear();
    for (Recordset outlet(connection, Sql("select ItemName from hOutletTypes order by ItemCode")); !outlet.eof();
         outlet.moveNext())
        cboRef.addItem(outlet.text("ItemName"));
    // Each has a code on its receipts, so none is never right; the one that was chosen before stays.
    if (cboRef.count() > 0)
        cboRef.setListIndex(0);
    cboRef.setText(chosen);
}

void frmInvestigatePublic::fillRevenueTypes(Connection& connection) {
    cboRev.clear();
    cboRev.addItem("");
    for (Recordset type(connection,
                        Sql("select distinct revType from hRevenueType where Active='YES' order by revType"));
         !type.eof(); type.moveNext())
        cboRev.addItem(type.text("revType"));
}

/// The number is only shown: the save forms it again, so that two cashiers do not hold the same one for long.
void frmInvestigatePublic::cmdNew_Click() {
    clearLines();
    lblClient.setText("PRIVATE");
    Connection connection = program.openBilling();
    lblBill.setText(genOutletNo(connection, session.gHospIDName, day()));
    txtName.setFocus();
}

/// The lists anew; what was entered stays.
void frmInvestigatePublic::cmdRefresh_Click() {
    {
        Connection connection = program.openBilling();
        fillOutlets(connection);
        fillRevenueTypes(connection);
    }
    cboCat_Click();
    clearItem();
}

void frmInvestigatePublic::reset() {
    dtDate.setDate(program.getServerDateTime().date());
    for (TextBox* box : {&txtName, &txtFirst, &txtPhone, &txtAge, &txtLabNo, &txtPresc})
        box->clear();
    cboMat.setListIndex(-1);
    txtSex.setText({});
    cboCat.setListIndex(-1);
    lblBill.clear();
    lblClient.clear();
    clearLines();
    clearItem();
}

void frmInvestigatePublic::clearLines() {
    OrderGrid.clear();
    showTotal();
}

QDate frmInvestigatePublic::day() const {
    return dtDate.isEmpty() ? ui().now().date() : dtDate.date();
}

bool frmInvestigatePublic::isComplete() {
    if (!passes({{lblBill.text().isEmpty(), "Service/Tran No needed for this transaction", &cmdNew},
                 {txtName.text().trimmed().isEmpty(), "Please select Patient Surname", &txtName},
                 {txtFirst.text().trimmed().isEmpty(), "Please select Patient firstname", &txtFirst},
                 {cboMat.text().isEmpty(), "Patient Maturity Field cannot be empty!!! Refer to Doctor", &cboMat},
                 {txtSex.text().trimmed().isEmpty(), "Please select the Gender", &txtSex}}))
        return false;
    if (!passes({{txtLabNo.text().trimmed().isEmpty(), "Please Specify Service/Lab No", &txtLabNo},
                 {OrderGrid.rows() <= 2, "No Item in the Grid! Please Select Item and Add to Grid", &cboCat}}))
        return false;
    if (dtDate.isEmpty()) {
        program.box("Please  Date field cannot be empty, Today's date will be assumed. Click OK to Continue");
        dtDate.setDate(day());
    }
    return true;
}

void frmInvestigatePublic::OKButton_Click() {
    save<QString>({.button = OKButton,
                   .action = "OUTLET REQUEST",
                   .allowed = [this] { return isComplete(); },
                   .question = "Are you sure to save?",
                   .title = "About to save",
                   .detail =
                       [this] {
                           return aboutLines({txtName.text().trimmed() + ' ' + txtFirst.text().trimmed(), cboRef.text(),
                                              'N' + lblTotal.text()});
                       },
                   .step = [this](Books& books) { return enterOutletRequest(books, request()); },
                   .follow = [this](const QString& number) { showSaved(number); }});
}

OutletRequest frmInvestigatePublic::request() const {
    return {.date = dtDate.date(),
            .surname = txtName.text().trimmed(),
            .firstName = txtFirst.text().trimmed(),
            .phone = txtPhone.text().trimmed(),
            .age = txtAge.text().trimmed(),
            .sex = txtSex.text().trimmed(),
            .maturity = cboMat.text(),
            .outlet = cboRef.text(),
            .labNo = txtLabNo.text().trimmed(),
            .remarks = txtPresc.text(),
            .items = entered()};
}

/// Reset first, so that no fault in what follows leaves an entry that could be saved again.
void frmInvestigatePublic::showSaved(const QString& number) {
    reset();
    m_saved = number;
    program.box("Record Succesfully saved !!! Please collate bill");
    cmdBill.setFocus();
}

/// The collation of the visit that was just saved.
void frmInvestigatePublic::cmdBill_Click() {
    session.gSearchBillNo = std::exchange(m_saved, QString());
    program.open("frmBillingPublic");
}

} // namespace orvane
