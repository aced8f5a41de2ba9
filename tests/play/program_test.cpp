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

TEST_P(ProgramScriptTest, WritesWhatItsUserSees) {
    EXPECT_EQ(play("start\nmenu mnuOffAttd\nanswer yes\nmenu mnuEPE"),
              "opened MdiTolmek\nopened frmRecordsOffline\n"
              "question \"Exit Application\" \" Do you want to Exit the Application?\" -> yes\n"
              "closed frmRecordsOffline\nclosed MdiTolmek\nexit 0");
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
