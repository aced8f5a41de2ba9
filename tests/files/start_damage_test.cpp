// The three files of the home folder, cut off and with bits turned over.
#include "screens/Screens.h"
#include "session/Main.h"
#include "support/Workstation.h"

#include <QDirIterator>
#include <QFile>
#include <QRandomGenerator>

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
    return content + "[menu]\nmnuRct = 1\nmnuDisc = 0\n[print]\npaper = 80mm\n";
}

/// Calls `use` with the content cut off at twenty places, and then with copies in which one to four bits at random
/// places are turned over; the same ones each time. ORVANE_FILES_COUNT asks for other than 300 copies.
void eachDamage(const QByteArray& content, const std::function<void(const QByteArray&)>& use) {
    for (int length = 0; length < content.size(); length += std::max(1, int(content.size()) / 20))
        use(content.left(length));
    QRandomGenerator random(20260314);
    for (int left = qEnvironmentVariable("ORVANE_FILES_COUNT", "300").toInt(); left > 0; --left) {
        QByteArray copy = content;
        for (int bits = 1 + random.bounded(4); bits > 0; --bits) {
            const int at = random.bounded(int(copy.size()));
            copy[at] = char(copy.at(at) ^ (1 << random.bounded(8)));
        }
        use(copy);
    }
}

/// Why a text is not one line that a user can read: a control character, an engine's own words, or its length. Empty
/// when it is.
QString unclear(const QString& text) {
    if (text.isEmpty() || text.size() > 400)
        return QStringLiteral("%1 characters").arg(text.size());
    for (const QChar character : text)
        if (character.category() == QChar::Other_Control && character != QLatin1Char('\t'))
            return QStringLiteral("a character U+%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
    for (const char* words : {"qsql", "constraint", "syntax error", "sqlstate", "libpq", "near \"", "near line", "::"})
        if (text.contains(QLatin1String(words), Qt::CaseInsensitive))
            return "the words " + QLatin1String(words);
    return {};
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

    void startWithEachDamage(const QString& name, const QByteArray& content) {
        const QString path = home.folder() + u'/' + name;
        const QByteArray sound = read(path);
        eachDamage(content, [&](const QByteArray& damaged) {
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
    startWithEachDamage("made.sys", madeSys);
    startWithEachDamage("sysdoc.sys", sysDoc);
    // The server's address is not damaged: it would be looked for in the network.
    if (GetParam() == Engine::Sqlite)
        startWithEachDamage("orvane.ini", iniContent(read(home.folder() + "/orvane.ini")));
    start();
    EXPECT_EQ(Workstation(home.folder()).tableCount("ApplicationUsers"), 1);
}

} // namespace
} // namespace orvane
