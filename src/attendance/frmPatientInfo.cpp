#include "attendance/frmPatientInfo.h"

#include "books/Client.h"

#include <algorithm>

namespace orvane {

namespace {

enum class Holds { Text, TextOrStars, Date, LongText, Client };

struct CardField {
    const char* column;
    const char* label;
    Holds holds = Holds::Text;
};

// The card of a patient as it is shown, in reading order; long texts stand below the others.
constexpr CardField cardFields[] = {
    {"pno", "File No"},
    {"oldpno", "Old File No"},
    {"regdate", "Registered", Holds::Date},
    {"expirydate", "Card Expires", Holds::Date},
    {"pSurname", "Surname"},
    {"pFirstname", "First Name"},
    {"homeAddress", "Home Address", Holds::LongText},
    {"officeAddress", "Office Address", Holds::LongText},
    {"pPhoneNo", "Phone"},
    {"DOB", "Date of Birth", Holds::Date},
    {"email", "E-mail"},
    {"sex", "Sex"},
    {"pCatID", "Category", Holds::TextOrStars},
    {"coyname", "Company", Holds::Client},
    {"empNo", "Employee No", Holds::TextOrStars},
    {"branch", "Branch"},
    {"status", "Status"},
    {"relationToStaff", "Relation to Staff"},
    {"introducedby", "Introduced by"},
    {"policyType", "Policy Type"},
    {"cardType", "Card Type"},
    {"pMembers", "Members", Holds::LongText},
    {"bloodGroup", "Blood Group"},
    {"genotype", "Genotype"},
    {"occupation", "Occupation"},
    {"religion", "Religion"},
    {"nextOfKin", "Next of Kin"},
    {"relationToKin", "Relation to Kin"},
    {"kinAddress", "Address of Kin", Holds::LongText},
    {"FileDuration", "File Duration"},
};

QString shown(Connection& connection, const Recordset& patient, const CardField& field) {
    const QString text = patient.text(field.column);
    switch (field.holds) {
    case Holds::Date:
        return patient.date(field.column).toString("dd/MM/yyyy");
    case Holds::TextOrStars:
        return text.isEmpty() ? "**" : text;
    case Holds::Client:
        return clientName(connection, text);
    case Holds::Text:
    case Holds::LongText:
        return text;
    }
    return text;
}

} // namespace

frmPatientInfo::frmPatientInfo(Program& owner) : Screen(owner, "frmPatientInfo", "Patient Information") {
    for (const CardField& field : cardFields) {
        m_fields.push_back(std::make_unique<TextBox>(*this, "txt_" + QLatin1String(field.column)));
        m_fields.back()->setLocked(true);
    }
    txtAge.setLocked(true);
}

frmPatientInfo::~frmPatientInfo() = default;

Layout frmPatientInfo::layout() const {
    using namespace orvane::layout;
    constexpr int characters = 28, columnCount = 3;
    Layout columns[columnCount] = {column({}), column({}), column({})};
    Layout longTexts[2] = {column({}), column({})};
    const auto shortFields = std::count_if(std::begin(cardFields), std::end(cardFields),
                                           [](const CardField& card) { return card.holds != Holds::LongText; });
    int shortSeen = 0, longSeen = 0;
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        const QString label = QLatin1String(cardFields[i].label);
        if (cardFields[i].holds == Holds::LongText)
            longTexts[longSeen++ % 2].children.append(field(label, *m_fields[i]));
        else
            columns[shortSeen++ * columnCount / shortFields].children.append(field(label, *m_fields[i], characters));
    }
    columns[columnCount - 1].children.append(field("Age", txtAge, characters));
    return column({row({cell(lblHeading), stretch(), cell(LabelCount)}),
                   growing(row({cell(TreeView1, 52), growing(column({row({columns[0], columns[1], columns[2]}),
                                                                     row({longTexts[0], longTexts[1]}),
                                                                     cell(lblDisplay), cell(grdData)}))})),
                   buttons({&cmdREpairs, &cmdTyres}, {&CancelButton})});
}

/// Of half a million nodes each shares what it can: the name of its parent, and its number with what it stands for.
void frmPatientInfo::Form_Load() {
    const QString root = "qvr";
    TreeView1.clear();
    TreeView1.addNode({root, "HALDEN HOSPITAL", {}, true});
    TreeView1.fill(Recordset::paged(program.openBilling(), Sql("SELECT * FROM qryhCardNotExpired order by psurname")),
                   [root](const Recordset& patient) {
                       const QString pno = patient.text("pNo");
                       return Tree::Node{"ijkl" + pno,
                                         patient.text("psurname") + " " + patient.text("pfirstname") + " [" + pno + "]",
                                         root, false, pno};
                   });
    // The tree is still being read.
    Connection connection = program.openBilling();
    const Recordset all(connection, Sql("SELECT count(*) as patients FROM qryhCardNotExpired"));
    LabelCount.setText("No of Patients : " + all.text("patients"));
}

void frmPatientInfo::TreeView1_NodeClick() {
    if (const auto pno = TreeView1.picked<QString>())
        showPatient(*pno);
}

Screen::PatientTaker frmPatientInfo::patientTaker() {
    return [this](const QString& pno) { showFound(pno); };
}

/// Opens with the patient who was found last, by the search of records or with F3.
void frmPatientInfo::Form_Activate() {
    if (const QString found = std::exchange(session.sFoundPNo, QString()); !found.isEmpty())
        showFound(found);
}

void frmPatientInfo::showFound(const QString& pno) {
    Connection connection = program.openBilling();
    const Recordset name(connection, Sql("select fullname from hPatients where PNo='") << pno << "'");
    if (!name.eof())
        showPatient(pno);
}

void frmPatientInfo::showPatient(const QString& pno) {
    Connection connection = program.openBilling();
    const Recordset patient(connection, Sql("SELECT * FROM hPatients WHERE pNo ='") << pno << "'");
    m_pno = pno;
    m_name = patient.eof() ? QString() : patient.text("psurname") + " " + patient.text("pfirstname");
    if (patient.eof())
        clearCard(); // gone since the list was read
    else
        showCard(connection, patient);
}

void frmPatientInfo::clearCard() {
    for (const auto& field : m_fields)
        field->clear();
    lblHeading.clear();
    txtAge.clear();
}

void frmPatientInfo::showCard(Connection& connection, const Recordset& patient) {
    for (std::size_t i = 0; i < m_fields.size(); ++i)
        m_fields[i]->setText(shown(connection, patient, cardFields[i]));
    lblHeading.setText("Patient Information  : " + m_name);
    const QDate born = patient.date("DOB");
    txtAge.setText(born.isValid() ? QString::number(program.ui().now().date().year() - born.year()) + " yrs" : "--");
}

void frmPatientInfo::cmdREpairs_Click() {
    Connection connection = program.openBilling();
    grdData.setFormat("Balance", "#,###.00");
    grdData.load(Recordset(
        connection,
        Sql("select bDate,BalanceDate,billNo,pNo,Fullname,Balance from qryhBillingbalanceForPrivate where pNo='")
            << m_pno << "'"));
    lblDisplay.setText("Balance to be paid by " + m_name);
}

void frmPatientInfo::cmdTyres_Click() {
    Connection connection = program.openBilling();
    grdData.load(Recordset(connection, Sql("select * from qryhVisits where pNo='") << m_pno << "'"));
    lblDisplay.setText("Frequency of Hospital Visits by " + m_name);
}

} // namespace orvane
