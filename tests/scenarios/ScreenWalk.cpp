#include "ScreenWalk.h"

#include "screens/Screens.h"
#include "session/Main.h"
#include "support/Hospital.h"

#include <QRegularExpression>

namespace orvane {

namespace {

bool speaksOfTheEngine(const QString& box) {
    static const QRegularExpression words(
        "no such|syntax error|Item cannot be found|cannot be written|does not exist|constraint|violates|ambiguous|"
        "near \"|operator|invalid|misuse|Unable to fetch|unterminated|unrecognized token|escape|out of range|"
        "byte sequence|too big|Parameter count|index row|permission|maximum|convert",
        QRegularExpression::CaseInsensitiveOption);
    // These are the program's own.
    static const QRegularExpression own(
        "^(Alert! )?Invalid (Login details|RoleID|Username|Patient No|Bill No)\\.?$|"
        "^Invalid character detected!$|^Invalid (Parent Name! Please select a Parent| Recipient Name! "
        "Voucher No Required )$");
    return box.contains(words) && !box.contains(own);
}

} // namespace

void WalkUi::showModal(Form& form) {
    inModal(form);
    if (!form.isClosed())
        form.abandon();
}

ScreenWalk::ScreenWalk() : program(home.folder(), ui) {
    registerScreens(program);
    program.data().setDisposable();
    program.data().setServerClock(ui.now());
}

void ScreenWalk::SetUp() {
    {
        DataSource owner(home.folder());
        owner.setDisposable();
        Connection billing = owner.open(TestHome::billing()), accounting = owner.open(TestHome::accounting());
        layHospital(billing, accounting);
        makePatient(billing);
        makePatient(billing, {.pno = "P/0002", .surname = "O'NEILL", .category = "HMO", .client = "0201"});
        makeVisit(billing);
        makeVisit(billing, {.consultID = "001OFL0000002", .pno = "P/0002", .category = "HMO", .client = "0201"});
        makeConsultation(billing);
        makeConsultation(billing, {.consultID = "001OFL0000002", .pno = "P/0002"});
        makeItem(billing);
        makeItem(billing, {.consultID = "001OFL0000002", .pno = "P/0002", .client = "0201"});
        prepare(billing);
    }
    limitRights();
    program.data().setStatementHook([this](const QString& statement) { lastStatement = statement; });
    ASSERT_TRUE(Main(program));
}

void ScreenWalk::checkBoxes(const QString& where) {
    for (const QString& box : std::exchange(ui.boxes, {}))
        if (speaksOfTheEngine(box) && !m_seen.contains(box)) {
            m_seen << box;
            ADD_FAILURE() << where.toStdString() << ": " << box.left(300).toStdString()
                          << "\nlast statement: " << lastStatement.left(600).toStdString();
        }
    ASSERT_EQ(program.data().openTransactions(), 0) << where.toStdString();
}

Form* ScreenWalk::opened(const QString& name) {
    if (!program.loadedForm("MdiTolmek"))
        program.open("MdiTolmek");
    program.open(name);
    checkBoxes(name);
    return program.loadedForm(name);
}

} // namespace orvane
