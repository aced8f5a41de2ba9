// Whole scripts on sample forms: what is written, and where a run fails.
#include "play/HeadlessDriver.h"
#include "play/Player.h"
#include "reports/Report.h"
#include "support/SampleForm.h"
#include "support/TestHome.h"

#include <QBuffer>

namespace orvane {
namespace {

/// The sample form as a screen that shows boxes, asks and opens a modal form.
class PlayedForm : public SampleForm {
public:
    PlayedForm(Program& program, const QString& name) : SampleForm(program.ui(), name), m_program(program) {
        txtName.onChange = [this] { lblTitle.setText(txtName.text()); };
        cmdSave.onClick = [this] { Form::ui().box("saved " + txtName.text(), Icon::Information, "Save"); };
        cmdClose.onClick = [this] { unload(); };
        for (MenuItem* entry : {&mnuEntry, &mnuInHidden, &mnuMain})
            entry->onClick = [this, entry] { Form::ui().box(entry->name()); };
        tmrTick.onTimer = [this] { Form::ui().playSound("/somewhere/ring1.wav"); };
        chkCard.onClick = [this] { Form::ui().box(Form::ui().question("Sure?", "Card") ? "sure" : "not"); };
        radTwo.onClick = [this] {
            const std::optional<QString> given = Form::ui().inputBox("Code?");
            Form::ui().box(given ? *given : "cancelled");
        };
        radOne.onClick = [this] {
            m_program.openModal("frmModal");
            Form::ui().box("back");
        };
        txtNote.onLeave = [this] {
            Connection billing = m_program.openBilling();
            grdRows.load(
                Recordset(billing, Sql("select DestName as Name, ID, ID + 1 as Next from IDgen order by DestName")));
            grdRows.hide({"ID"});
        };
        grdRows.onDblClick = [this] {
            Form::ui().viewReport(grdRows.text("Name"), "List", openDataReport({.file = "List", .rows = {}}));
        };
        lblTitle.onClick = [this] { Form::ui().printForm(*this); };
        lblTitle.onDblClick = [this] { Form::ui().exported("/tmp/x/list.xlsx"); };
    }
    bool Form_Unload() override {
        return !refusesUnload && (name() != QLatin1String("frmAsking") || ui().question("Leave?"));
    }

private:
    Program& m_program;
};

struct Played {
    QString output;
    bool passed = false;
};

class PlayerTest : public ::testing::Test {
protected:
    /// Plays a script on a fresh program; "F" is the sample form.
    Played play(const QByteArray& text) {
        QBuffer script, output;
        script.setData(text);
        script.open(QIODevice::ReadOnly);
        output.open(QIODevice::WriteOnly);
        Shower noWindows;
        HeadlessDriver driver;
        EventLog log(output);
        ScriptUi ui(log, noWindows);
        Program program(home.folder(), ui);
        for (const char* name : {"F", "frmModal", "frmAsking", "MdiTolmek"})
            program.registerForm(
                name, [name](Program& p) { return std::make_unique<PlayedForm>(p, QString::fromLatin1(name)); });
        const Player::Entry entry{[&] { program.open("MdiTolmek"); },
                                  [&] {
                                      program.session.gConnStr = TestHome::billing();
                                      program.session.gAcctConnStr = TestHome::accounting();
                                  }};
        Player player(program, ui, log, driver, script, entry);
        const bool passed = player.run();
        return {QString::fromUtf8(output.data()), passed};
    }

    TestHome home;
};

struct PlayCase {
    QByteArray script;
    QString output; ///< behind "opened F"
};

TEST_F(PlayerTest, CarriesOutEveryCommand) {
    const PlayCase cases[] = {
        {"set F.txtName \"O'NEILL\"\nprint F.lblTitle\nexpect F.txtName \"O'NEILL\"", "O'NEILL\n"},
        {"set F.txtCode \"abcdefg\"\nprint F.txtCode", "ABCDE\n"},
        {"set F.txtDigits \"1a2\"\nprint F.txtDigits", "12\n"},
        {"set F.txtNote \"a\\nb\"\nprint F.txtNote\nexpect F.txtNote \"a\\nb\"", "a\\nb\n"},
        {"set F.txtAmt(1) \"5\"\nprint f.TXTAMT(1)\nprint F.txtAmt(0)", "5\n\n"},
        {"set F.cboTown \"IBADAN\"\nprint F.cboTown\nset F.cboTown \"JOS\"\nprint F.cboTown", "IBADAN\nJOS\n"},
        {"pick F.cboTown 2\nprint F.cboTown\npick F.cboTown \"IBADAN\"\nprint F.cboTown\npick F.cboTown "
         "\"north\"\nprint F.cboTown",
         "IBADAN NORTH\nIBADAN\nIBADAN NORTH\n"},
        {"set F.cboColor \"GREEN\"\nprint F.cboColor\nitems F.cboColor", "GREEN\nRED\nGREEN\n"},
        {"set F.dtDate \"2026-03-14\"\nprint F.dtDate\nset F.dtDate \"\"\nprint F.dtDate", "2026-03-14\n\n"},
        {"set F.radBank yes\nprint F.radCash", "no\n"},
        {"tick F.lstItems \"ONE\" \"THREE\"\nuntick F.lstItems \"ONE\"\nprint F.lstItems", "THREE\n"},
        {"pick F.tree \"Leaf\"\nprint F.tree\npick F.tabs \"Ent\"\nprint F.tabs\npick F.tabs 0\nprint F.tabs",
         "Leaf\n1\n0\n"},
        {"items F.status\nrows F.grdEntry\nitems F.mnuMain", "ready\n\nItem\tPrice\n\t\nmnuEntry\n"},
        {"row F.grdEntry 0", ""},
        {"click F.cmdSave\nexpect box \"saved \"", "box information \"Save\" \"saved \"\n"},
        {"key F.txtDigits \"a1\\n\"\nexpect box \"saved \"", "box information \"Save\" \"saved \"\n"},
        {"answer yes\nclick F.chkCard\nanswer no\nset F.chkCard \"no\"",
         "question \"Card\" \"Sure?\" -> yes\nbox none \"\" \"sure\"\nquestion \"Card\" \"Sure?\" -> no\nbox none \"\" "
         "\"not\"\n"},
        {"answer \"x\"\nclick F.radTwo", "input \"Code?\" -> \"x\"\nbox none \"\" \"x\"\n"},
        {"answer cancel\nclick F.radTwo", "input \"Code?\" -> cancel\nbox none \"\" \"cancelled\"\n"},
        {"click F.lblTitle\ndblclick F.lblTitle\nleave F.txtName\ntimer F.tmrTick",
         "print F\nexport list.xlsx\nsound ring1.wav\n"},
        {"start\nmenu mnuEntry\nstate MdiTolmek.mnuEntry\nstate MdiTolmek.mnuInHidden\nclose MdiTolmek",
         "opened MdiTolmek\nbox none \"\" \"mnuEntry\"\nvisible enabled\nhidden enabled\nclosed MdiTolmek\n"},
        {"state F.txtLocked\nstate F.txtName", "visible enabled locked\nvisible enabled\n"},
        {"open F\nclick F.cmdClose", "closed F\n"},
        {"open frmAsking\nanswer no\nclose frmAsking\nanswer yes\nclose frmAsking",
         "opened frmAsking\nquestion \"\" \"Leave?\" -> no\nquestion \"\" \"Leave?\" -> yes\nclosed frmAsking\n"},
        {"answer \"left\"\nclick F.radTwo\nclick F.radOne\nset frmModal.txtName \"in\"\nclick frmModal.cmdSave\nclose "
         "frmModal\nexpect box \"left\"\nexpect box \"saved in\"\nexpect box \"back\"",
         "input \"Code?\" -> \"left\"\nbox none \"\" \"left\"\nopened frmModal\nbox information \"Save\" \"saved "
         "in\"\nclosed frmModal\nbox none \"\" \"back\"\n"},
        {"sql billing \"update IDgen set ID=41 where DestName='Receipt'\"\nsql billing \"select DestName, ID as Last "
         "from IDgen where ID > 0\"\nsql accounting \"select Period from AccountMonth\"\nexpect sql billing \"select "
         "ID from IDgen where ID > 0\" \"41\"\nsql billing \"delete from IDgen\"",
         "DestName\tLast\nReceipt\t41\nPeriod\n"},
        {"sql billing \"insert into IDgen (DestName, ID) values ('A', 1)\"\nsql billing \"insert into IDgen (DestName, "
         "ID) values ('B\tC', 2)\"\nleave F.txtNote\nrows F.grdRows\nrow F.grdRows \"2\"\ndblclick F.grdRows\nrow "
         "F.grdRows \"3\"\ndblclick F.grdRows\nrow F.grdRows \"1\"\ndblclick F.grdRows\nrow F.grdRows 1\ndblclick "
         "F.grdRows\nexpect F.grdRows \"2 rows\"\nsql billing \"delete from IDgen\"",
         "Name\tNext\nA\t2\nB\\tC\t3\nreport A 0\nreport B\tC 0\nreport A 0\nreport B\tC 0\n"},
        {"clock server \"2026-03-14 09:30:00\"\nclock workstation \"2020-01-01 00:00:00\"\nexpect sql billing \"select "
         "cast(getdate() as date) as d\" \"2026-03-14\"\npicture shot.png",
         ""},
        {"\r\n   # nothing\r\nprint F.chkCard # yes or no\r\n", "no\n"},
    };
    for (const PlayCase& one : cases) {
        const Played run = play("open F\n" + one.script);
        EXPECT_EQ(run.output, "opened F\n" + one.output) << one.script.toStdString();
        EXPECT_TRUE(run.passed) << one.script.toStdString();
    }
}

TEST_F(PlayerTest, FailsWhereALineCannotBeCarriedOut) {
    const PlayCase cases[] = {
        // The line that fails is the last one, unless the text says otherwise.
        {"jump", "there is no command \"jump\""},
        {"\"start\"", "there is no command \"start\""},
        {"set F.txtName", "usage: set FORM.CONTROL \"value\""},
        {"start now", "usage: start"},
        {"print \"open", "a text without its closing quote"},
        {"click frmNowhere.cmdSave", "frmNowhere is not open"},
        {"click frmModal.cmdSave", "frmModal is not open"},
        {"click F.cmdNone", "there is no control F.cmdNone"},
        {"click F", "F is not FORM.CONTROL"},
        {"open frmNowhere", "there is no form frmNowhere"},
        {"set F.txtLocked \"x\"", "F.txtLocked is locked"},
        {"set F.txtName \"a\\nb\"", "F.txtName takes one line"},
        {"set F.cboColor \"BLUE\"", "F.cboColor has no entry \"BLUE\""},
        {"pick F.cboTown \"KANO\"", "F.cboTown has no entry with \"KANO\""},
        {"pick F.cboTown 3", "F.cboTown has no entry 3"},
        {"pick F.cboTown -1", "F.cboTown has no entry -1"},
        {"row F.grdRows 99999999999", "F.grdRows has no row 99999999999"},
        {"pick F.tabs 2", "F.tabs has no entry 2"},
        {"pick F.txtName 0", "F.txtName has no entries to pick"},
        {"set F.chkCard \"maybe\"", "F.chkCard takes \"yes\" or \"no\""},
        {"set F.radOne \"no\"", "F.radOne is turned off by choosing another option"},
        {"set F.dtDate \"14/03/2026\"", "F.dtDate takes a date as yyyy-mm-dd, or \"\""},
        {"set F.dtDate \"2026-02-30\"", "F.dtDate takes a date as yyyy-mm-dd, or \"\""},
        {"set F.lblTitle \"x\"", "F.lblTitle takes no value"},
        {"tick F.lstItems \"FOUR\"", "F.lstItems has no entry \"FOUR\""},
        {"row F.grdRows 0", "F.grdRows has no row 0"},
        {"row F.grdEntry \"x\"", "F.grdEntry has no row with \"x\""},
        {"rows F.txtName", "F.txtName has none"},
        {"timer F.tmrOff", "F.tmrOff is disabled"},
        {"timer F.cmdSave", "F.cmdSave is not a timer"},
        {"click F.mnuInHidden", "F.mnuInHidden is hidden"},
        {"menu mnuEntry", "MdiTolmek is not open"},
        {"answer maybe", "an answer is yes, no, cancel or a text in quotes"},
        {"click F.chkCard", "no answer is queued for question \"Sure?\""},
        {"answer \"yes\"\nclick F.chkCard", "the answer of line 2 does not fit question \"Sure?\""},
        {"answer yes\nclick F.radTwo", "the answer of line 2 does not fit input \"Code?\""},
        {"expect box \"x\"", "expected a box \"x\", but none has come up"},
        {"expect F.txtLocked \"fixed \"", "expected \"fixed \", but F.txtLocked is \"fixed\""},
        {"expect sql billing \"select ID from IDgen where 1=2\" \"1\"", "expected \"1\", but there is no row"},
        {"expect sql billing \"select 2 as n\" \"1\"", "expected \"1\", but it is \"2\""},
        {"sql payroll \"select 1 as n\"", "the databases are billing and accounting"},
        {"clock server \"noon\"", "a clock takes \"yyyy-mm-dd hh:mm:ss\""},
        {"clock wall \"2026-03-14 09:30:00\"", "there is a server's and a workstation's clock"},
    };
    for (const PlayCase& one : cases) {
        const Played run = play("open F\n" + one.script + "\nprint F.txtLocked");
        const int line = 2 + int(one.script.count('\n'));
        EXPECT_EQ(run.output, QStringLiteral("opened F\nFAIL line %1: %2\n").arg(line).arg(one.output))
            << one.script.toStdString();
        EXPECT_FALSE(run.passed) << one.script.toStdString();
    }
}

TEST_F(PlayerTest, FailsWithWhatCameBefore) {
    const struct {
        QByteArray script;
        QString lastLine;
    } cases[] = {
        {"answer yes\nprint F.chkCard", "FAIL line 2: nothing asked for this answer"},
        {"start\nstart", "FAIL line 3: the program has been started"},
        {"click F.cmdSave\nexpect box \"saved\"", "FAIL line 3: expected a box \"saved\", but it said \"saved \""},
        {"set F.radTwo yes\nprint F.radTwo", "FAIL line 2: no answer is queued for input \"Code?\""},
        {"answer \"\"\nclick F.radTwo\nclick F.radOne\nclick F.cmdSave",
         "FAIL line 5: F.cmdSave waits until frmModal has closed"},
        {"answer \"\"\nclick F.radTwo\nclick F.radOne\nopen frmAsking",
         "FAIL line 5: frmAsking waits until frmModal has closed"},
        {"answer \"\"\nclick F.radTwo\nclick F.radOne\nclose F", "FAIL line 5: F waits until frmModal has closed"},
        {"answer \"\"\nclick F.radTwo\nclick F.radOne",
         "FAIL line 4: the script ends while frmModal is open as a modal form"},
        {"close F\nclick F.cmdSave", "FAIL line 3: F is not open"},
    };
    for (const auto& one : cases) {
        const Played run = play("open F\n" + one.script);
        EXPECT_EQ(run.output.trimmed().section(QLatin1Char('\n'), -1), one.lastLine) << one.script.toStdString();
        EXPECT_FALSE(run.passed) << one.script.toStdString();
    }
}

TEST_F(PlayerTest, AFaultOfTheDatabaseFailsTheLineWithItsDescription) {
    const Played run = play("sql billing \"select * from noSuchTable\"\nsql billing \"select 1 as n\"");
    EXPECT_FALSE(run.passed);
    EXPECT_TRUE(run.output.startsWith("FAIL line 1: ")) << run.output.toStdString();
    EXPECT_TRUE(run.output.contains("noSuchTable")) << run.output.toStdString();
}

} // namespace
} // namespace orvane
