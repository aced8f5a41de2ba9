// The base private cost of drugs, worked out of the billing manual.
#include "support/ChecksInOrder.h"
#include "support/ScreenTest.h"

namespace orvane {
namespace {

class DrugPrice : public ScreenTest {
protected:
    DrugPrice() : ScreenTest("frmDrugPrice") {}

    void prepare() override {
        ws.run("insert into drugs (drgName, drgCatName, qtyPerUnit, Cost) values ('O''TOOLE''S 50% SYRUP', 'SYRUPS', "
               "100, 12.5)");
        ws.run("update billingPrice set pcent=20 where clientCatID='HMO'");
        ws.run("update billingPrice set pcent=-100 where clientCatID='NHIS'");
    }
    QString cost(const QString& drug) { return ws.scalar("select Cost from drugs where drgName='" + drug + "'"); }
    void edit(const QString& drug) {
        row("grdData", drug);
        click("cmdEdit");
    }
};
ORVANE_ON_EACH_ENGINE(DrugPrice);

TEST_P(DrugPrice, ThePriceIsWorkedOnLeavingTheCost) {
    open();
    const struct {
        const char* client;
        const char* cost;
        const char* shown; ///< price and its words
        QStringList boxes;
        const char* focus;
    } cases[] = {{"", "120", "|", {"please select client type"}, "cboClient"},
                 {"HMO", "abc", "|", {"Cost field cannot be negative or a Character"}, "txtCost"},
                 {"HMO", "-1", "|", {"Cost field cannot be negative or a Character"}, "txtCost"},
                 {"HMO", "1,200", "1,000.00|ONE THOUSAND NAIRA", {}, "txtCost"},
                 {"UNKNOWN", "120", "|", {}, "txtCost"}};
    for (const auto& test : cases) {
        SCOPED_TRACE(std::string(test.client) + " " + test.cost);
        click("cmdCancel");
        set("cboClient", test.client);
        set("txtCost", test.cost);
        EXPECT_EQ(value("lblPrice"), "") << "the cost was not left yet";
        leave("txtCost");
        EXPECT_EQ(ui.takeBoxes(), test.boxes);
        EXPECT_EQ(value("lblPrice") + '|' + value("lblWord"), test.shown);
        EXPECT_EQ(focused(), test.focus);
    }
}

/// What Edit brings is a base cost: whatever its user looks at, only what he types is worked.
TEST_P(DrugPrice, EditAndSaveKeepTheCost) {
    ws.run("update billingPrice set pcent=25 where clientCatID='PRIVATE'");
    const struct {
        const char* name;
        std::function<void()> act;
        const char* cost;
    } cases[] = {{"nothing", [] {}, "120"},
                 {"the cost looked at", [&] { leave("txtCost"); }, "120"},
                 {"the dosage typed", [&] { set("txtDosage", "2"); }, "120"},
                 {"the cost typed", [&] { set("txtCost", "100"); }, "80"},
                 {"the client type picked", [&] { set("cboClient", "HMO"); }, "66.67"}};
    open();
    for (const auto& test : cases) {
        SCOPED_TRACE(test.name);
        edit("AMOXICILLIN 500MG");
        test.act();
        ui.answer(true);
        click("OKButton");
        EXPECT_QUESTIONS(ui, {"Are you sure to update"});
        EXPECT_BOXES(ui, {"Record Succesfully updated"});
        EXPECT_EQ(cost("AMOXICILLIN 500MG"), test.cost);
    }
}

TEST_P(DrugPrice, SavesTheDrugInHandOrSaysWhyNot) {
    open();
    EXPECT_EQ(ws.rows("frmDrugPrice.grdData").mid(0, 2),
              QStringList({"service\tcategory\tcost\tUnit", "AMOXICILLIN 500MG\tTABLETS\t120.00\t1"}));
    edit("O'TOOLE'S 50% SYRUP");
    EXPECT_EQ(shown("txtDrug txtCat txtDosage cboClient txtCost lblPrice"),
              "O'TOOLE'S 50% SYRUP|SYRUPS|100|PRIVATE|12.5|12.50");
    set("cboClient", "HMO");
    set("txtCost", "120");
    set("txtDosage", "60");
    // Enter presses the button without leaving the cost.
    ui.answer(true);
    ws.key("frmDrugPrice.txtCost", "\n");
    EXPECT_QUESTIONS(ui, {"Are you sure to update"});
    EXPECT_BOXES(ui, {"Record Succesfully updated"});
    EXPECT_TRUE(ws.rows("frmDrugPrice.grdData").contains("O'TOOLE'S 50% SYRUP\tSYRUPS\t100.00\t60"));
    EXPECT_EQ(ws.tableCount("drugs where Cost=100"), 1) << "another drug";

    const struct {
        const char* field;
        const char* value;
        bool yes;
        qsizetype boxes;
    } refused[] = {{"txtCost", "999", false, 0}, {"txtDosage", "one", true, 1}, {"txtDrug", "NO SUCH DRUG", true, 1}};
    for (const auto& test : refused) {
        edit("AMOXICILLIN 500MG");
        set(test.field, test.value);
        ui.answer(test.yes);
        click("OKButton");
        ui.takeQuestions();
        EXPECT_EQ(ui.takeBoxes().size(), test.boxes) << test.field;
        EXPECT_EQ(cost("AMOXICILLIN 500MG"), "120");
    }
    EXPECT_EQ(focused(), "txtDrug");
}

TEST_P(DrugPrice, ChecksInOrder) {
    open();
    expectChecksInOrder(ws, "frmDrugPrice", "OKButton",
                        {{"txtDosage", "", "Drug name Field cannot be empty"},
                         {"txtDrug", "AMOXICILLIN 500MG", "Price Field cannot be empty"},
                         {"txtCost", "-5", "Category cannot be empty"},
                         {"txtCat", "TABLETS", "Unit Dosage cannot be empty"},
                         {"txtDosage", "1", "Price field cannot be negative or contain a Character", "txtCost"},
                         {"txtCost", "5x", "Price field cannot be negative or contain a Character", "txtCost"},
                         {"txtCost", "5", "please select client type", "cboClient"},
                         {"cboClient", "NHIS", "Price Field cannot be empty", "cboClient"}});
    EXPECT_EQ(cost("AMOXICILLIN 500MG"), "120");
}

TEST_P(DrugPrice, SearchNarrowsNothingIsDeletedAndALoadIsTaken) {
    open();
    const QList<std::pair<const char*, int>> searches = {{"a", 2}, {"AM", 1}, {"O'T", 1}, {"50%", 0}, {"", 4}};
    for (const auto& [letters, rows] : searches) {
        set("txtSearch", letters);
        EXPECT_EQ(ws.rows("frmDrugPrice.grdData").size() - 1, rows) << letters;
    }
    for (const bool answer : {false, true}) {
        ui.answer(answer);
        click("cmdDel");
    }
    EXPECT_QUESTIONS(ui, {"Are you sure to Delete Record", "Are you sure to Delete Record"});
    EXPECT_BOXES(ui, {" Sorry cannot delete record, see the store Officer "});
    EXPECT_EQ(ws.tableCount("drugs"), 4);
    ws.run("insert into drugsxxx (drgName, drgCatName, qtyPerUnit, Cost) values ('NEW TONIC', 'SYRUPS', null, 75.5)");
    EXPECT_EQ(told("cmdLab"), "Record transfer successful");
    EXPECT_TRUE(ws.rows("frmDrugPrice.grdData").contains("NEW TONIC\tSYRUPS\t75.50\t"));
    // One of the drugs is there already: none is taken.
    ws.run("insert into drugsxxx (drgName, Cost) values ('AAA FIRST', 1)");
    click("cmdLab");
    EXPECT_EQ(ui.takeBoxes().size(), 1);
    EXPECT_EQ(ws.tableCount("drugs"), 5);
}

} // namespace
} // namespace orvane
