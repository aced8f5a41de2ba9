#include "bench/Road.h"

#include "play/Hand.h"
#include "support/Hospital.h"

namespace orvane {

namespace {

const QString saved = "Record Succesfully saved";

QStringList firstColumn(Connection& connection, const Sql& sql) {
    QStringList values;
    for (Recordset rows(connection, sql); !rows.eof(); rows.moveNext())
        values << rows.text(0);
    return values;
}

} // namespace

const QStringList Road::actions = {"attendance save",  "deposit", "load of the bill",
                                   "save of the bill", "receipt", "reversal"};

Road::Road(Site& site) : m_site(site) {
    Connection billing = site.program.openBilling();
    // One of the waiting items is the consultation itself.
    m_items = firstColumn(billing, Sql("select top 19 drgName from drugs where Cost > 0 order by drgName"));
    m_clinic = firstColumn(billing, Sql("select top 1 ClinicID from clinicTypes where ConFee > 0")).value(0);
    m_officer = firstColumn(billing, Sql("select top 1 empID from employees where deptID='REC'")).value(0);
}

QVector<RoadPatient> Road::patients(int count) {
    Connection billing = m_site.program.openBilling();
    QVector<RoadPatient> all;
    for (Recordset rows(billing, Sql("select PNo,fullname from hPatients p where clientcatID='PRIVATE' and coyName="
                                     "'0001' and (expirydate is null or expirydate > '")
                                     << m_site.now.date()
                                     << "') and not exists (select h.recID from hRecords h where h.PNo = p.PNo and "
                                        "h.BillDate is null) order by PNo");
         !rows.eof(); rows.moveNext())
        all.append({rows.text("PNo"), rows.text("fullname")});
    QVector<RoadPatient> chosen;
    for (int i = 0; i < count && i < all.size(); ++i)
        chosen.append(all.at(i * (all.size() / count)));
    return chosen;
}

void Road::walk(const RoadPatient& patient) {
    const QString visit = attend(patient);
    deposit(visit);
    seeDoctor(patient, visit);
    loadBill(visit);
    saveBill();
    receive(visit);
    reverse();
    m_site.tidy();
}

QString Road::attend(const RoadPatient& patient) {
    Hand hand(opened("frmRecordsOffline"));
    hand.click("cmdAdd");
    hand.type("txtName", patient.name);
    hand.click("cmdOK");
    hand.chooseContaining("cboVehNo", QStringLiteral("[%1]").arg(patient.number));
    hand.choose("cboType", m_clinic);
    hand.choose("cboClient", "CONSULTATION");
    hand.chooseContaining("cboAppr", QStringLiteral("[%1]").arg(m_officer));
    m_site.ui.takeBoxes(); // an appointment of today may be announced
    m_site.recorder.measure("attendance save", [&] { hand.click("OKButton"); });
    expectBoxes("attendance", {saved});
    Connection billing = m_site.program.openBilling();
    return firstColumn(billing, Sql("select top 1 consultID from hRecords where PNo='")
                                    << patient.number << "' order by recID desc")
        .value(0);
}

void Road::deposit(const QString& visit) {
    Hand hand(opened("frmReceiptDeposit"));
    hand.click("cmdAdd");
    hand.chooseContaining("cboVehNo", visit);
    hand.type("txtHt", "500.50");
    m_site.recorder.measure("deposit", [&] { hand.click("OKButton"); });
    expectBoxes("deposit", {});
    closeReceipt();
}

/// The doctor's part and that of the outlets, which other programs of the hospital write.
void Road::seeDoctor(const RoadPatient& patient, const QString& visit) {
    Connection billing = m_site.program.openBilling();
    Transaction transaction(billing);
    makeConsultation(billing, {.consultID = visit, .pno = patient.number, .date = m_site.now.date()});
    for (const QString& item : m_items)
        makeItem(billing, {.consultID = visit, .pno = patient.number, .date = m_site.now.date(), .name = item});
    billing.execute(Sql("update hRecords set attendedto=1 where consultID='") << visit << "'");
    transaction.commit();
}

void Road::loadBill(const QString& visit) {
    Hand hand(opened("frmBillingVerify"));
    hand.type("txtSearch", visit);
    m_site.recorder.measure("load of the bill", [&] { hand.click("cmdOK"); });
    expectBoxes("load of the bill", {});
}

void Road::saveBill() {
    Hand hand(m_site.program.form("frmBillingVerify"));
    hand.tick("chkRct");
    hand.choose("cboPayFor", "CONSULTING AND DRUGS");
    hand.type("txtAmt(0)", "1000");
    m_site.recorder.measure("save of the bill", [&] { hand.click("OKButton"); });
    expectBoxes("save of the bill", {});
    closeReceipt();
}

void Road::receive(const QString& visit) {
    Hand hand(opened("frmReceiptTemp"));
    hand.click("cmdAdd");
    hand.chooseContaining("cboVehNo", visit);
    hand.choose("cboPay", "CASH");
    hand.type("txtHt", "300.50");
    m_site.recorder.measure("receipt", [&] { hand.click("OKButton"); });
    expectBoxes("receipt", {saved});
    closeReceipt();
}

/// The screen leaves the saved receipt selected.
void Road::reverse() {
    Hand hand(m_site.program.form("frmReceiptTemp"));
    hand.click("cmdRev");
    hand.tick("chkRev");
    m_site.recorder.measure("reversal", [&] { hand.click("OKButton"); });
    expectBoxes("reversal", {saved});
}

Form& Road::opened(const QString& name) {
    m_site.program.open(name);
    return m_site.program.form(name);
}

void Road::closeReceipt() {
    Form* receipt = m_site.program.loadedForm("frmCashReceipt");
    if (!receipt)
        throw DataError("No receipt came up.");
    receipt->abandon();
}

void Road::expectBoxes(const QString& step, const QStringList& expected) {
    if (const QStringList boxes = m_site.ui.takeBoxes(); boxes != expected)
        throw DataError(QStringLiteral("%1: %2").arg(step, boxes.join(" / ")));
}

} // namespace orvane
