// The three files of the home folder, cut off and with bits turned over.
#include "Damage.h"
#include "data/engine/ServerList.h"
#include "screens/Screens.h"
#include "session/Main.h"
#include "session/StartFiles.h"
#include "support/Workstation.h"

#include <QDirIterator>
#include <QFile>

namespace orvane {
namespace {

const char* const madeSys = "; the server of this workstation\r\nSVR=SERVER\r\nHNO=001\r\n";
const char* const sysDoc = "amina.b\n";

/// The server of this test, in front of others of each kind.
QByteArray iniContent(const QByteArray& own) {
    QByteArray content = own + "\n; the other branches\n";
    for (int i = 1; i <= 4; ++i)
        content += "[server HALL" + QByteArray::number(i) + "]  # Ọ̀nà " + QByteArray::number(i) +
                   "\nengine = postgresql\nhost = 10.0.0." + QByteArray::number(i) +
                   "\nport = 5432\nprefix = h_\n[server OLD" + QByteArray::number(i) +
                   "]\nengine = sqlserver\ndriver = ODBC Driver 18\n\n";
    return content + "[menu]\nmnuRct = 1\nmnuDisc = 0\n";
}

void write(const QString& path, const QByteArray& content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    ASSERT_EQ(file.write(content), content.size());
}

QByteArray read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList filesBelow(const QString& folder) {
    QStringList files;
    for (QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); it.hasNext();) {
        const QString file = it.next();
        // Companions of a database that is in use, and the lock of a running program.
        if (!file.endsWith("-wal") && !file.endsWith("-shm") && !file.endsWith(".lock"))
            files << file;
    }
    files.sort();
    return files;
}

/// Reads a damaged copy of the file in each way it can be cut off, and with bits turned over: it is taken, or refused
/// with one clear line that names it.
void readEachDamage(const QString& name, const QByteArray& content,
                    const std::function<void(const QString& homeFolder)>& readAll) {
    const QTemporaryDir home;
    const QString path = home.filePath(name);
    int taken = 0, refused = 0;
    eachDamage(content, flippedCopies(), [&](const QByteArray& damaged) {
        write(path, damaged);
        try {
            readAll(home.path());
            ++taken;
        } catch (const DataError& fault) {
            ++refused;
            EXPECT_EQ(unclear(fault.description()), "") << fault.what();
            EXPECT_TRUE(fault.description().contains(name)) << fault.what();
        }
    });
    EXPECT_GT(taken, 0) << name.toStdString();
    EXPECT_GT(refused, 0) << name.toStdString();
}

TEST(StartDamage, OfTheServersFileIsReadOrRefusedWhole) {
    readEachDamage(
        "made.sys", madeSys,
        [](const QString& homeFolder) {
            TestUi ui;
            Program program(homeFolder, ui);
            try {
                readMadeSys(program);
                for (const QString& value : {program.session.gServerName, program.session.gHospID})
                    EXPECT_TRUE(value.isEmpty() || unclear(value).isEmpty()) << value.toStdString();
            } catch (const DataError&) {
                EXPECT_EQ(program.session.gServerName + program.session.gHospID, "");
                throw;
            }
        });
}

TEST(StartDamage, OfTheUsersFileIsReadOrRefusedWhole) {
    readEachDamage(
        "sysdoc.sys", sysDoc,
        [](const QString& homeFolder) {
            TestUi ui;
            Program program(homeFolder, ui);
            try {
                readSysDoc(program);
                const QString user = program.session.gUsername;
                EXPECT_TRUE(user.isEmpty() || unclear(user).isEmpty()) << user.toStdString();
            } catch (const DataError&) {
                EXPECT_EQ(program.session.gUsername, "");
                throw;
            }
        });
}

TEST(StartDamage, OfTheListOfServersIsReadOrRefusedWhole) {
    readEachDamage(
        "orvane.ini", iniContent("[server SERVER]\nengine = sqlite\nfolder = data\n"),
        [](const QString& homeFolder) {
            const ServerEntry entry = ServerList(homeFolder).entry("HALL1");
            EXPECT_TRUE(entry.port >= 0 && entry.port <= 65535);
            readMenuEntriesTurnedOn(homeFolder);
        });
}

/// The whole start on damaged files, on a hospital that is there.
class DamagedStart : public ::testing::TestWithParam<Engine> {
protected:
    void SetUp() override { Workstation(home.folder()).layHospital(); }

    /// Starts the program: its shell comes up, or one clear box says why not; no file is made, no row is lost.
    void start() {
        const QStringList files = filesBelow(home.folder());
        TestUi ui;
        {
            Program program(home.folder(), ui);
            registerScreens(program);
            const bool started = Main(program);
            const QStringList boxes = ui.takeBoxes();
            EXPECT_EQ(boxes.size(), started ? 0 : 1);
            for (const QString& box : boxes)
                EXPECT_EQ(unclear(box), "") << box.toStdString();
            EXPECT_EQ(ui.opened.contains("MdiTolmek"), started);
            ++(started ? starts : refusals);
        }
        EXPECT_EQ(filesBelow(home.folder()), files);
    }

    void startWithEachDamage(const QString& name, const QByteArray& content, int flipped) {
        const QString path = home.folder() + u'/' + name;
        const QByteArray sound = read(path);
        someDamage(content, flipped, [&](const QByteArray& damaged) {
            SCOPED_TRACE(name.toStdString() + ": " + damaged.toStdString());
            write(path, damaged);
            start();
        });
        write(path, sound);
        EXPECT_GT(starts, 0) << name.toStdString();
        EXPECT_GT(refusals, 0) << name.toStdString();
    }

    TestHome home{GetParam()};
    int starts = 0, refusals = 0;
};
ORVANE_ON_EACH_ENGINE(DamagedStart);

TEST_P(DamagedStart, ComesUpOrSaysWhyNot) {
    startWithEachDamage("made.sys", madeSys, 60);
    startWithEachDamage("sysdoc.sys", sysDoc, 40);
    // The server's address is not damaged: it would be looked for in the network.
    if (GetParam() == Engine::Sqlite)
        startWithEachDamage("orvane.ini", iniContent(read(home.folder() + "/orvane.ini")), 60);
    start();
    EXPECT_EQ(Workstation(home.folder()).tableCount("ApplicationUsers"), 1);
}

} // namespace
} // namespace orvane
