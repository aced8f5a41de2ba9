// "Company Profile": a patient and a bill move to another client everywhere or nowhere.
#include "support/ScreenTest.h"

namespace orvane {
namespace {

class ClientTest : public ScreenTest {
protected:
    ClientTest() : ScreenTest("frmCoyUpdate") {}

    static constexpr const char* processed = "This Bill is already processed! to Modify, unProcess the Batch";

    /// The bill in hand is 001OFL0000001 of P/0001.
    void prepare() override {
        layVisit();
        layItem();
        layBill(50);
        ws.run("insert into hRetainership (retainID, retainCode, retainName, ClientType) values ('0401', 'OH1', "
               "'O''HARA [LAGOS] LTD', null)");
        ws.run("insert into hRetainership (retainID, retainCode, retainName, ClientType) values ('0402', '0402', "
               "'ZENITH MISSION', 'MISSION')");
    }
    /// The client of the patient and the payer of the item.
    QString clients() { return rows("select hPatients.coyName, clientcatID, billTo from hPatients, BillAccum"); }
};
ORVANE_ON_EACH_ENGINE(ClientTest);

TEST_P(ClientTest, MovesToThePickedClient) {
    ws.program.session.gConsultID = billNo;
    ws.program.session.sBillPno = "P/0001";
    ws.program.session.sBillCoy = "PRIVATE PATIENTS";
    open();
    EXPECT_EQ(value("txtNo") + value("txtBill"), "P/0001001OFL0000001");
    EXPECT_EQ(items("cboPat").first(), "CLEARWATER HMO [0201]");
    pick("cboPat", "HARMONY");
    EXPECT_EQ(items("cboClient").size(), 4) << "the categories of companies";
    // A client without a type may have any category; its name holds a bracket of its own.
    pick("cboPat", "O'HARA [LAGOS] LTD [0401]");
    pick("cboClient", "MTHLY");
    EXPECT_EQ(items("cboClient").size(), 8);
    click("OkButton");
    EXPECT_BOXES(ui, {});
    EXPECT_EQ(clients(), "0401|MTHLY|OH1");
    EXPECT_EQ(audit("Update%", "userAction, TranCode, Remarks"),
              "Update Patients' Company Profile|001OFL0000001|UpDate Patient Company Profile: PRIVATE "
              "PATIENTS Now: O'HARA [LAGOS] LTD/MTHLY");
    EXPECT_FALSE(isOpen());
}

TEST_P(ClientTest, RefusesInOrder) {
    const char* const company = "HARMONY MILLS LTD [0102]";
    const struct {
        const char* patient;
        const char* bill;
        const char* client;
        const char* box;
        const char* focus; ///< null: the screen is closed
    } cases[] = {{"", billNo, "", processed, ""},
                 {"", "", "", "Invalid Patient No", nullptr},
                 {"P/0001", "", "", "Invalid Bill No", nullptr},
                 {"P/0001", billNo, "", "Specify Company Name", "cboPat"},
                 {"P/0001", billNo, "typed", "Specify Company Name", "cboPat"},
                 {"P/0001", billNo, company, "Specify Company Name", "cboClient"},
                 // A type that no category bears.
                 {"P/0001", billNo, "ZENITH MISSION [0402]", "Specify Company Name", "cboClient"}};
    for (const auto& test : cases) {
        SCOPED_TRACE(std::string(test.box) + " " + test.client);
        ws.run(QStringLiteral("update Billing set isProcess=%1").arg(test.box == processed ? 1 : 0));
        ws.program.session.sBillPno = test.patient;
        ws.program.session.gConsultID = test.bill;
        open();
        set("cboPat", test.client);
        click("OkButton");
        EXPECT_BOXES(ui, {test.box});
        ASSERT_EQ(isOpen(), test.focus != nullptr);
        if (isOpen()) {
            EXPECT_EQ(focused(), test.focus);
            close();
        }
        EXPECT_EQ(clients(), "0001|PRIVATE|0001");
    }
}

} // namespace
} // namespace orvane
