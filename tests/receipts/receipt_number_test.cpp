#include "ReceiptTest.h"

#include "receipts/ListEntry.h"
#include "receipts/ReceiptNumber.h"
#include "receipts/ReceiptRows.h"

namespace orvane {

namespace {

class ReceiptNumbers : public ReceiptTest {
protected:
    ReceiptNumber form(ReceiptForm kind, const QString& key = {}) {
        Connection connection = ws.billing();
        return formReceiptNumber(ws.program, connection, kind, key);
    }
    void layPayments(const QStringList& numbers) {
        ws.run("delete from Payments");
        for (const QString& number : numbers)
            ws.run("insert into Payments (ReceiptNo) values ('" + number + "')");
    }
};

ORVANE_ON_EACH_ENGINE(ReceiptNumbers);

TEST_P(ReceiptNumbers, CodedFormsGoOnFromTheHighestOfTheirCode) {
    const QString outletVisit = "001/26/000001";
    layVisit();
    ws.run("insert into hRecordsPublic (consultID, clinicType) values ('" + outletVisit + "', 'LABORATORY')");
    const struct {
        QStringList issued;
        const char* clinic; ///< seven digits
        const char* outlet;
    } cases[] = {
        {{}, "0000001", "0000001"},
        {{"001OP0000041", "001OP0000009", "001LB0000007"}, "0000042", "0000008"},
        {{"001OP0000100", "001AN0000500", "002OP0000900", "77", "SN12"}, "0000101", "0000001"},
        // A code without numbers of its own carries on from the older form, one with numbers does not look there.
        {{"OP0000060", "LB0000070"}, "0000061", "0000071"},
        {{"OP0000060", "001OP0000002"}, "0000003", "0000001"},
        {{"001OP0000000", "OP0000060"}, "0000061", "0000001"},
        {{"001OP9999999", "001LB9999998"}, "0000000", "9999999"},
        {{"001OPX", "OP"}, "0000001", "0000001"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.issued.join(' ').toStdString());
        layPayments(c.issued);
        const ReceiptNumber clinic = form(ReceiptForm::ClinicCoded, billNo);
        EXPECT_EQ(clinic.number, QString("001OP") + c.clinic);
        EXPECT_EQ(clinic.clinicType + '|' + clinic.clinicID, "OPD|OPD");
        const ReceiptNumber outlet = form(ReceiptForm::OutletCoded, outletVisit);
        EXPECT_EQ(outlet.number, QString("001LB") + c.outlet);
        EXPECT_EQ(outlet.clinicType, "LABORATORY");
    }
}

TEST_P(ReceiptNumbers, WithoutACodeThereIsNoNumber) {
    layVisit();
    ws.run("update clinicTypes set rctCode=null");
    for (const char* visit : {billNo, "unknown", ""}) {
        const ReceiptNumber clinic = form(ReceiptForm::ClinicCoded, visit);
        EXPECT_EQ(clinic.number, "");
        EXPECT_EQ(clinic.refusal, "ReceiptNo cannot be generated!!! No Consult ID for this transaction");
    }
    const ReceiptNumber outlet = form(ReceiptForm::OutletCoded, billNo);
    EXPECT_EQ(outlet.number, "");
    EXPECT_EQ(outlet.refusal, "ReceiptNo cannot be generated!!! No Tran ID for this transaction");
}

TEST_P(ReceiptNumbers, CountersAndPaper) {
    ws.run("update IDgen set ID=4711 where DestName='RECEIPT2'");
    ws.run("update IDgen set ID=99 where DestName='Receipt'");
    EXPECT_EQ(form(ReceiptForm::Generated).number, "4712");
    EXPECT_EQ(form(ReceiptForm::Generated).number, "4713");
    EXPECT_EQ(form(ReceiptForm::Counter).number, "100");
    EXPECT_EQ(form(ReceiptForm::Counter).number, "100") << "it is raised by who saves under it";
    Connection connection = ws.billing();
    storeReceiptCounter(connection, "100");
    EXPECT_EQ(form(ReceiptForm::Counter).number, "101");
    EXPECT_EQ(form(ReceiptForm::Paper, "  0047 ").number, "SN0047");
}

TEST(ListEntries, NamesMayHoldBracketsOfTheirOwn) {
    const struct {
        const char *entry, *name, *number, *bill;
    } cases[] = {
        {"ADEYEMI BOLA [001OFL0000001]", "ADEYEMI BOLA", "001OFL0000001", ""},
        {"ADE [MRS] #2 [P/0001]#001OFL0000001", "ADE [MRS] #2", "P/0001", "001OFL0000001"},
        {"ADEYEMI BOLA", "ADEYEMI BOLA", "", ""},
        {"ADEYEMI [P/0001", "ADEYEMI [P/0001", "", ""},
        {"", "", "", ""},
    };
    for (const auto& c : cases) {
        const ListEntry entry = readListEntry(c.entry);
        EXPECT_EQ(entry.name, c.name);
        EXPECT_EQ(entry.number, c.number);
        EXPECT_EQ(entry.bill, c.bill);
    }
}

TEST(Paid, ComparesToTheKobo) {
    EXPECT_EQ(isPaidFlag(0.1 + 0.2, 0.3), 1);
    EXPECT_EQ(isPaidFlag(100.1 + 200.2 + 300.3 - 600.6, 0), 1);
    EXPECT_EQ(isPaidFlag(99.99, 100), 0);
    EXPECT_EQ(isPaidFlag(100.01, 100), 1);
}

} // namespace

} // namespace orvane
