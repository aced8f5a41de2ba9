#include "stock/frmDispensing.h"

#include "data/words/Money.h"

#include <QSet>

namespace orvane {

frmDispensing::frmDispensing(Program& owner)
    : Screen(owner, "frmDispensing", "Dispensing For Injections/Dressing Only") {
    txtPresc.multiline().setLocked(true);
    txtQty.numeric();
    cboDrug.upperCase();
    // A typed name has no price of its own, and must not take the one of the drug picked before.
    cboDrug.onChange = [this] { forgetDrug(); };
    OrderGrid.setHead(
        "-------Drug/Service------|-------Category------|------Price---------|-------------------No Of "
        "Units--------------|-------------------Sub Total------------|-------------------Usage------------");
    OrderGrid.setMoney({2, 3, 4});
    OrderGrid.onDelete = OrderGrid.onDblClick;
    OrderGrid.setToolTip("Double Click a line to remove it");
}

Layout frmDispensing::entryLayout() const {
    using namespace orvane::layout;
    return group("Drug/Service",
                 {column({field("Drug/Service", cboDrug, 64), field("Dosage", txtUsage, 64)}),
                  row({field("Qty Prescribed", txtQty, 10), field("Qty in Stock", lblStock), field("Price", lblPrice),
                       field("Sub Total", lblSub), stretch()}),
                  row({field("Category", lblCat), field("Qty/Unit", lblUnit), stretch(), cell(cmdAdd)})});
}

Layout frmDispensing::layout() const {
    using namespace orvane::layout;
    return column({flow({field("Patient", cboVehNo, 44), field("Date", dtDate),
                         field("Name of Dispenser", cboReason, 30), field("Refer To", cboRef, 20)}),
                   facts({{"Consult No:", &lblBill},
                          {"Patient No:", &lblNo},
                          {"Client Cat:", &lblClient},
                          {"Clinic", &lblClinic},
                          {"Age", &lblAge},
                          {"Physician:", &lblPhy}}),
                   row({growing(group("Prescription", {growing(cell(txtPresc, 44))})), entryLayout()}),
                   growing(row({growing(cell(OrderGrid)), column({card({large("Total", lblTotal)})})})),
                   buttons({&cmdNew, &cmdRefresh, &cmdStock, &cmdCost}, {&cmdCancel, &CancelButton, &OKButton})});
}

void frmDispensing::Form_Load() {
    dtDate.setDate(session.gServerDate);
    fillLists();
    cmdNew_Click();
}

void frmDispensing::fillLists() {
    Connection connection = program.openBilling();
    for (Recordset pharmacist(connection,
                              Sql("select empID,lastname,firstname from employees where designation like 'PHARM%'"));
         !pharmacist.eof(); pharmacist.moveNext())
        cboReason.addItem(pharmacist.text("lastname") + ' ' + pharmacist.text("firstname") + " [" +
                          pharmacist.text("empID") + ']');
    for (Recordset clinic(connection, Sql("select ClinicID from clinicTypes order by ClinicID")); !clinic.eof();
         clinic.moveNext())
        cboRef.addItem(clinic.text("ClinicID"));
    for (Recordset drug(connection, Sql("select Drgname from qryhDrugs where catremarks in ('INJECTIONS','DRESSING') "
                                        "order by Drgname"));
         !drug.eof(); drug.moveNext())
        cboDrug.addItem(drug.text("Drgname"), drug.text("Drgname"));
}

/// Each visit once, however many of its consultations wait.
void frmDispensing::fillPatients() {
    cboVehNo.clear();
    QSet<QString> listed;
    Connection connection = program.openBilling();
    Recordset patient(connection, Sql("SELECT pSurname,pfirstname,consultID FROM "
                                      "qryhConsultingPatListForInjAndDressingBill order by psurname"));
    for (; !patient.eof(); patient.moveNext()) {
        const QString consultID = patient.text("consultID");
        if (listed.contains(consultID))
            continue;
        listed.insert(consultID);
        cboVehNo.addItem(patient.text("pSurname") + ' ' + patient.text("pfirstname") + " [" + consultID + ']',
                         consultID);
    }
}

Screen::PatientTaker frmDispensing::patientTaker() {
    return [this](const QString& pno) {
        Connection connection = program.openBilling();
        const Recordset own(connection,
                            Sql("select consultID from qryhConsultingPatListForInjAndDressingBill where pno='")
                                << pno << "' order by consultID desc");
        fillPatients();
        for (int i = 0; i < cboVehNo.count() && !own.eof(); ++i)
            if (cboVehNo.itemData(i) == own.text("consultID"))
                return cboVehNo.setListIndex(i);
        program.box("No Prescription of Injections or Dressings waits for this patient");
    };
}

void frmDispensing::cboVehNo_Click() {
    OrderGrid.clear();
    showTotal();
    cboDrug.setText({});
    clearLine();
    showPrescription();
}

void frmDispensing::showPrescription() {
    clearPatient();
    Connection connection = program.openBilling();
    Recordset visit(connection, Sql("select injprescription,consultID,clientcat,pno,remarks,treatedby,Age from "
                                    "qryhConsultingPatListForInjAndDressingBill where consultID='")
                                    << cboVehNo.picked<QString>().value_or(QString()) << "'");
    if (visit.eof())
        return;
    const std::pair<Label*, const char*> facts[] = {{&lblBill, "consultID"}, {&lblClient, "clientcat"},
                                                    {&lblClinic, "remarks"}, {&lblNo, "pno"},
                                                    {&lblAge, "Age"},        {&lblPhy, "treatedby"}};
    for (const auto& [label, column] : facts)
        label->setText(visit.isNull(column) ? "N/A" : visit.text(column));
    QStringList prescriptions;
    for (; !visit.eof(); visit.moveNext())
        prescriptions << visit.text("injprescription");
    txtPresc.setText(prescriptions.join('\n'));
    const Recordset markUp(connection, Sql("select  pcent,pvalue from billingprice where clientcatID ='")
                                           << lblClient.text() << "'");
    m_markUp = markUp.eof() ? 0 : markUp.number("pvalue");
}

void frmDispensing::clearPatient() {
    for (Label* label : {&lblBill, &lblClient, &lblClinic, &lblNo, &lblAge, &lblPhy})
        label->clear();
    txtPresc.clear();
    m_markUp = 0;
}

void frmDispensing::cmdNew_Click() {
    fillPatients();
    cboVehNo.setListIndex(-1);
    cboVehNo.setFocus();
}

bool frmDispensing::isReady() {
    return passes({{OrderGrid.rows() < 3, "No Drug is dispensed!!! Please select drugs and dispense", &cboDrug},
                   {lblNo.text().isEmpty() || lblNo.text() == " ", "Patient No is missing. Reselect Patient from list",
                    &cboVehNo},
                   {dtDate.isEmpty(), "Please enter the Date of dispensing", &dtDate}});
}

Dispensing frmDispensing::entered() {
    Dispensing given{.consultID = lblBill.text(),
                     .pno = lblNo.text(),
                     .clientCat = lblClient.text(),
                     .dispenser = cboReason.text(),
                     .referredTo = cboRef.text().trimmed(),
                     .date = dtDate.date(),
                     .items = {}};
    for (int row = 1; row < OrderGrid.rows() - 1; ++row)
        given.items << itemIn(row);
    return given;
}

void frmDispensing::OKButton_Click() {
    save<Saved>({.button = OKButton,
                 .action = "DISPENSING",
                 .allowed = [this] { return isReady(); },
                 .question = "Are you sure to save?",
                 .title = "About to save",
                 .detail =
                     [this] {
                         return aboutLines({cboVehNo.text(), nairaText(entered().total())});
                     },
                 .step = [this](Books& books) { return dispense(books, entered()); },
                 .follow =
                     [this](const Saved&) {
                         program.box("Record Succesfully saved");
                         cmdNew_Click();
                     },
                 .refused =
                     [this](Refusal refusal) {
                         program.box(refusalText(refusal));
                         cmdNew_Click();
                     }});
}

} // namespace orvane
