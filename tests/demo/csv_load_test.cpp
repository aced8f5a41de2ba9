#include "tool/CsvLoad.h"

#include "support/Print.h"
#include "support/Rows.h"
#include "support/TestHome.h"

using namespace orvane;

namespace {

class CsvLoad : public EngineTest {
protected:
    const Table& patients = *Catalog::instance().table("hPatients");

    int load(const QByteArray& content) { return loadCsv(billing, patients, "patients.csv", content); }
};

TEST_P(CsvLoad, readsEachKindOfColumnAndLeavesTheRestToTheDefault) {
    EXPECT_EQ(load("\xEF\xBB\xBFpno,PSURNAME,pfirstname,DOB,DebtBF,email,ref\r\n"
                   "1/001,O'NEILL,\"JIM, JR\",1990-02-28,-1500.25,\"\",\r\n"
                   "2/001,\xE1\xBB\x8C\xE1\xB9\xA2UN,,,,a@b.example,YES\r\n"),
              2);
    EXPECT_EQ(rowsOf(billing, "select psurname,fullname,DOB,DebtBF,email,ref from hPatients order by PNo", "null"),
              "O'NEILL|O'NEILL JIM, JR|1990-02-28|-1500.25||null\n"
              "\u1ECC\u1E62UN|\u1ECC\u1E62UN|null|0|a@b.example|YES");
}

TEST_P(CsvLoad, refusesTheWholeFileForOneBadRowAndSaysWhere) {
    const QByteArray heads = "PNo,psurname,DOB,DebtBF\n1/001,GOOD,2000-01-01,5\n";
    const std::pair<QByteArray, const char*> cases[] = {
        {heads + "1/001,AGAIN,,0\n", "patients.csv:3: a row with this key is there already"},
        {heads + ",AGAIN,,0\n", "patients.csv:3: a column that must have a value has none"},
        {heads + "2/001,BAD,,1e13\n", "patients.csv:3: 10000000000000 is too large: column DebtBF."},
        {heads + "2/001,BAD,,\"\x1b[2J\n01234567890123456789012345678\t0123456789\"\n",
         "patients.csv:3: column DebtBF: \"\\u001b[2J\\n01234567890123456789012345678\\t01234...\" is no number"},
        {heads + "2/001,BAD,2023-02-29,0\n",
         "patients.csv:3: column DOB: \"2023-02-29\" is no date of the form yyyy-mm-dd"},
        {heads + "2/001,\"BAD\nNAME\",,\n3/001,WORSE,,12a\n", "patients.csv:5: column DebtBF: \"12a\" is no number"},
        {heads + "2/001,BAD,,inf\n", "patients.csv:3: column DebtBF: \"inf\" is no number"},
        {heads + "2/001,BAD,,\"\"\n", "patients.csv:3: column DebtBF: \"\" is no number"},
        {heads + "2/001,BAD,,0,\n", "patients.csv:3: 5 fields, but 4 heads"},
        {heads + "2/001,B\xFF,,0\n", "patients.csv:3: column psurname: the text is not UTF-8"},
        {heads + "2/001,BAD,,\"0\n", "patients.csv:3: column DebtBF: the quote is never closed"},
        {"PNo,psurname,shoeSize\n1/001,A,7\n",
         "patients.csv:1: column shoeSize: the table hPatients has no such column"},
        {"PNo,psurname,PNO\n1/001,A,7\n", "patients.csv:1: column PNO: the column is named twice"},
        {"", "patients.csv:1: the file has no heads"},
    };
    for (const auto& [content, message] : cases) {
        try {
            load(content);
            ADD_FAILURE() << "loaded: " << message;
        } catch (const DataError& error) {
            EXPECT_EQ(error.description().toStdString(), message);
        }
        EXPECT_EQ(scalar("select count(*) from hPatients"), "0") << message;
        EXPECT_FALSE(billing.inTransaction());
    }
}

TEST_P(CsvLoad, goesOnNumberingBehindTheLoadedKeys) {
    const Table& items = *Catalog::instance().table("BillAccum");
    loadCsv(billing, items, "items.csv", "SNo,drgName\n7,SEVENTH\n3,THIRD\n");
    billing.execute(Sql("insert into BillAccum (drgName) values ('NEXT')"));
    EXPECT_EQ(scalar("select SNo from BillAccum where drgName='NEXT'"), "8");
}

ORVANE_ON_EACH_ENGINE(CsvLoad);

} // namespace
