// A script, cut off and with bits turned over: it is played up to the line that cannot be carried out, which is told.
#include "Damage.h"
#include "play/Play.h"
#include "play/ScriptParser.h"
#include "support/SourceTree.h"
#include "support/Workstation.h"

#include <QBuffer>
#include <QFile>
#include <QRegularExpression>

namespace orvane {
namespace {

/// The lines in which the copy differs from the original, or its last one.
QByteArray changedLines(const QByteArray& original, const QByteArray& copy) {
    qsizetype first = 0, last = copy.size();
    while (first < copy.size() && copy.at(first) == original.at(first))
        ++first;
    while (copy.size() == original.size() && last > first && copy.at(last - 1) == original.at(last - 1))
        --last;
    const qsizetype begin = first == 0 ? 0 : copy.lastIndexOf('\n', first - 1) + 1;
    const qsizetype end = copy.indexOf('\n', std::max<qsizetype>(last - 1, 0));
    return copy.mid(begin, end < 0 ? -1 : end - begin + 1);
}

TEST(ScriptDamage, IsReadLineByLineOrRefusedClearly) {
    QFile tour(sourceFile("demo/tour.play"));
    ASSERT_TRUE(tour.open(QIODevice::ReadOnly));
    const QByteArray original = tour.read(4096);
    int read = 0, refused = 0;
    eachDamage(original, flippedCopies(), [&](const QByteArray& damaged) {
        QByteArray lines = changedLines(original, damaged);
        QBuffer script(&lines);
        script.open(QIODevice::ReadOnly);
        while (!script.atEnd()) {
            const ScriptLine line = parseScriptLine(script.readLine(maxScriptLine + 3));
            if (line.error.isEmpty()) {
                ++read;
                continue;
            }
            ++refused;
            EXPECT_TRUE(line.words.isEmpty());
            EXPECT_EQ(unclear(line.error), "") << line.error.toStdString();
        }
    });
    EXPECT_GT(read, 0);
    EXPECT_GT(refused, 0);
}

const char* const visit = R"script(clock server "2026-03-14 09:30:00"
clock workstation "2026-03-14 09:30:00"
sql billing "delete from hPatients"
sql billing "insert into hPatients (PNo, psurname, pfirstname, clientcatID, coyName, ref) values ('P/1', 'OJO', 'ADE', 'PRIVATE', '0001', 'NO')"
start
menu mnuOffAttd
click frmRecordsOffline.cmdAdd
set frmRecordsOffline.txtName "oj"
click frmRecordsOffline.cmdOK
pick frmRecordsOffline.cboVehNo "OJO ADE [P/1]"
set frmRecordsOffline.cboType "OPD"
set frmRecordsOffline.cboClient "CONSULTATION"
pick frmRecordsOffline.cboAppr "AMINA"
click frmRecordsOffline.OKButton
expect box "Record Succesfully saved"
rows frmRecordsOffline.MSHFlexGrid1
answer yes
menu mnuEPE
)script";

class DamagedScript : public ::testing::TestWithParam<Engine> {
protected:
    TestHome home{GetParam()};
};
ORVANE_ON_EACH_ENGINE(DamagedScript);

TEST_P(DamagedScript, PlaysUpToTheLineThatFails) {
    Workstation(home.folder()).layHospital();
    const QTemporaryDir exports;
    int played = 0, failed = 0;
    someDamage(visit, flippedCopies() / 250, [&](QByteArray damaged) {
        SCOPED_TRACE(damaged.toStdString());
        QBuffer script(&damaged), output;
        script.open(QIODevice::ReadOnly);
        output.open(QIODevice::WriteOnly);
        const int code = runPlay(home.folder(), script, output, {{}, exports.path(), nullptr, nullptr});
        const QStringList lines = QString::fromUtf8(output.data()).split(u'\n', Qt::SkipEmptyParts);
        const bool fails = !lines.isEmpty() && lines.last().startsWith("FAIL line ");
        EXPECT_EQ(code, fails ? 1 : 0);
        EXPECT_EQ(lines.filter(QRegularExpression("^FAIL ")).size(), fails ? 1 : 0);
        for (const QString& line : lines)
            EXPECT_FALSE(unclear(line).startsWith("a character")) << line.toStdString();
        ++(fails ? failed : played);
    });
    EXPECT_GT(played, 0);
    EXPECT_GT(failed, 0);
}

} // namespace
} // namespace orvane
