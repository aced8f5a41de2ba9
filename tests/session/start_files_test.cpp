#include "session/StartFiles.h"

#include "data/engine/ServerList.h"
#include "session/Main.h"
#include "support/TestUi.h"

#include <QFile>
#include <QSysInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace orvane {
namespace {

/// A home folder without a database, and a program that stands in it.
class StartFiles : public ::testing::Test {
protected:
    void write(const QString& name, const QByteArray& content) {
        QFile file(home.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        ASSERT_EQ(file.write(content), content.size());
    }

    QTemporaryDir home;
    TestUi ui;
    Program program{home.path(), ui};
};

TEST_F(StartFiles, madeSysGivesTheLastServerAndHospital) {
    const struct {
        const char* content;
        const char* server;
        const char* hospital;
    } cases[] = {
        {"SVR=HALL1\nHNO=007\n", "HALL1", "007"},
        {"SVR HALL1\r\nHNO 007\r\n", "HALL1", "007"},                 // the fourth character may be anything
        {"\xEF\xBB\xBFSVR=HALL1\nHNO=007", "HALL1", "007"},           // byte order mark, no last line end
        {"SVR=ONE\nSVR=TWO\nHNO=1\nHNO=2\n", "TWO", "2"},             // the last one wins
        {"SVR=ONE\nSVR\n", "", ""},                                   // even an empty one
        {"svr=ONE\n SVR=TWO\nDB=x\n\n", "", ""},                      // other lines are skipped
        {"SVR= A B \n", " A B ", ""},                                 // not trimmed
        {"SVR=H\xC3\xB4tel\nHNO=\xF4\n", "H\xC3\xB4tel", "\xC3\xB4"}, // UTF-8, and a line that is not
        {"", "", ""},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.content);
        program.session = Session();
        write("made.sys", each.content);
        EXPECT_TRUE(readMadeSys(program));
        EXPECT_EQ(program.session.gServerName, QString::fromUtf8(each.server));
        EXPECT_EQ(program.session.gHospID, QString::fromUtf8(each.hospital));
    }
}

TEST_F(StartFiles, sysdocGivesItsLastLineAsItStands) {
    const struct {
        const char* content;
        const char* user;
    } cases[] = {
        {"amina.b\n", "amina.b"}, {"amina.b", "amina.b"},       {"one\r\ntwo\r\namina.b\r\n", "amina.b"},
        {"amina.b\n\n", ""},      {" amina.b \n", " amina.b "}, {"", ""},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.content);
        program.session = Session();
        write("sysdoc.sys", each.content);
        EXPECT_TRUE(readSysDoc(program));
        EXPECT_EQ(program.session.gUsername, QString::fromUtf8(each.user));
    }
}

TEST_F(StartFiles, missingFilesSayWhichAreMissing) {
    EXPECT_FALSE(readMadeSys(program));
    EXPECT_FALSE(readSysDoc(program));
    EXPECT_BOXES(ui, {"A System inifile bAccum required for this Application is MISSING",
                      "A System file UName required for this Application is MISSING"});
}

/// What is no text is refused with one line that names the file, and nothing of it is taken.
TEST_F(StartFiles, aFileThatIsNoTextIsRefusedWhole) {
    const QByteArray contents[] = {"SVR=HALL1\nHNO=0\x01\n", "SVR=HALL1\n\x1b[2J",
                                   "SVR=HALL1\nHNO=" + QByteArray(70000, '1')};
    for (const QByteArray& content : contents)
        for (const auto& [name, read] : {std::pair("made.sys", &readMadeSys), {"sysdoc.sys", &readSysDoc}}) {
            write(name, content);
            try {
                read(program);
                ADD_FAILURE() << content.left(20).toStdString();
            } catch (const DataError& fault) {
                EXPECT_TRUE(fault.description().contains(name)) << fault.what();
            }
        }
    EXPECT_EQ(program.session.gServerName + program.session.gHospID + program.session.gUsername, "");
}

TEST_F(StartFiles, onlyTheMenuSectionTurnsEntriesOn) {
    EXPECT_TRUE(readMenuEntriesTurnedOn(home.path()).isEmpty());
    write("orvane.ini", "mnuA = 1\n[server SERVER]\nmnuB = 1\n[Menu]\r\n; mnuC = 1\nmnuRct = 1 ; on\n"
                        "mnuDisc=0\nmnuBanks\nmnuMixed=1\n[server X]\nmnuD=1\n");
    EXPECT_EQ(readMenuEntriesTurnedOn(home.path()), (QSet<QString>{"mnurct", "mnumixed"}));
}

TEST_F(StartFiles, thePaperIsOneOfTwo) {
    const struct {
        const char* content;
        const char* said; ///< "roll", "A4", or what the refusal says behind the file's name
    } cases[] = {
        {"", "A4"},
        {"[Print]\nPaper = 80MM ; the till\n", "roll"},
        {"[ print ]\npaper=80mm\n[menu]\npaper = A5\n", "roll"},
        {"[print]\npaper = A4\n", "A4"},
        {"[print]\npaper = A5\n", ", line 2: the paper \"A5\" is not known; it is A4 or 80mm."},
        {"\n[print]\npapper = A4", ", line 3: the key \"papper\" is not known; [print] has paper = A4 or 80mm."},
    };
    for (const auto& each : cases) {
        write("orvane.ini", each.content);
        write("made.sys", "SVR=HALL1\n");
        QString said;
        try {
            said = readRollPaper(home.path()) ? "roll" : "A4";
            EXPECT_NO_THROW(ServerList{home.path()});
        } catch (const DataError& fault) {
            said = fault.description();
            said.remove(home.filePath("orvane.ini"));
            EXPECT_FALSE(Main(program, "amina.b"));
            EXPECT_BOXES(ui, {fault.description()});
        }
        EXPECT_EQ(said, each.said);
    }
}

TEST_F(StartFiles, aHomeThatCannotBeWrittenIsLockedElsewhere) {
    auto first = std::make_unique<Program>("/proc", ui);
    Program second("/proc", ui);
    Program otherHome("/proc/self", ui);
    EXPECT_TRUE(first->lockInstance());
    EXPECT_TRUE(first->lockInstance());
    EXPECT_FALSE(second.lockInstance());
    EXPECT_TRUE(otherHome.lockInstance());
    first.reset();
    EXPECT_TRUE(second.lockInstance());
}

TEST_F(StartFiles, aLockOfADeadProcessDoesNotBlock) {
    const QString host = QSysInfo::machineHostName();
    // No process has this number.
    write(".orvane-billing-" + host + ".lock", "4194305\norvane-billing\n" + host.toUtf8() + "\n");
    EXPECT_TRUE(program.lockInstance());
}

} // namespace
} // namespace orvane
