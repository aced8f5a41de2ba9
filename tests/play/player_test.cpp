// Whole scripts on sample forms: what is written, and where a run fails.
#include "play/HeadlessDriver.h"
#include "play/Player.h"
#include "support/SampleForm.h"
#include "support/TestHome.h"

#include <QBuffer>
#include <QRandomGenerator>

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
        grdRows.onDblClick = [this] { Form::ui().viewReport(grdRows.text("Name"), "List", Recordset()); };
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
    /// Plays a script on a fresh program.
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
        for (const char* name : {"frmSample", "frmModal", "frmAsking", "MdiTolmek"})
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
    QString output; ///< behind "opened frmSample"
};

TEST_F(PlayerTest, CarriesOutEveryCommand) {
    const PlayCase cases[] = {
        {"set frmSample.txtName \"O'NEILL\"\nprint frmSample.lblTitle\nexpect frmSample.txtName \"O'NEILL\"",
         "O'NEILL\n"},
        {"set frmSample.txtCode \"abcdefg\"\nprint frmSample.txtCode", "ABCDE\n"},
        {"set frmSample.txtDigits \"1a2\"\nprint frmSample.txtDigits", "12\n"},
        {"set frmSample.txtNote \"a\\nb\"\nprint frmSample.txtNote\nexpect frmSample.txtNote \"a\\nb\"", "a\\nb\n"},
        {"set frmSample.txtAmt(1) \"5\"\nprint frmsample.TXTAMT(1)\nprint frmSample.txtAmt(0)", "5\n\n"},
        {"set frmSample.cboTown \"IBADAN\"\nprint frmSample.cboTown\nset frmSample.cboTown \"JOS\"\nprint "
         "frmSample.cboTown",
         "IBADAN\nJOS\n"},
        {"pick frmSample.cboTown 2\nprint frmSample.cboTown\npick frmSample.cboTown \"IBADAN\"\nprint "
         "frmSample.cboTown\n"
         "pick frmSample.cboTown \"north\"\nprint frmSample.cboTown",
         "IBADAN NORTH\nIBADAN\nIBADAN NORTH\n"},
        {"set frmSample.cboColor \"GREEN\"\nprint frmSample.cboColor\nitems frmSample.cboColor", "GREEN\nRED\nGREEN\n"},
        {"set frmSample.dtDate \"2026-03-14\"\nprint frmSample.dtDate\nset frmSample.dtDate \"\"\nprint "
         "frmSample.dtDate",
         "2026-03-14\n\n"},
        {"set frmSample.radBank yes\nprint frmSample.radCash", "no\n"},
        {"tick frmSample.lstItems \"ONE\" \"THREE\"\nuntick frmSample.lstItems \"ONE\"\nprint frmSample.lstItems",
         "THREE\n"},
        {"pick frmSample.tree \"Leaf\"\nprint frmSample.tree\npick frmSample.tabs \"Ent\"\nprint frmSample.tabs\n"
         "pick frmSample.tabs 0\nprint frmSample.tabs",
         "Leaf\n1\n0\n"},
        {"items frmSample.status\nrows frmSample.grdEntry\nitems frmSample.mnuMain",
         "ready\n\nItem\tPrice\n\t\nmnuEntry\n"},
        {"row frmSample.grdEntry 0", ""},
        {"click frmSample.cmdSave\nexpect box \"saved \"", "box information \"Save\" \"saved \"\n"},
        {"key frmSample.txtDigits \"a1\\n\"\nexpect box \"saved \"", "box information \"Save\" \"saved \"\n"},
        {"answer yes\nclick frmSample.chkCard\nanswer no\nset frmSample.chkCard \"no\"",
         "question \"Card\" \"Sure?\" -> yes\nbox none \"\" \"sure\"\nquestion \"Card\" \"Sure?\" -> no\nbox none \"\" "
         "\"not\"\n"},
        {"answer \"x\"\nclick frmSample.radTwo", "input \"Code?\" -> \"x\"\nbox none \"\" \"x\"\n"},
        {"answer cancel\nclick frmSample.radTwo", "input \"Code?\" -> cancel\nbox none \"\" \"cancelled\"\n"},
        {"click frmSample.lblTitle\ndblclick frmSample.lblTitle\nleave frmSample.txtName\ntimer frmSample.tmrTick",
         "print frmSample\nexport list.xlsx\nsound ring1.wav\n"},
        {"start\nmenu mnuEntry\nstate MdiTolmek.mnuEntry\nstate MdiTolmek.mnuInHidden\nclose MdiTolmek",
         "opened MdiTolmek\nbox none \"\" \"mnuEntry\"\nvisible enabled\nhidden enabled\nclosed MdiTolmek\n"},
        {"state frmSample.txtLocked\nstate frmSample.txtName", "visible enabled locked\nvisible enabled\n"},
        {"open frmSample\nclick frmSample.cmdClose", "closed frmSample\n"},
        {"open frmAsking\nanswer no\nclose frmAsking\nanswer yes\nclose frmAsking",
         "opened frmAsking\nquestion \"\" \"Leave?\" -> no\nquestion \"\" \"Leave?\" -> yes\nclosed frmAsking\n"},
        {"answer \"left\"\nclick frmSample.radTwo\nclick frmSample.radOne\nset frmModal.txtName \"in\"\nclick "
         "frmModal.cmdSave\n"
         "close frmModal\nexpect box \"left\"\nexpect box \"saved in\"\nexpect box \"back\"",
         "input \"Code?\" -> \"left\"\nbox none \"\" \"left\"\nopened frmModal\nbox information \"Save\" \"saved "
         "in\"\nclosed frmModal\n"
         "box none \"\" \"back\"\n"},
        {"sql billing \"update IDgen set ID=41 where DestName='Receipt'\"\n"
         "sql billing \"select DestName, ID as Last from IDgen where ID > 0\"\nsql accounting \"select Period from AccountMonth\"\n"
         "expect sql billing \"select ID from IDgen where ID > 0\" \"41\"\nsql billing \"delete from IDgen\"",
         "DestName\tLast\nReceipt\t41\nPeriod\n"},
        {"sql billing \"insert into IDgen (DestName, ID) values ('A', 1)\"\nsql billing \"insert into IDgen (DestName, "
         "ID) values ('B\tC', 2)\"\n"
         "leave frmSample.txtNote\nrows frmSample.grdRows\nrow frmSample.grdRows \"2\"\ndblclick frmSample.grdRows\n"
         "row frmSample.grdRows \"3\"\ndblclick frmSample.grdRows\nrow frmSample.grdRows \"1\"\ndblclick "
         "frmSample.grdRows\n"
         "row frmSample.grdRows 1\ndblclick frmSample.grdRows\nexpect frmSample.grdRows \"2 rows\"\nsql billing "
         "\"delete from IDgen\"",
         "Name\tNext\nA\t2\nB\\tC\t3\nreport A 0\nreport B\tC 0\nreport A 0\nreport B\tC 0\n"},
        {"clock server \"2026-03-14 09:30:00\"\nclock workstation \"2020-01-01 00:00:00\"\n"
         "expect sql billing \"select cast(getdate() as date) as d\" \"2026-03-14\"\npicture shot.png",
         ""},
        {"\r\n   # nothing\r\nprint frmSample.chkCard # yes or no\r\n", "no\n"},
    };
    for (const PlayCase& one : cases) {
        const Played run = play("open frmSample\n" + one.script);
        EXPECT_EQ(run.output, "opened frmSample\n" + one.output) << one.script.toStdString();
        EXPECT_TRUE(run.passed) << one.script.toStdString();
    }
}

TEST_F(PlayerTest, FailsWhereALineCannotBeCarriedOut) {
    const PlayCase cases[] = {
        // The line that fails is the last one, unless the text says otherwise.
        {"jump", "there is no command \"jump\""},
        {"\"start\"", "there is no command \"start\""},
        {"set frmSample.txtName", "usage: set FORM.CONTROL \"value\""},
        {"start now", "usage: start"},
        {"print \"open", "a text without its closing quote"},
        {"click frmNowhere.cmdSave", "frmNowhere is not open"},
        {"click frmModal.cmdSave", "frmModal is not open"},
        {"click frmSample.cmdNone", "there is no control frmSample.cmdNone"},
        {"click frmSample", "frmSample is not FORM.CONTROL"},
        {"open frmNowhere", "there is no form frmNowhere"},
        {"set frmSample.txtLocked \"x\"", "frmSample.txtLocked is locked"},
        {"set frmSample.txtName \"a\\nb\"", "frmSample.txtName takes one line"},
        {"set frmSample.cboColor \"BLUE\"", "frmSample.cboColor has no entry \"BLUE\""},
        {"pick frmSample.cboTown \"KANO\"", "frmSample.cboTown has no entry with \"KANO\""},
        {"pick frmSample.cboTown 3", "frmSample.cboTown has no entry 3"},
        {"pick frmSample.cboTown -1", "frmSample.cboTown has no entry -1"},
        {"pick frmSample.tabs 2", "frmSample.tabs has no entry 2"},
        {"pick frmSample.txtName 0", "frmSample.txtName has no entries to pick"},
        {"set frmSample.chkCard \"maybe\"", "frmSample.chkCard takes \"yes\" or \"no\""},
        {"set frmSample.radOne \"no\"", "frmSample.radOne is turned off by choosing another option"},
        {"set frmSample.dtDate \"14/03/2026\"", "frmSample.dtDate takes a date as yyyy-mm-dd, or \"\""},
        {"set frmSample.dtDate \"2026-02-30\"", "frmSample.dtDate takes a date as yyyy-mm-dd, or \"\""},
        {"set frmSample.lblTitle \"x\"", "frmSample.lblTitle takes no value"},
        {"tick frmSample.lstItems \"FOUR\"", "frmSample.lstItems has no entry \"FOUR\""},
        {"row frmSample.grdRows 0", "frmSample.grdRows has no row 0"},
        {"row frmSample.grdEntry \"x\"", "frmSample.grdEntry has no row with \"x\""},
        {"rows frmSample.txtName", "frmSample.txtName has none"},
        {"timer frmSample.tmrOff", "frmSample.tmrOff is disabled"},
        {"timer frmSample.cmdSave", "frmSample.cmdSave is not a timer"},
        {"click frmSample.mnuInHidden", "frmSample.mnuInHidden is hidden"},
        {"menu mnuEntry", "MdiTolmek is not open"},
        {"answer maybe", "an answer is yes, no, cancel or a text in quotes"},
        {"click frmSample.chkCard", "no answer is queued for question \"Sure?\""},
        {"answer \"yes\"\nclick frmSample.chkCard", "the answer of line 2 does not fit question \"Sure?\""},
        {"answer yes\nclick frmSample.radTwo", "the answer of line 2 does not fit input \"Code?\""},
        {"expect box \"x\"", "expected a box \"x\", but none has come up"},
        {"expect frmSample.txtLocked \"fixed \"", "expected \"fixed \", but frmSample.txtLocked is \"fixed\""},
        {"expect sql billing \"select ID from IDgen where 1=2\" \"1\"", "expected \"1\", but there is no row"},
        {"expect sql billing \"select 2 as n\" \"1\"", "expected \"1\", but it is \"2\""},
        {"sql payroll \"select 1 as n\"", "the databases are billing and accounting"},
        {"clock server \"noon\"", "a clock takes \"yyyy-mm-dd hh:mm:ss\""},
        {"clock wall \"2026-03-14 09:30:00\"", "there is a server's and a workstation's clock"},
    };
    for (const PlayCase& one : cases) {
        const Played run = play("open frmSample\n" + one.script + "\nprint frmSample.txtLocked");
        const int line = 2 + int(one.script.count('\n'));
        EXPECT_EQ(run.output, QStringLiteral("opened frmSample\nFAIL line %1: %2\n").arg(line).arg(one.output))
            << one.script.toStdString();
        EXPECT_FALSE(run.passed) << one.script.toStdString();
    }
}

TEST_F(PlayerTest, FailsWithWhatCameBefore) {
    const struct {
        QByteArray script;
        QString lastLine;
    } cases[] = {
        {"answer yes\nprint frmSample.chkCard", "FAIL line 2: nothing asked for this answer"},
        {"start\nstart", "FAIL line 3: the program has been started"},
        {"click frmSample.cmdSave\nexpect box \"saved\"",
         "FAIL line 3: expected a box \"saved\", but it said \"saved \""},
        {"set frmSample.radTwo yes\nprint frmSample.radTwo", "FAIL line 2: no answer is queued for input \"Code?\""},
        {"answer \"\"\nclick frmSample.radTwo\nclick frmSample.radOne\nclick frmSample.cmdSave",
         "FAIL line 5: frmSample.cmdSave waits until frmModal has closed"},
        {"answer \"\"\nclick frmSample.radTwo\nclick frmSample.radOne\nopen frmAsking",
         "FAIL line 5: frmAsking waits until frmModal has closed"},
        {"answer \"\"\nclick frmSample.radTwo\nclick frmSample.radOne\nclose frmSample",
         "FAIL line 5: frmSample waits until frmModal has closed"},
        {"answer \"\"\nclick frmSample.radTwo\nclick frmSample.radOne",
         "FAIL line 4: the script ends while frmModal is open as a modal form"},
        {"close frmSample\nclick frmSample.cmdSave", "FAIL line 3: frmSample is not open"},
    };
    for (const auto& one : cases) {
        const Played run = play("open frmSample\n" + one.script);
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

TEST_F(PlayerTest, SurvivesAnyScript) {
    QRandomGenerator random(42);
    const QByteArrayList pieces = {"open ", "frmSample", ".",           "cmdSave", "click ",       "set ",    "\"",
                                   "\\",    "#",         "\n",          "\r\n",    "sql billing ", "expect ", "box ",
                                   "row ",  "grdRows",   "99999999999", "-1",      "answer ",      "yes",     " ",
                                   "\xFF",  "txtAmt(",   ")",           "start",   "pick ",        "tabs",    "key "};
    for (int round = 0; round < 300; ++round) {
        QByteArray script = "open frmSample\n";
        for (int left = random.bounded(40); left > 0; --left)
            script += pieces.at(random.bounded(int(pieces.size())));
        const Played run = play(script);
        EXPECT_EQ(run.passed, !run.output.contains("FAIL line ")) << script.toStdString();
    }
}

} // namespace
} // namespace orvane
