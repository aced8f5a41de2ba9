// "Company Profile": a patient and a bill move to another client everywhere or nowhere.
#include "support/Workstation.h"

namespace orvane {
namespace {

class ClientTest : public WorkstationTest {
protected:
    static constexpr const char* processed = "This Bill is already processed! to Modify, unProcess the Batch";

    /// The bill in hand is 001OFL0000001 of P/0001.
    void prepare() override {
        Connection billing = ws.billing();
        makePatient(billing, {});
        makeVisit(billing, {});
        makeItem(billing, {});
        ws.run("insert into Billing (billNo, PNo, clientID) values ('001OFL0000001', 'P/0001', '0001')");
        ws.run("insert into hRetainership (retainID, retainCode, retainName, ClientType) values ('0401', 'OH1', "
               "'O''HARA [LAGOS] LTD', null)");
        ws.run("insert into hRetainership (retainID, retainCode, retainName, ClientType) values ('0402', '0402', "
               "'ZENITH MISSION', 'MISSION')");
    }
    void openForm() {
        ws.program.session.gConsultID = "001OFL0000001";
        ws.program.session.sBillPno = "P/0001";
        ws.program.session.sBillCoy = "PRIVATE PATIENTS";
        ws.open("frmCoyUpdate");
    }
    void pick(const QString& client, const QString& category) {
        ws.pick("frmCoyUpdate.cboPat", client);
        ws.pick("frmCoyUpdate.cboClient", category);
    }
    void update() { ws.click("frmCoyUpdate.OkButton"); }

    /// The client of the patient and the payer of the item.
    QString clients() {
        return ws.scalar("select coyName + ',' + clientcatID from hPatients") + ' ' +
               ws.scalar("select billTo from BillAccum");
    }
    QString lastAudit() {
        Connection audit = ws.billing().beside(GetParam() == Engine::Sqlite ? "Audit" : QString());
        const Recordset row = audit.run("select userAction, TranCode, Remarks from AuditTrail order by SNo desc");
        return row.text(0) + '|' + row.text(1) + '|' + row.text(2);
    }
    const QString untouched = "0001,PRIVATE 0001";
};
ORVANE_ON_EACH_ENGINE(ClientTest);

TEST_P(ClientTest, MovesToThePickedClient) {
    openForm();
    EXPECT_EQ(ws.value("frmCoyUpdate.txtNo") + ws.value("frmCoyUpdate.txtBill"), "P/0001001OFL0000001");
    EXPECT_EQ(ws.items("frmCoyUpdate.cboPat").first(), "CLEARWATER HMO [0201]");
    ws.pick("frmCoyUpdate.cboPat", "HARMONY");
    EXPECT_EQ(ws.items("frmCoyUpdate.cboClient").size(), 4) << "the categories of companies";
    // A client without a type may have any category; its name holds a bracket of its own.
    pick("O'HARA [LAGOS] LTD [0401]", "MTHLY");
    EXPECT_EQ(ws.items("frmCoyUpdate.cboClient").size(), 8);
    update();
    EXPECT_BOXES(ui, {});
    EXPECT_EQ(clients(), "0401,MTHLY OH1");
    EXPECT_EQ(lastAudit(), "Update Patients' Company Profile|001OFL0000001|UpDate Patient Company Profile: PRIVATE "
                           "PATIENTS Now: O'HARA [LAGOS] LTD/MTHLY");
    EXPECT_FALSE(ws.program.loadedForm("frmCoyUpdate"));
}

TEST_P(ClientTest, RefusesInOrder) {
    const char* const company = "HARMONY MILLS LTD [0102]";
    const struct {
        bool isProcessed;
        const char* patient;
        const char* bill;
        const char* client;
        const char* category;
        const char* box;
        bool staysOpen;
        const char* focus;
    } cases[] = {
        {true, "", "001OFL0000001", "", "", processed, true, ""},
        {false, "", "", "", "", "Invalid Patient No", false, ""},
        {false, "P/0001", "", "", "", "Invalid Bill No", false, ""},
        {false, "P/0001", "001OFL0000001", "", "", "Specify Company Name", true, "cboPat"},
        {false, "P/0001", "001OFL0000001", "typed", "", "Specify Company Name", true, "cboPat"},
        {false, "P/0001", "001OFL0000001", company, "", "Specify Company Name", true, "cboClient"},
        // A type that no category bears.
        {false, "P/0001", "001OFL0000001", "ZENITH MISSION [0402]", "", "Specify Company Name", true, "cboClient"}};
    for (const auto& test : cases) {
        SCOPED_TRACE(std::string(test.box) + " " + test.client);
        ws.run(QStringLiteral("update Billing set isProcess=%1").arg(test.isProcessed ? 1 : 0));
        ws.program.session.sBillPno = test.patient;
        ws.program.session.gConsultID = test.bill;
        ws.open("frmCoyUpdate");
        ws.set("frmCoyUpdate.cboPat", test.client);
        update();
        EXPECT_BOXES(ui, {test.box});
        Form* form = ws.program.loadedForm("frmCoyUpdate");
        ASSERT_EQ(form != nullptr, test.staysOpen);
        if (form) {
            EXPECT_EQ(form->focused() ? form->focused()->name() : QString(), test.focus);
            EXPECT_TRUE(form->unload());
        }
        EXPECT_EQ(clients(), untouched);
    }
}

} // namespace
} // namespace orvane
