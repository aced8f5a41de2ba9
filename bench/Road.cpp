#include "bench/Road.h"

#include "data/rows/Transaction.h"
#include "demo/DemoOutlets.h"
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

const QStringList Road::actions = {"attendance save", "deposit",  "load of the bill", "save of the bill",
                                   "receipt",         "reversal", "outlet request",   "outlet bill"};

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
    Program& program = m_site.program;
    const QString visit = attend(patient);
    press("deposit", enterDeposit(program, visit, "500.50"), "OKButton");
    takeReceipt(program);
    seeDoctor(patient, visit);
    Hand bill = findBill(program, visit);
    press("load of the bill", bill, "cmdOK");
    enterCash(bill, "CONSULTING AND DRUGS", "1000");
    press("save of the bill", bill, "OKButton");
    takeReceipt(program);
    press("receipt", enterReceipt(program, visit, "300.50"), "OKButton", {saved});
    takeReceipt(program);
    // The screen leaves the saved receipt selected.
    press("reversal", enterReversal(program), "OKButton", {saved});
    serveOutlet(patient);
    m_site.tidy();
}

/// The same person off the street, with five items and a receipt.
void Road::serveOutlet(const RoadPatient& patient) {
    QVector<OutletOrder> orders;
    for (const QString& item : m_items.first(5))
        orders.append({"DRUG", item, "2"});
    Hand request = enterOutletRequest(m_site.program, patient.name, patient.number, orders);
    press("outlet request", request, "OKButton", {"Record Succesfully saved !!! Please collate bill"});
    request.click("cmdBill");
    press("outlet bill", enterOutletBill(m_site.program, {}, "1000", "PHARMACY"), "OKButton");
}

QString Road::attend(const RoadPatient& patient) {
    Hand hand = findPatient(m_site.program, patient.name, patient.number);
    completeAttendance(hand, m_clinic, m_officer);
    m_site.ui.takeBoxes(); // an appointment of today may be announced
    press("attendance save", hand, "OKButton", {saved});
    Connection billing = m_site.program.openBilling();
    return firstColumn(billing, Sql("select top 1 consultID from hRecords where PNo='")
                                    << patient.number << "' order by recID desc")
        .value(0);
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

void Road::press(const QString& action, Hand hand, const QString& button, const QStringList& boxes) {
    m_site.recorder.measure(action, [&] { hand.click(button); });
    if (const QStringList shown = m_site.ui.takeBoxes(); shown != boxes)
        throw DataError(action + ": " + shown.join(" / "));
}

} // namespace orvane
