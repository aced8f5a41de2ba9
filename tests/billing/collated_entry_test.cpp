#include "VerifyTest.h"

namespace orvane {

namespace {

/// Items that are added to a bill which waits for its batch.
class CollatedEntry : public SoundBillTest {
protected:
    void openFor(const QString& category, const QString& client, const QString& referal = "NO") {
        layVisit({.category = category, .client = client},
                 {.date = QDate(2026, 2, 27), .category = category, .client = client, .referal = referal});
        ws.program.session.gConsultID = billNo;
        ws.program.session.sBillPno = "P/0001";
        ws.open("frmBillPatAdjust");
    }
    void put(const QString& control, const QString& text) { ws.set("frmBillPatAdjust." + control, text); }
    void press(const QString& button) { ws.click("frmBillPatAdjust." + button); }
    QString shown(const QString& control) { return ws.value("frmBillPatAdjust." + control); }
    void addLine(const QString& kind, const QString& name, const QString& quantity, const QString& capitated = "NO") {
        put("cboCat", kind);
        put("cboDrug", name);
        put("txtQty", quantity);
        put("cboFFS2", capitated);
        ws.pick("frmBillPatAdjust.cboPat", 1);
        press("cmdAdd");
    }
    void saveLines() {
        ui.answer(true);
        press("OKButton");
        ui.takeQuestions();
    }
};

ORVANE_ON_EACH_ENGINE(CollatedEntry);

/// Every kind that is offered can be priced, a laboratory item too; what the private tariff had to lend is told in
/// lblInfo alone.
TEST_P(CollatedEntry, PricesAsItsTwinButQuietly) {
    openFor("HMO", "0201");
    EXPECT_EQ(ws.form("frmBillPatAdjust").find("cboRev"), nullptr);
    EXPECT_EQ(ws.items("frmBillPatAdjust.cboCat"), (QStringList{"", "DRUG", "LAB", "SERVICE"}));
    const struct {
        const char *kind, *name, *price;
        bool fallsBack;
    } cases[] = {{"DRUG", "PARACETAMOL 500MG", "40.00", false},
                 {"LAB", "MALARIA PARASITE", "1,200.00", false},
                 {"SERVICE", "WOUND DRESSING", "2,500.00", true}};
    for (const auto& c : cases) {
        put("cboCat", c.kind);
        put("cboDrug", c.name);
        EXPECT_EQ(shown("txtPrice"), c.price);
        EXPECT_EQ(!shown("lblInfo").isEmpty(), c.fallsBack);
        EXPECT_BOXES(ui, {});
    }
}

/// Every line goes on the bill, whatever it says about capitation, on the day of the visit.
TEST_P(CollatedEntry, EveryLineGoesOnTheBill) {
    openFor("HMO", "0201");
    EXPECT_EQ(shown("dtDate"), "2026-02-27");
    addLine("DRUG", "PARACETAMOL 500MG", "10", "YES");
    addLine("SERVICE", "WOUND DRESSING", "1");
    put("dtDate", "");
    press("OKButton");
    EXPECT_BOXES(ui, {"Please specify Attnd Date"});
    put("dtDate", "2026-02-27");
    saveLines();
    EXPECT_FALSE(ws.program.loadedForm("frmBillPatAdjust"));
    EXPECT_EQ(
        rows("select dtDate, PNo, consultID, drgName, Price, Qty, SubTotal, billType, billTo, coyName, Capitated, "
             "attendedto, isBilled from BillAccum order by SNo"),
        "2026-02-27|P/0001|001OFL0000001|PARACETAMOL 500MG|40|10|400|DRUG|0201|0201|NO|1|1\n"
        "2026-02-27|P/0001|001OFL0000001|WOUND DRESSING|2500|1|2500|SERVICE|0201|0201|NO|1|1");
    EXPECT_EQ(
        rows("select d.dtDate, d.billNo, d.drgName, d.SubTotal, d.Capitated, d.BillBy from BillingDetails d inner "
             "join BillAccum a on a.SNo=d.SNo and a.drgName=d.drgName order by d.SNo"),
        "2026-02-27|001OFL0000001|PARACETAMOL 500MG|400|NO|amina.b\n"
        "2026-02-27|001OFL0000001|WOUND DRESSING|2500|NO|amina.b");
    EXPECT_EQ(rows("select Amountbilled, AmountBIlledInWord from Billing"), "2900|TWO THOUSAND, NINE HUNDRED NAIRA");
    EXPECT_EQ(account(), "");
    EXPECT_EQ(rows("select Capitated, RevType from DrugNHIS where drgName='PARACETAMOL 500MG' and company='0201'"),
              "YES|DRUGS")
        << "the template keeps its flags";

    // Collated later, nothing is billed twice.
    load();
    EXPECT_EQ(value("lblBilled"), "2,900.00");
    EXPECT_EQ(ws.tableCount("BillingDetails"), 2);
}

TEST_P(CollatedEntry, PrivateLinesAreChargedOnceAndAFaultUndoesThem) {
    openFor("PRIVATE", "0001");
    addLine("DRUG", "PARACETAMOL 500MG", "10");
    addLine("SERVICE", "WOUND DRESSING", "1");
    ws.run("update Billing set isProcess=1");
    press("OKButton");
    EXPECT_BOXES(ui, {"This Bill is already processed! to Modify, unProcess the Batch"});
    ws.run("update Billing set isProcess=0");
    breakAt(ws.program, "DebtBF=-3000");
    saveLines();
    EXPECT_BOXES(ui, {"disk full"});
    ws.program.data().setStatementHook({});
    EXPECT_EQ(ws.tableCount("BillAccum") + ws.tableCount("BillingDetails") + ws.tableCount("Tranxaction"), 0);
    EXPECT_EQ(ws.rows("frmBillPatAdjust.OrderGridDrug").size(), 4);
    saveLines();
    EXPECT_EQ(account(), "-500|-500|New Bill Item: PARACETAMOL 500MG\n-2500|-3000|New Bill Item: WOUND DRESSING");
    load();
    EXPECT_EQ(debt(), "-3000");
}

} // namespace

} // namespace orvane
