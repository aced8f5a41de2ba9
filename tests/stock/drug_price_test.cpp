// The base private cost of drugs, worked out of the billing manual.
#include "support/Workstation.h"

namespace orvane {
namespace {

class DrugPrice : public WorkstationTest {
protected:
    void prepare() override {
        ws.run("insert into drugs (drgName, drgCatName, qtyPerUnit, Cost) values ('O''TOOLE''S 50% SYRUP', 'SYRUPS', "
               "100, 12.5)");
        for (const char* rule : {"20 where clientCatID='HMO'", "-100 where clientCatID='NHIS'",
                                 "33 where "
                                 "clientCatID='MTHLY'"})
            ws.run(QStringLiteral("update billingPrice set pcent=") + rule);
    }
    void open() { ws.open("frmDrugPrice"); }
    void set(const char* control, const QString& value) { ws.set(QStringLiteral("frmDrugPrice.") + control, value); }
    void click(const char* control) { ws.click(QStringLiteral("frmDrugPrice.") + control); }
    QString value(const char* control) { return ws.value(QStringLiteral("frmDrugPrice.") + control); }
    QString focused() {
        const Control* control = ws.form("frmDrugPrice").focused();
        return control ? control->name() : QString();
    }
    QString cost(const QString& drug) { return ws.scalar("select Cost from drugs where drgName='" + drug + "'"); }
    void edit(const QString& drug) {
        ws.row("frmDrugPrice.grdData", drug);
        click("cmdEdit");
    }
};
ORVANE_ON_EACH_ENGINE(DrugPrice);

TEST_P(DrugPrice, UndoesTheMarkUpOfTheClientType) {
    open();
    const struct {
        const char* client;
        const char* cost;
        const char* price;
        const char* words;
        QStringList boxes;
        const char* focus;
    } cases[] = {
        {"", "120", "", "", {"please select client type"}, "cboClient"},
        {"HMO", "abc", "", "", {"Cost field cannot be negative or a Character"}, "txtCost"},
        {"HMO", "-1", "", "", {"Cost field cannot be negative or a Character"}, "txtCost"},
        {"HMO", "120", "100.00", "ONE HUNDRED NAIRA", {}, ""},
        {"MTHLY", "1,000", "751.88", "SEVEN HUNDRED AND FIFTY ONE NAIRA AND EIGHTY EIGHT KOBO ONLY", {}, ""},
        {"PRIVATE", "2500", "2,500.00", "TWO THOUSAND, FIVE HUNDRED NAIRA", {}, ""},
        {"NHIS", "120", "", "", {}, ""},    // nothing is paid: no base can be found
        {"UNKNOWN", "120", "", "", {}, ""}, // no such client type
    };
    for (const auto& test : cases) {
        SCOPED_TRACE(std::string(test.client) + " " + test.cost);
        click("cmdCancel");
        set("cboClient", test.client);
        set("txtCost", test.cost);
        ws.leave("frmDrugPrice.txtCost");
        EXPECT_EQ(ui.takeBoxes(), test.boxes);
        EXPECT_EQ(value("lblPrice"), QString(test.price));
        EXPECT_EQ(value("lblWord"), QString(test.words));
        if (*test.focus)
            EXPECT_EQ(focused(), test.focus);
    }
}

TEST_P(DrugPrice, SavesTheBaseCostOfTheDrugInHand) {
    open();
    EXPECT_EQ(ws.rows("frmDrugPrice.grdData").mid(0, 2),
              QStringList({"service\tcategory\tcost\tUnit", "AMOXICILLIN 500MG\tTABLETS\t120.00\t1"}));
    edit("O'TOOLE'S 50% SYRUP");
    EXPECT_EQ(value("txtDrug") + '|' + value("txtCat") + '|' + value("txtDosage") + '|' + value("cboClient") + '|' +
                  value("txtCost") + '|' + value("lblPrice"),
              "O'TOOLE'S 50% SYRUP|SYRUPS|100|PRIVATE|12.5|12.50");
    set("cboClient", "HMO");
    EXPECT_EQ(value("lblPrice"), "10.42") << "the client type was changed behind the cost";
    set("txtCost", "120");
    set("txtDosage", "60");
    // Enter presses the button without leaving the cost.
    ui.answer(true);
    ws.key("frmDrugPrice.txtCost", "\n");
    EXPECT_QUESTIONS(ui, {"Are you sure to update"});
    EXPECT_BOXES(ui, {"Record Succesfully updated"});
    EXPECT_EQ(cost("O''TOOLE''S 50% SYRUP"), "100");
    EXPECT_EQ(ws.tableCount("drugs where qtyPerUnit=60 and drgCatName='SYRUPS'"), 1);
    EXPECT_EQ(ws.tableCount("drugs where Cost=100"), 1) << "another drug";
    EXPECT_TRUE(ws.rows("frmDrugPrice.grdData").contains("O'TOOLE'S 50% SYRUP\tSYRUPS\t100.00\t60"));

    edit("AMOXICILLIN 500MG");
    set("txtCost", "999");
    ui.answer(false);
    click("OKButton");
    ui.takeQuestions();
    EXPECT_EQ(cost("AMOXICILLIN 500MG"), "120");
    set("txtDosage", "one");
    ui.answer(true);
    click("OKButton");
    ui.takeQuestions();
    EXPECT_EQ(ui.takeBoxes().size(), 1) << "a dosage that is no number";
    EXPECT_EQ(cost("AMOXICILLIN 500MG"), "120");
    set("txtDosage", "1");
    set("txtDrug", "NO SUCH DRUG");
    ui.answer(true);
    click("OKButton");
    ui.takeQuestions();
    EXPECT_BOXES(ui, {"There is no Drug or Service of this name"});
    EXPECT_EQ(ws.tableCount("drugs where Cost=999"), 0);
}

TEST_P(DrugPrice, ChecksInOrder) {
    open();
    // Each step fills the field that the box before it asked for.
    const struct {
        const char* field;
        const char* value;
        const char* box;
    } steps[] = {{"txtDosage", "", "Drug name Field cannot be empty"},
                 {"txtDrug", "AMOXICILLIN 500MG", "Price Field cannot be empty"},
                 {"txtCost", "-5", "Category cannot be empty"},
                 {"txtCat", "TABLETS", "Unit Dosage cannot be empty"},
                 {"txtDosage", "1", "Price field cannot be negative or contain a Character"},
                 {"txtCost", "5x", "Price field cannot be negative or contain a Character"},
                 {"txtCost", "5", "please select client type"},
                 {"cboClient", "NHIS", "Price Field cannot be empty"}};
    for (const auto& step : steps) {
        set(step.field, step.value);
        click("OKButton");
        EXPECT_BOXES(ui, {step.box});
    }
    EXPECT_EQ(cost("AMOXICILLIN 500MG"), "120");
}

TEST_P(DrugPrice, SearchNarrowsAndNothingIsDeleted) {
    open();
    const QList<std::pair<const char*, int>> searches = {{"a", 2}, {"AM", 1}, {"O'T", 1}, {"50%", 0}, {"", 4}};
    for (const auto& [letters, rows] : searches) {
        set("txtSearch", letters);
        EXPECT_EQ(ws.rows("frmDrugPrice.grdData").size() - 1, rows) << letters;
    }
    ui.answer(false);
    click("cmdDel");
    EXPECT_BOXES(ui, {});
    ui.answer(true);
    click("cmdDel");
    EXPECT_QUESTIONS(ui, {"Are you sure to Delete Record", "Are you sure to Delete Record"});
    EXPECT_BOXES(ui, {" Sorry cannot delete record, see the store Officer "});
    EXPECT_EQ(ws.tableCount("drugs"), 4);
}

TEST_P(DrugPrice, APriceLoadIsTakenWholeOrNotAtAll) {
    open();
    ws.run("insert into drugsxxx (drgName, drgCatName, qtyPerUnit, Cost) values ('NEW TONIC', 'SYRUPS', null, 75.5)");
    click("cmdLab");
    EXPECT_BOXES(ui, {"Record transfer successful"});
    EXPECT_EQ(ws.tableCount("drugs where drgName='NEW TONIC' and drgCatName='SYRUPS' and Cost=75.5 and qtyPerUnit is "
                            "null"),
              1);
    ws.run("insert into drugsxxx (drgName, Cost) values ('AAA FIRST', 1)");
    click("cmdLab");
    EXPECT_EQ(ui.takeBoxes().size(), 1) << "one of the drugs is there already";
    EXPECT_EQ(ws.tableCount("drugs"), 5);
}

} // namespace
} // namespace orvane
