#include "VerifyTest.h"

namespace orvane {

namespace {

const char* const processed = "This Bill is already processed! to Modify, unProcess the Batch";

/// The screens that change one row each: of the items, or of the lines of a collated bill.
class NarrowAdjust : public SoundBillTest {
protected:
    /// A company's bill with one line, which the row in hand names.
    void SetUp() override {
        SoundBillTest::SetUp();
        layVisit({.category = "MTHLY", .client = "0102"}, {.category = "MTHLY", .client = "0102"});
        ws.program.session.lWorkSNo = item({.name = "MALARIA PARASITE",
                                            .billType = "INVESTIGATION",
                                            .revType = "LABORATORY",
                                            .client = "0102",
                                            .price = 1500,
                                            .qty = 2});
        item({.name = "OTHER", .client = "0102", .price = 100});
        load();
        save();
        ui.forgetBoxes();
    }
    void open(const QString& screen) {
        m_screen = screen;
        ws.open(screen);
    }
    void put(const QString& control, const QString& text) { ws.set(m_screen + '.' + control, text); }
    void press(const QString& button) { ws.click(m_screen + '.' + button); }
    QString shown(const QString& control) { return ws.value(m_screen + '.' + control); }
    bool isOpen() { return ws.program.loadedForm(m_screen) != nullptr; }
    void refused(const QString& text) {
        press("cmdSave");
        EXPECT_BOXES(ui, {text});
        EXPECT_TRUE(isOpen());
    }
    /// The bill, its lines, its items and what was said about them.
    QString state() {
        return QStringList{
            rows("select Amountbilled, AmountBIlledInWord from Billing"),
            rows("select drgName, Price, Qty, SubTotal, BillType, BillHead, billTo from BillingDetails order by SNo"),
            rows("select drgName, Price, Qty, SubTotal, Capitated, billTo from BillAccum order by SNo"),
            rows("select count(*) as n from Tranxaction"), rows("select count(*) as n from BillingDetailsAdjust")}
            .join('\n');
    }

private:
    QString m_screen;
};

ORVANE_ON_EACH_ENGINE(NarrowAdjust);

TEST_P(NarrowAdjust, PriceAdjustWritesTheItemOnly) {
    open("frmPriceAdjust");
    EXPECT_EQ(shown("txtDrug") + '|' + shown("lblSub") + '|' + shown("cboCap"), "MALARIA PARASITE|3,000.00|NO");
    put("txtPrice", "1e999");
    put("cboCap", "");
    put("txtDrug", "");
    refused(" Please enter valid price ");
    put("txtPrice", "1,600.50");
    refused("Please specify Capitation");
    put("cboCap", "YES");
    refused("Please specify Service/Drug");
    put("txtDrug", " O'NEILL'S TEST ");
    const QString before = rows("select * from BillingDetails order by SNo");
    press("cmdSave");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(rows("select drgName, Price, Qty, SubTotal, Capitated from BillAccum where Price > 1000"),
              "O'NEILL'S TEST|1600.5|2|3201|YES");
    EXPECT_EQ(rows("select * from BillingDetails order by SNo"), before);
    EXPECT_EQ(audit("Bill Adjustment"), "");
}

TEST_P(NarrowAdjust, SplitWritesThePayerOnly) {
    open("frmPriceAdjustSplit");
    EXPECT_EQ(shown("cboPat"), "HARMONY MILLS LTD");
    EXPECT_EQ(ws.state("frmPriceAdjustSplit.txtPrice"), "visible enabled locked");
    put("cboPat", "");
    refused("Please specify Bill To");
    const QString before = state();
    put("cboPat", "PRIVATE PATIENTS");
    press("cmdSave");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(state(), QString(before).replace("INVESTIGATION||0102", "INVESTIGATION||0001"));
}

TEST_P(NarrowAdjust, CustomMovesTheBillAndChargesThePayer) {
    open("frmPriceAdjustCustom");
    EXPECT_TRUE(ws.items("frmPriceAdjustCustom.cboHead").contains("LABORATORY"));
    put("txtQty", "");
    put("txtDrug", "");
    refused(" Please enter valid price ");
    put("txtQty", "2");
    refused("Please specify Item");
    put("txtDrug", "MALARIA TEST");
    refused("Please specify Rpt Heading for this Bill Item");
    put("cboHead", "LABORATORY");
    put("txtPrice", "1,750.25");
    press("cmdSave");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(rows("select drgName, Price, Qty, SubTotal, BillType, BillHead, billTo from BillingDetails where SNo=1"),
              "MALARIA TEST|1750.25|2|3500.5|LAB|LABORATORY|0102");
    EXPECT_EQ(rows("select Amountbilled, AmountBIlledInWord from Billing"),
              "3600.5|THREE THOUSAND, SIX HUNDRED NAIRA AND FIFTY KOBO ONLY");
    EXPECT_EQ(
        audit("Bill Adjustment"),
        "Bill Adjustment/Customize: Item from: MALARIA PARASITE : => MALARIA TEST| Qty from: 2 : => 2 price from: "
        "1500.00 : => 1750.25");
    EXPECT_EQ(account(), "") << "the company pays";

    // A heading alone is no change of the amount; a private payer bears what he takes over.
    open("frmPriceAdjustCustom");
    put("cboHead", "INVESTIGATIONS ABROAD");
    press("cmdSave");
    EXPECT_EQ(ws.scalar("select BillHead from BillingDetails where SNo=1"), "INVESTIGATIONS ABROAD");
    open("frmPriceAdjustCustom");
    put("cboPat", "PRIVATE PATIENTS");
    put("txtPrice", "1700");
    press("cmdSave");
    EXPECT_EQ(account(), "-3400|-3400|Adjusted Bill Item: MALARIA TEST");
    EXPECT_EQ(audit("Bill Adjustment").count('\n'), 1);
}

TEST_P(NarrowAdjust, ProcessedBillMissingRowAndFaultChangeNothing) {
    for (const char* screen : {"frmPriceAdjust", "frmPriceAdjustSplit", "frmPriceAdjustCustom"}) {
        SCOPED_TRACE(screen);
        open(screen);
        if (QString(screen) == "frmPriceAdjustCustom")
            put("cboHead", "LABORATORY");
        if (QString(screen) == "frmPriceAdjustSplit")
            put("cboPat", "PRIVATE PATIENTS");
        else
            put("txtPrice", "9");
        const QString before = state();
        ws.run("update Billing set isProcess=1");
        refused(processed);
        ws.run("update Billing set isProcess=0");
        breakAt(ws.program, QString(screen) == "frmPriceAdjustCustom" ? "update  billing" : "update");
        refused("disk full");
        ws.program.data().setStatementHook({});
        EXPECT_EQ(state(), before);
        press("CancelButton");

        const qlonglong sno = std::exchange(ws.program.session.lWorkSNo, 999);
        open(screen);
        EXPECT_EQ(ws.state(QString(screen) + ".cmdSave"), "visible disabled");
        press("CancelButton");
        ws.program.session.lWorkSNo = sno;
    }
}

} // namespace

} // namespace orvane
