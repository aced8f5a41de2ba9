#include "attendance/frmPatientInfo.h"

#include <algorithm>

namespace orvane {

namespace {

enum class Holds { Text, Date, LongText };

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
    {"pCatID", "Category"},
    {"coyname", "Company"},
    {"empNo", "Employee No"},
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

} // namespace

frmPatientInfo::frmPatientInfo(Program& owner) : Screen(owner, "frmPatientInfo", "Patient Information") {
    for (const CardField& field : cardFields) {
        m_fields.push_back(std::make_unique<TextBox>(*this, "txt_" + QLatin1String(field.column)));
        m_fields.back()->setLocked(true);
    }
    txtAge.setLocked(true);
    TreeView1.onClick = [this] { TreeView1_NodeClick(); };
    cmdREpairs.onClick = [this] { cmdREpairs_Click(); };
    cmdTyres.onClick = [this] { cmdTyres_Click(); };
    CancelButton.onClick = [this] { unload(); };
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

void frmPatientInfo::Form_Load() {
    TreeView1.clear();
    TreeView1.addNode({"qvr", "HALDEN HOSPITAL", {}, true});
    TreeView1.fill(Recordset::paged(program.openBilling(), Sql("SELECT * FROM qryhCardNotExpired order by psurname")),
                   [](const Recordset& patient) {
                       const QString number = patient.text("pNo");
                       return Tree::Node{"ijkl" + number,
                                         patient.text("psurname") + " " + patient.text("pfirstname") + " [" + number +
                                             "]",
                                         "qvr", false};
                   });
    // The tree is still being read.
    Connection connection = program.openBilling();
    const Recordset all(connection, Sql("SELECT count(*) as patients FROM qryhCardNotExpired"));
    LabelCount.setText("No of Patients : " + all.text("patients"));
}

void frmPatientInfo::TreeView1_NodeClick() {
    const Tree::Node* node = TreeView1.selectedNode();
    if (!node || node->parentKey.isEmpty())
        return;
    m_pno = node->key.mid(4);
    m_name = node->text.left(node->text.lastIndexOf(QLatin1Char('['))).trimmed();
    Connection connection = program.openBilling();
    const Recordset patient(connection, Sql("SELECT * FROM hPatients WHERE pNo ='") << m_pno << "'");
    if (patient.eof())
        return;
    showCard(patient);
}

void frmPatientInfo::showCard(const Recordset& patient) {
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        const QString name = QLatin1String(cardFields[i].column);
        const bool starred = name == QLatin1String("pCatID") || name == QLatin1String("empNo");
        QString text =
            cardFields[i].holds == Holds::Date ? patient.date(name).toString("dd/MM/yyyy") : patient.text(name);
        if (text.isEmpty() && starred)
            text = "**";
        m_fields[i]->setText(text);
    }
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
