// What the program makes is for its owner alone, and its passwords come into no text.
#include "session/Secrets.h"

#include "reports/Workbook.h"
#include "screens/Screens.h"
#include "session/RoleLog.h"
#include "support/SampleForm.h"
#include "support/TestHome.h"
#include "support/Workstation.h"
#include "tool/Home.h"

#include <QDirIterator>
#include <sys/resource.h>
#include <sys/stat.h>

namespace orvane {
namespace {

TEST(Secrets, FilesOfTheProgramAreItsOwnersAlone) {
    const mode_t usual = umask(022);
    keepToOwner();
    rlimit core{};
    EXPECT_TRUE(getrlimit(RLIMIT_CORE, &core) == 0 && core.rlim_cur == 0) << "a core file would hold the password";
    {
        QTemporaryDir home;
        writeHomeFiles(home.path(), {});
        Workstation ws(home.path());
        createDatabases(ws.program);
        ws.layHospital(); // leaves -wal and -shm beside the open database
        ASSERT_TRUE(ws.start());
        logUserActivity(ws.program, "A", "B");
        logServerError(ws.program, "A", DataError("B"));
        SampleForm form(ws.ui);
        form.grdRows.load(ws.billing().run("select * from Roles"));
        exportWorkbook(form.grdRows, exportFileName(home.path() + "/exports", "A", ws.ui.clock));
        QStringList open, names;
        for (QDirIterator files(home.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                                QDirIterator::Subdirectories);
             files.hasNext();) {
            files.next();
            names << files.fileName();
            if (files.fileInfo().permissions() &
                (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther))
                open << files.fileName();
        }
        EXPECT_EQ(open, QStringList());
        for (const char* kind : {"Dunmarch.db", "Dunmarch.db-wal", "Dunmarch.db-shm", "Accounting.db", "Audit.db",
                                 ".lock", "ServerUserActivities.txt", "ServerErrorLog.txt", ".xlsx"})
            EXPECT_FALSE(names.filter(QLatin1String(kind)).isEmpty()) << kind;
    }
    umask(usual);
}

/// The login's password is in the connection string or in the environment, the user's in what he types.
TEST(Secrets, NoFaultTellsAPassword) {
    QTemporaryDir home;
    QFile ini(home.filePath("orvane.ini"));
    ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
    ini.write("[server SERVER]\nengine = postgresql\nhost = 127.0.0.1\nport = 1\n");
    ini.close();
    qputenv("ORVANE_DB_PASSWORD", "s3cretWord");
    try {
        DataSource(home.path()).open(TestHome::billing());
        ADD_FAILURE() << "nobody listens there";
    } catch (const DataError& fault) {
        const QString told = fault.description() + fault.statement();
        EXPECT_FALSE(told.contains("s3cretWord") || told.contains("vexlarin")) << told.toStdString();
    }
    qunsetenv("ORVANE_DB_PASSWORD");
    try {
        Sql("update ApplicationUsers set Password='") << QStringLiteral("s3cretWord\0") << "'";
        ADD_FAILURE() << "it cannot be stored";
    } catch (const DataError& fault) {
        EXPECT_FALSE(fault.description().contains("s3cretWord")) << fault.what();
    }
}

} // namespace
} // namespace orvane
