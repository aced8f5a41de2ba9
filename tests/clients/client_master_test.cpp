#include "support/Print.h"
#include "support/ScreenTest.h"

namespace orvane {

class ClientMaster : public ScreenTest {
protected:
    ClientMaster() : ScreenTest("frmRetainership") {}

    void prepare() override {
        ws.run("insert into hClientType (ClientType) values ('COMPANY'), ('HMO')");
        layAccounts({"'1201', 'HMO DEBTS', '1230000'", "'1202', 'MILLS', '1230000'", "'4001', 'INCOME', '4'"});
    }
    void enter(const QString& name) {
        click("cmdAdd");
        set("txtName", name);
        set("txtAddress", "1 CREEK ROAD");
        pick("cboClient", "HMO");
        pick("cboYes", "YES");
    }
    QString client(const QString& name) {
        return rows(
            "select retainCode, retainID, ClientType, clientcatID, Active, BillEndDate, Debt from hRetainership "
            "where retainName='" +
            name + "'");
    }
};

TEST_P(ClientMaster, AClientIsAddedChangedAndDeleted) {
    open();
    click("cmdAdd");
    expectChecks({{nullptr, nullptr, "Company Name cannot be empty", "txtName"},
                  {"txtName", "ACME", "Company Address cannot be empty"},
                  {"txtAddress", "1 CREEK ROAD", "Client Type cannot be empty"},
                  {"cboClient", "HMO", "Is Client Active? Please Specify"},
                  {"cboYes", "YES"}});
    pick("cboNum", 0);
    EXPECT_EQ(told("OKButton"), "Record Succesfully saved");
    EXPECT_EQ(client("ACME"), "0302|0302|HMO|HMO|YES|31|0");

    row("grdData", "ACME");
    dblClick("grdData");
    pick("cboClient", "COMPANY");
    pick("cboNum", "25");
    EXPECT_EQ(told("OKButton"), "Record Succesfully Updated");
    EXPECT_EQ(client("ACME"), "0302|0302|COMPANY|COMPANY|YES|25|0");
    EXPECT_EQ(audit("%Client Info%", "userName, userAction"),
              "AMINA BELLO|Add Client Info: ACME\nAMINA BELLO|Edit Client Info: ACME");

    ws.run("insert into hRetainershipScheme (retainID) values ('0302')");
    row("grdData", "ACME");
    breakAt("delete from hRetainershipScheme", true);
    ui.answer(true);
    EXPECT_NE(told("cmdDel"), "");
    EXPECT_NE(client("ACME"), "") << "half a deletion";
    mend();
    ws.run("insert into hPatients (PNo, psurname, coyName) values ('P/9', 'A', '0302')");
    ui.answer(true);
    EXPECT_EQ(told("cmdDel"), "Client Cannot be Deleted!!! Has Patient Information");
    ws.run("delete from hPatients where PNo='P/9'");
    ui.answer(true);
    EXPECT_EQ(told("cmdDel"), " Record successfully deleted ");
    EXPECT_EQ(client("ACME") + rows("select retainID from hRetainershipScheme"), "");
}

TEST_P(ClientMaster, AnAccountIsPickedOfTheReceivablesAlone) {
    open();
    row("grdData", "CLEARWATER HMO");
    dblClick("grdData");
    ui.inModal("frmRevAcctSelect", [&](Form&) {
        EXPECT_EQ(ws.items("frmRevAcctSelect.LstAcct").join('/'), "HMO DEBTS [1201]/MILLS [1202]");
        ws.tick("frmRevAcctSelect.LstAcct", {"HMO DEBTS [1201]", "MILLS [1202]"});
        ws.click("frmRevAcctSelect.OKButton");
        EXPECT_BOXES(ui, {"Only one Account at a time"});
        ws.tick("frmRevAcctSelect.LstAcct", {"MILLS [1202]"}, false);
        ws.click("frmRevAcctSelect.OKButton");
    });
    click("cmdAccts");
    set("txtAddress", "1 CREEK ROAD");
    EXPECT_EQ(told("OKButton"), "Record Succesfully Updated");
    EXPECT_EQ(rows("select AcctID from vwhretainership where retainID='0201'"), "1201");
    row("grdData", "CLEARWATER HMO");
    dblClick("grdData");
    EXPECT_EQ(shown("txtAcctNo lblAcct"), "1201|HMO DEBTS");
    click("cmdCancel");
    EXPECT_EQ(value("txtAcctNo"), "");
}

TEST_P(ClientMaster, ACodeThatHasWrappedIsRefusedWhereItIsInUse) {
    ws.run("insert into hRetainership (retainID, retainCode) values ('9999', '9999')");
    open();
    enter("FIRST");
    EXPECT_EQ(told("OKButton"), "Record Succesfully saved");
    EXPECT_EQ(client("FIRST").left(9), "0000|0000");
    enter("SECOND");
    EXPECT_EQ(told("OKButton"), "The Client was not saved: the next Client Code is already in use by another Client");
    EXPECT_EQ(client("SECOND"), "");
    EXPECT_EQ(value("txtName"), "SECOND");
}

TEST_P(ClientMaster, AClientIsExemptOnce) {
    open("frmClients");
    EXPECT_EQ(told("OKButton"), "Please select a row ");
    for (const char* text : {"Record Succesfully saved", "This Client is in the list already"}) {
        pick("cboVehNo", "0201");
        EXPECT_EQ(told("OKButton"), text);
    }
    EXPECT_EQ(rows("select retainID from hretainershipExempt"), "0201");
    ui.answer(true);
    EXPECT_EQ(told("cmdDelete"), " Record successfully deleted ");
    EXPECT_EQ(rows("select retainID from hretainershipExempt"), "");
}

ORVANE_ON_EACH_ENGINE(ClientMaster);

} // namespace orvane
