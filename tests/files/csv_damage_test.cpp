// A CSV file, cut off and with bits turned over: all of its rows are there, or none and one line that says why.
#include "Damage.h"
#include "data/rows/Recordset.h"
#include "support/TestHome.h"
#include "tool/CsvLoad.h"
#include "tool/Tool.h"

#include <QFile>
#include <QTextStream>

namespace orvane {
namespace {

/// Some 4 KB with every kind of column and of writing.
QByteArray patientsCsv() {
    QByteArray content = "\xEF\xBB\xBFPNo,psurname,pfirstname,DOB,DebtBF,homeAddress,ref\r\n";
    for (int i = 1; i <= 8; ++i)
        content += QByteArray::number(i) + "/001,O'NEILL,\"\xE1\xBB\x8C\xE1\xB9\xA2UN, \"\"JIM\"\"\",1990-02-2" +
                   QByteArray::number(i) + ",-1500.25,\"" + QByteArray(420, char('A' + i)) + "\nIBADAN\",YES\r\n";
    return content;
}

/// The records behind the first one, counted by their line ends outside quotes.
int countRecords(const QByteArray& content) {
    int records = 0;
    bool quoted = false, blank = true;
    for (const char c : content + '\n') {
        quoted = c == '"' ? !quoted : quoted;
        if (c == '\n' && !quoted) {
            records += blank ? 0 : 1;
            blank = true;
        } else if (c != '\r') {
            blank = false;
        }
    }
    return records - 1;
}

class CsvDamage : public EngineTest {
protected:
    const Table& patients = *Catalog::instance().table("hPatients");
    int taken = 0, refused = 0;

    void SetUp() override {
        data.setDisposable();
        billing = data.open(TestHome::billing());
    }

    void load(const QByteArray& content) {
        try {
            const int loaded = loadCsv(billing, patients, "patients.csv", content);
            ++taken;
            ASSERT_EQ(loaded, countRecords(content)) << content.toStdString();
            ASSERT_EQ(scalar("select count(*) from hPatients").toInt(), loaded);
            billing.execute(Sql("delete from hPatients"));
        } catch (const DataError& fault) {
            ++refused;
            ASSERT_EQ(unclear(fault.description()), "") << fault.what();
            ASSERT_TRUE(fault.description().startsWith("patients.csv:")) << fault.what();
            ASSERT_EQ(scalar("select count(*) from hPatients"), "0") << fault.what();
        }
    }
};

TEST_P(CsvDamage, LoadsAllRowsOrNone) {
    const QByteArray content = patientsCsv();
    const auto use = [this](const QByteArray& damaged) {
        if (!HasFatalFailure())
            load(damaged);
    };
    // What an engine does with a row does not depend on the byte that was damaged: the server takes a sample.
    if (GetParam() == Engine::Sqlite)
        eachDamage(content, flippedCopies(), use);
    else
        someDamage(content, flippedCopies() / 20, use);
    EXPECT_GT(taken, 0);
    EXPECT_GT(refused, 0);
}

TEST_P(CsvDamage, IsToldByTheToolInOneLine) {
    const QString path = home.folder() + "/patients.csv";
    someDamage(patientsCsv(), 20, [&](const QByteArray& damaged) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(damaged);
        file.close();
        QString text;
        QTextStream out(&text);
        const int code = runDatabaseTool({"load", "hPatients", path, "--home", home.folder()}, out, out);
        out.flush();
        const int rows = scalar("select count(*) from hPatients").toInt();
        EXPECT_EQ(rows, code == 0 ? countRecords(damaged) : 0);
        EXPECT_TRUE(text.endsWith(u'\n')) << text.toStdString();
        EXPECT_EQ(unclear(text.chopped(1)), "") << text.toStdString();
        billing.execute(Sql("delete from hPatients"));
    });
}

ORVANE_ON_EACH_ENGINE(CsvDamage);

} // namespace
} // namespace orvane
