// Scripts on the real program, from the first line to the exit code.
#include "play/Play.h"
#include "support/Workstation.h"

#include <QBuffer>
#include <QFile>

namespace orvane {
namespace {

class ProgramScriptTest : public ::testing::TestWithParam<Engine> {
protected:
    void SetUp() override {
        Workstation owner(home.folder());
        owner.layHospital();
    }
    /// What a script writes, and its exit code in the last line.
    QString play(const QByteArray& text, const PlayOptions& options = {}) {
        QBuffer script, output;
        script.setData(text);
        script.open(QIODevice::ReadOnly);
        output.open(QIODevice::WriteOnly);
        const int code = runPlay(home.folder(), script, output, options);
        return QString::fromUtf8(output.data()) + QStringLiteral("exit %1").arg(code);
    }

    TestHome home{GetParam()};
};
ORVANE_ON_EACH_ENGINE(ProgramScriptTest);

TEST_P(ProgramScriptTest, WritesTheRoadOfAVisitLineByLine) {
    const QString output = play(R"script(# a new patient comes in
clock server "2026-03-14 09:30:00"
clock workstation "2026-03-14 09:30:00"
sql billing "insert into hPatients (PNo, psurname, pfirstname, clientcatID, coyName, ref) values ('P/0001', 'O''NEILL', 'ADE', 'PRIVATE', '0001', 'NO')"
start
expect sql billing "select count(*) as n from UserActivities where username = 'amina.b'" "1"
menu mnuOffAttd
click frmRecordsOffline.cmdAdd
set frmRecordsOffline.txtName "o'ne"
click frmRecordsOffline.cmdOK
items frmRecordsOffline.cboVehNo
pick frmRecordsOffline.cboVehNo "O'NEILL ADE [P/0001]"
set frmRecordsOffline.cboType "OPD"
set frmRecordsOffline.cboClient "CONSULTATION"
pick frmRecordsOffline.cboAppr "AMINA"
click frmRecordsOffline.OKButton
sql billing "select consultID, PNo from hRecords"
expect sql billing "select SubTotal from BillAccum where consultID = '001OFL0000001'" "2000"
answer yes
menu mnuEPE
)script");
    EXPECT_EQ(output, R"script(opened MdiTolmek
opened frmRecordsOffline
O'NEILL ADE [P/0001]
box none "" "Record Succesfully saved"
consultID	PNo
001OFL0000001	P/0001
question "Exit Application" " Do you want to Exit the Application?" -> yes
closed frmRecordsOffline
closed MdiTolmek
exit 0)script");
}

TEST_P(ProgramScriptTest, ARefusedStartIsShownAndOpensNothing) {
    PlayOptions options;
    options.userName = "nobody";
    const QString refusal = "Invalid Login OR session has expired!!! Please Re-login";
    EXPECT_EQ(play("start\nmenu mnuOffAttd", options),
              QStringLiteral("box none \"\" \"%1\"\nFAIL line 2: MdiTolmek is not open\nexit 1").arg(refusal));
    ASSERT_TRUE(QFile::remove(home.folder() + "/made.sys"));
    const QString missing = "A System inifile bAccum required for this Application is MISSING";
    EXPECT_EQ(play("start"), QStringLiteral("box none \"\" \"%1\"\nexit 0").arg(missing));
    EXPECT_EQ(
        play("sql billing \"select 1 as n\""),
        QStringLiteral("box none \"\" \"%1\"\nFAIL line 1: the home folder names no server\nexit 1").arg(missing));
}

} // namespace
} // namespace orvane
