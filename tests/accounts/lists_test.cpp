#include "support/Print.h"
#include "support/ScreenTest.h"

namespace orvane {

class AccountLists : public ScreenTest {
protected:
    AccountLists() : ScreenTest("frmBanks") {}

    QString saved() {
        ui.answer(true);
        return told("OKButton");
    }
    void add(const QString& type, const QString& group, const QString& name) {
        click("cmdAdd");
        set("cboType", type);
        set("cboVehNo", group);
        set("txtReg", name);
        EXPECT_EQ(saved(), "Record Succesfully saved");
    }
    QString banks() { return rows("select bankcode,branchcode,bankname,Branch,Status from banks order by SNO"); }
};

TEST_P(AccountLists, ABankAndItsBranchesAreKept) {
    open();
    click("cmdAdd");
    expectChecks({{nullptr, nullptr, "Specify Entry Type"},
                  {"cboType", "BRANCH", "Bank Name  cannot be empty!"},
                  {"cboVehNo", "TRUST'S", "BRANCH Name field cannot be empty!"},
                  {"txtReg", "YABA", "Invalid Parent Name! Please select a Parent"},
                  {"cboType", "PARENT"}});
    set("txtReg", "HEAD");
    EXPECT_EQ(saved(), "Record Succesfully saved");
    add("BRANCH", "TRUST'S", "YABA");
    add("PARENT", "COWRIE", "");
    add("BRANCH", "TRUST'S", "EPE");
    EXPECT_EQ(rows("select groupcode,GroupName from groupbank order by groupcode"), "001|TRUST'S\n002|COWRIE");
    EXPECT_EQ(banks(), "001|001||HEAD|PARENT\n001|002||YABA|BRANCH\n002|001|||PARENT\n001|003||EPE|BRANCH");
    EXPECT_EQ(value("grdData"), "2 rows") << "the branches";

    row("grdData", "YABA");
    dblClick("grdData");
    EXPECT_EQ(shown("cboType cboVehNo txtReg txtID txtCon"), "BRANCH|TRUST'S|YABA|001|002");
    set("txtReg", "AGEGE");
    EXPECT_EQ(saved(), "Record Succesfully Updated");
    set("cboType", "PARENT");
    row("grdData", "TRUST'S");
    click("cmdEdit");
    set("cboVehNo", "TRUST");
    EXPECT_EQ(saved(), "Record Succesfully Updated");
    EXPECT_EQ(rows("select Branch,BankName,BName from vwBanks where Status='BRANCH' order by Branch"),
              "AGEGE|TRUST'S|TRUST\nEPE|TRUST|TRUST");

    for (const char* branch : {"AGEGE", "EPE"}) {
        set("cboType", "BRANCH");
        row("grdData", branch);
        ui.answer(true);
        EXPECT_EQ(told("cmdDel"), " Record successfully deleted ");
    }
    set("cboType", "PARENT");
    row("grdData", "COWRIE");
    ui.answer(true);
    click("cmdDel");
    ui.forgetBoxes();
    EXPECT_EQ(banks() + rows("select groupcode from groupbank order by groupcode"), "001|001||HEAD|PARENT001\n002");
}

TEST_P(AccountLists, ACodeThatCannotFollowIsRefused) {
    open();
    const struct {
        const char* rows;
        const char* type;
        const char* said;
    } cases[] = {
        {"insert into groupbank (groupcode, GroupName) values ('OLD', 'A')", "PARENT", "Error Generating PARENT Code"},
        {"insert into banks (bankcode, branchcode) values ('OLD', 'X')", "BRANCH", "Error Generating BRANCH Code"}};
    for (const auto& one : cases) {
        ws.run(one.rows);
        click("cmdRefresh");
        click("cmdAdd");
        set("cboType", one.type);
        set("cboVehNo", "A");
        set("txtReg", "YABA");
        EXPECT_EQ(saved(), one.said);
        click("cmdCancel");
    }
}

TEST_P(AccountLists, ExpenseItemsAreKeptButOnlyBanksDeleted) {
    open("frmExpenseItems");
    click("cmdAdd");
    expectChecks({{nullptr, nullptr, "Specify Entry Type"},
                  {"cboType", "ITEM", "Branh Name field cannot be empty!"},
                  {"cboType", "CATEGORY"}});
    click("cmdCancel");
    add("CATEGORY", "POWER", "");
    add("ITEM", "POWER", "DIESEL");
    add("CATEGORY", "OFFICE", "");
    EXPECT_EQ(rows("select catcode,ItemCode,ItemName,Status from hExpenseItems order by SNO"),
              "001|001||CATEGORY\n001|002|DIESEL|ITEM\n002|001||CATEGORY");
    set("cboType", "ITEM");
    row("grdData", "DIESEL");
    dblClick("grdData");
    set("txtName", "FOR GENERATORS");
    EXPECT_EQ(saved(), "Record Succesfully Updated");
    EXPECT_EQ(rows("select ItemName,Description,BName from vwItems where Status='ITEM'"),
              "DIESEL|FOR GENERATORS|POWER");
    ws.run("insert into banks (Branch) values ('FIRST'), ('SECOND')");
    row("grdData", "DIESEL");
    ui.answer(true);
    EXPECT_EQ(told("cmdDel"), " Record successfully deleted ");
    EXPECT_EQ(rows("select Branch from banks") + rows("select ItemName from hExpenseItems where SNO=2"), "FIRSTDIESEL");
}

TEST_P(AccountLists, ACreditorIsKeptAndArchived) {
    open("frmSupplers");
    click("cmdAdd");
    expectChecks({{nullptr, nullptr, "Suppler/Contractor Name cannot be empty", "txtName"},
                  {"txtName", "O'DARE", "Address cannot be empty", "txtAddress"},
                  {"txtAddress", "1 CREEK ROAD", "Supplier/Contractor Category cannot be empty"},
                  {"cboClient", "CONTRACTOR"},
                  {"txtAcctNo", "2110"}});
    EXPECT_EQ(told("OKButton"), "Record Succesfully saved");
    row("grdData", "O'DARE");
    dblClick("grdData");
    set("txtPhone", "0800");
    EXPECT_EQ(told("OKButton"), "Record Succesfully Updated");
    const QString kept = "0001|O'DARE|1 CREEK ROAD|CONTRACTOR|0800|2110";
    const auto of = [&](const QString& table) {
        return rows("select supplierID,SupplierName,Address,Category,Phone,AccountNo from " + table);
    };
    EXPECT_EQ(of("suppliers"), kept);
    breakAt("delete from suppliers", true);
    ui.answer(true);
    click("cmdDel");
    ui.forgetBoxes();
    EXPECT_EQ(of("suppliers") + of("SuppliersArchive"), kept) << "half a deletion";
    mend();
    row("grdData", "O'DARE");
    ui.answer(true);
    EXPECT_EQ(told("cmdDel"), " Record successfully deleted ");
    EXPECT_EQ(of("suppliers") + of("SuppliersArchive"), kept);
}

ORVANE_ON_EACH_ENGINE(AccountLists);

} // namespace orvane
