#include "support/Check.h"
#include "support/ScreenTest.h"

namespace orvane {
namespace {

class BillPat : public ScreenTest {
protected:
    explicit BillPat(const QString& form = "frmBillPat") : ScreenTest(form) {}

    /// A seen visit of a patient of this client, and the screen opened for it.
    void openFor(const QString& category, const QString& client, const QString& ref = "NO") {
        layVisit({.category = category, .client = client, .ref = ref},
                 {.date = visited, .category = category, .client = client, .referal = ref});
        Connection connection = ws.billing();
        makeConsultation(connection);
        openIt();
    }
    void openIt() {
        ws.program.session.gConsultID = billNo;
        ws.program.session.sBillPno = "P/0001";
        ws.program.session.sBillPatLabel = "ADEYEMI BOLA";
        open();
    }
    QStringList gridRows() { return ws.rows("frmBillPat.OrderGridDrug"); } ///< the head and the empty row too

    void pickItem(const QString& kind, const QString& item) {
        set("cboCat", kind);
        set("cboDrug", item);
    }
    void addLine(const QString& kind, const QString& item, const QString& quantity, const QString& capitated = {}) {
        pickItem(kind, item);
        ui.forgetBoxes();
        set("txtQty", quantity);
        if (hasRevenue)
            set("cboRev", "SERVICES");
        pick("cboPat", 1);
        if (!capitated.isEmpty())
            set("cboFFS2", capitated);
        click("cmdAdd");
        EXPECT_BOXES(ui, {});
    }

    QDate visited{2026, 3, 14};
    bool hasRevenue = true; ///< the screen asks for the type of revenue
};
ORVANE_ON_EACH_ENGINE(BillPat);

TEST_P(BillPat, LoadShowsPlanRepairsItemsAndMakesTheBillRow) {
    layItem({.qty = 2, .capitated = "BIL"});
    layItem({.name = "MALARIA PARASITE", .billType = "INVESTIGATION", .price = 1200, .capitated = ""});
    ws.run("update BillAccum set billTo=null, coyName=null");
    openFor("HMO", "0201");
    ws.run("update hconsulting set billRemarks='BILL HALF', services='DRESSING'");
    close();
    openIt();
    EXPECT_EQ(value("txtPresc"),
              "Clinic: CONSULTATION\nDiagnosis: MALARIA\n##### Treatment by Dr. D001 on 14/03/2026 09:20:00 #####\n"
              "\nPARACETAMOL 500MG 2 TDS X 3/7\nDRESSING\n-----BILL ADVICE---BILL HALF\n\n"
              "--------------------------------------\nEND OF TREATMENT");
    EXPECT_EQ(value("lblClient") + value("lblNo") + value("lblFFS") + value("lblCoy"), "HMOP/0001NOCLEARWATER HMO");
    EXPECT_EQ(items("cboPat"), (QStringList{"", "CLEARWATER HMO", "PRIVATE PATIENTS"}));
    EXPECT_EQ(ws.scalar("select count(*) from BillAccum where Capitated='NO' and billTo='0201' and coyName='0201'"),
              "2");
    const QStringList lines = gridRows();
    EXPECT_TRUE(lines.contains("PARACETAMOL 500MG\t\t50.00\t2\t100.00\t\tNO\tDRUG\tOLD\t0201\t0201\t"));
    EXPECT_TRUE(lines.contains("MALARIA PARASITE\t\t1,200.00\t1\t1,200.00\t\tNO\tSERVICE\tOLD\t0201\t0201\t"));
    EXPECT_EQ(shown("lblGen lblBilled"), "1,300.00|0.00");
    EXPECT_EQ(rows("select bdate, PNo, clientID, Amountbilled, AmountPaid, billingMonth, billingYear from Billing"),
              "2026-03-14|P/0001|0201|0|0|March|2026");
    EXPECT_EQ(state("txtPrice"), "visible enabled locked");
}

TEST_P(BillPat, NothingIsPricedWithoutPatientOrCategory) {
    openIt();
    EXPECT_EQ(value("txtPresc"), "N/A");
    pickItem("DRUG", "PARACETAMOL 500MG");
    EXPECT_BOXES(ui, {"Client Tariff Category cannot be empty please select Patient"});
    EXPECT_EQ(value("cboDrug"), "");
    close();
    openFor("PRIVATE", "0001");
    pickItem("DRUG", "PARACETAMOL 500MG");
    EXPECT_EQ(value("txtPrice"), "50.00");
    set("cboDrug", "");
    EXPECT_EQ(value("txtPrice"), "50.00") << "the blank row runs no lookup";
    pick("cboCat", 0);
    set("cboDrug", "AMOXICILLIN 500MG");
    EXPECT_BOXES(ui, {"Please specify Category"});
}

TEST_P(BillPat, LookupFillsTheEntryLine) {
    ws.run("update DrugNHIS set RevType='LABORATORY' where drgName='AMOXICILLIN 500MG' and company='0201'");
    ws.run("update hServiceNHIS set RevType='UNLISTED', Capitated='YES'");
    openFor("HMO", "0201", "YES");
    EXPECT_EQ(value("cboRev"), "OTHERS");
    pickItem("DRUG", "AMOXICILLIN 500MG");
    EXPECT_BOXES(ui, {value("lblInfo")});
    EXPECT_EQ(value("lblInfo"), "No price for this HMO/Company! Proceed to use Hospital Private tariff");
    EXPECT_EQ(shown("txtPrice cboRev cboFFS2"), "120.00|LABORATORY|NO");
    pickItem("DRUG", "PARACETAMOL 500MG");
    EXPECT_EQ(shown("cboFFS2 lblInfo cboRev"), "NO||DRUGS") << "a fee-for-service patient pays capitated items";
    pickItem("SERVICE", "WOUND DRESSING");
    EXPECT_BOXES(ui, {"Price Template for this HMO/Company Yet to be Created! Proceed to use Hospital Private tariff"});
    EXPECT_EQ(value("cboRev"), "OTHERS") << "the private row's type is not taken";
    ws.program.session.gRevTypeRpt = "YES";
    pickItem("SERVICE", "WOUND DRESSING");
    set("cboDrug", "");
    set("cboDrug", "WOUND DRESSING");
    ui.forgetBoxes();
    EXPECT_EQ(value("cboRev"), "");
    set("cboDrug", "something typed");
    EXPECT_EQ(value("cboDrug"), "SOMETHING TYPED");
    EXPECT_EQ(value("txtPrice"), "0") << "a typed item must not take the price of the one before";
}

TEST_P(BillPat, AddChecksInOrder) {
    openFor("PRIVATE", "0001");
    ws.program.session.gLockPrice = "NO";
    ws.control<TextBox>("frmBillPat.txtPrice").setLocked(false);
    set("cboCat", "DRUG");
    expectChecks({{"cboDrug", "", "Please specify a Drug/Service No ", "cboDrug"},
                  {"cboDrug", "  ", "Please specify whether Item is Capitated or Not", "cboFFS2"},
                  {"cboFFS2", "NO", "Please specify Revenue Type! Others Not Allowed", "cboRev"},
                  {"cboRev", "OTHERS", "Please specify Revenue Type! Others Not Allowed", "cboRev"},
                  {"cboRev", "DRUGS", "BillTo/Sponsor field Cannot be Empty", "cboPat"},
                  {"cboPat", "PRIVATE PATIENTS", "Cannot add this line without a price to Grid !!!  ", "txtPrice"},
                  {"txtPrice", "-1", "Cannot add this line without a price to Grid !!!  ", "txtPrice"},
                  {"txtPrice", "10", "Please specify Drug/Service used ", "cboDrug"},
                  {"cboDrug", "PARACETAMOL 500MG"},
                  {"cboRev", "DRUGS", "Please specify Quantity of Drug prescribed", "txtQty"},
                  {"txtQty", " ", "Please specify Quantity of Drug prescribed", "txtQty"},
                  {"txtQty", "two", "Please specify Quantity of Drug prescribed", "txtQty"}},
                 "cmdAdd");
    EXPECT_EQ(gridRows().size(), 2) << "head and the empty row";
    set("txtQty", "3");
    click("cmdAdd");
    EXPECT_BOXES(ui, {});
    EXPECT_EQ(gridRows().at(1), "PARACETAMOL 500MG\tTABLETS\t50.00\t3\t150.00\t***\tNO\tDRUG\tNEW\t0001\t0001\tDRUGS");
    EXPECT_EQ(shown("lblTotal Label5"), "150.00|ADEYEMI BOLA\n=N=150.00");
    EXPECT_EQ(focused(), "cboDrug");
    pickItem("DRUG", "PARACETAMOL 500MG");
    set("txtQty", "1");
    set("cboRev", "DRUGS");
    EXPECT_EQ(told("cmdAdd"), "Duplicate Entry Detected please Confirm");
    EXPECT_EQ(value("lblTotal"), "200.00");
}

TEST_P(BillPat, PrivateLinesGoOnTheBillAtOnce) {
    openFor("PRIVATE", "0001");
    addLine("DRUG", "PARACETAMOL 500MG", "3");
    addLine("SERVICE", "WOUND DRESSING", "1", "YES");
    addLine("INVESTIGATION", "FULL BLOOD COUNT", "0");
    save();
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(
        rows("select top 1 dtDate, PNo, consultID, drgName, Category, Price, Qty, SubTotal, usage, billType, billTo, "
             "coyName, "
             "revType, conID, Capitated, attendedto, isBilled, isRct from BillAccum order by SNo"),
        "2026-03-14|P/0001|001OFL0000001|PARACETAMOL 500MG|TABLETS|50|3|150|***|DRUG|0001|0001|SERVICES||NO|1|1|0");
    EXPECT_EQ(ws.tableCount("BillAccum where Capitated='NO' and attendedto=1"), 3);
    EXPECT_EQ(
        rows(
            "select top 1 dtDate, billNo, drgName, Price, Qty, SubTotal, dosage, BillType, Capitated, billTo, coyName, "
            "revType, "
            "conID from BillingDetails order by SNo"),
        "2026-03-14|001OFL0000001|PARACETAMOL 500MG|50|3|150|***|DRUG|NO|0001|0001|SERVICES|");
    EXPECT_EQ(ws.scalar("select count(*) from BillingDetails d inner join BillAccum b on b.SNo = d.SNo and "
                        "b.drgName = d.drgName"),
              "3");
    EXPECT_EQ(rows("select Amountbilled, AmountBIlledInWord, AmountPaid, clientID from Billing"),
              "2650|TWO THOUSAND, SIX HUNDRED AND FIFTY NAIRA|0|0001");
    EXPECT_EQ(rows("select count(*), min(RunningTotal), max(billNo) from Tranxaction"), "3|-2650|001OFL0000001");
    EXPECT_EQ(ws.scalar("select DebtBF from hPatients"), "-2650");
}

TEST_P(BillPat, CapitatedItemsWaitAndClientsItemsLeaveTheAccountAlone) {
    const struct {
        const char *category, *client, *ref, *flag, *stored;
        int details;
        const char* billed;
    } cases[] = {
        {"HMO", "0201", "NO", "YES", "YES", 0, "0"},    {"HMO", "0201", "NO", "NO", "NO", 1, "100"},
        {"HMO", "0201", "YES", "NO", "NO", 1, "100"},   {"PHIS", "0201", "NO", "YES", "NO", 0, "0"},
        {"MTHLY", "0102", "NO", "YES", "NO", 1, "100"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.category) + c.ref + c.flag);
        for (const char* table : {"BillAccum", "BillingDetails", "Billing", "hconsulting", "hRecords", "hPatients"})
            ws.run(QString("delete from ") + table);
        openFor(c.category, c.client, c.ref);
        ws.program.session.gLockPrice = "NO";
        addLine("SERVICE", "WOUND DRESSING", "1", c.flag);
        ws.control<EntryGrid>("frmBillPat.OrderGridDrug").setCell(1, 4, "100.00");
        save();
        EXPECT_EQ(rows("select Capitated, attendedto, billTo from BillAccum"),
                  QString("%1|%2|%3").arg(c.stored).arg(c.details).arg(c.client));
        EXPECT_EQ(ws.tableCount("BillingDetails"), c.details);
        EXPECT_EQ(ws.scalar("select Amountbilled from Billing"), c.billed);
        EXPECT_EQ(ws.tableCount("Tranxaction"), 0);
        EXPECT_EQ(ws.scalar("select DebtBF from hPatients"), "0");
    }
}

TEST_P(BillPat, LinesAreRemovedUntilSaved) {
    layItem({.name = "MALARIA PARASITE"});
    openFor("PRIVATE", "0001");
    addLine("SERVICE", "WOUND DRESSING", "2");
    addLine("DRUG", "PARACETAMOL 500MG", "1");
    EXPECT_EQ(value("lblTotal"), "5,050.00");
    row("OrderGridDrug", "MALARIA PARASITE");
    dblClick("OrderGridDrug");
    EXPECT_BOXES(ui, {"This row cannot be Deleted! Already in the Database"});
    row("OrderGridDrug", "WOUND DRESSING");
    ui.answer(false);
    dblClick("OrderGridDrug");
    ui.answer(true);
    row("OrderGridDrug", "WOUND DRESSING");
    dblClick("OrderGridDrug");
    EXPECT_BOXES(ui, {"Item Removed"});
    EXPECT_QUESTIONS(ui, {"Are you sure to Delete?", "Are you sure to Delete?"});
    EXPECT_EQ(value("lblTotal"), "50.00");
    EXPECT_EQ(gridRows().size(), 4);
    click("cmdRefresh");
    EXPECT_EQ(gridRows().size(), 3);
    addLine("DRUG", "AMOXICILLIN 500MG", "1");
    EXPECT_EQ(value("lblTotal"), "120.00") << "lines lost by Refresh count no more";
}

TEST_P(BillPat, SaveChecksAndSaveWithoutNewLines) {
    openFor("PRIVATE", "0001");
    expectChecks(
        {{"dtDate", "", "Please specify Date"}, {"dtDate", "2026-03-14", "No  Item is Processed!!! Please Verify"}});
    addLine("SERVICE", "WOUND DRESSING", "1");
    ws.run("update Billing set isProcess=1");
    expectChecks({{nullptr, nullptr, "This Bill is already processed! to Modify, unProcess the Batch"}});
    EXPECT_EQ(ws.tableCount("BillAccum"), 0);
    close();
    layItem({.capitated = "YES"});
    open("frmBillPat");
    EXPECT_EQ(ws.scalar("select Capitated from BillAccum"), "YES") << "a look changes nothing that was invoiced";
    close();
    ws.run("delete from BillAccum");
    ws.run("update Billing set isProcess=0");
    layItem();
    ws.run("insert into BillingDetails (SNo, billNo, drgName, SubTotal) select SNo, consultID, drgName, SubTotal from "
           "BillAccum");
    openIt();
    EXPECT_EQ(value("lblBilled"), "50.00");
    ws.run("update BillingDetails set SubTotal=75");
    ui.answer(false);
    click("OKButton");
    EXPECT_QUESTIONS(ui, {"Are you sure to save?"});
    EXPECT_TRUE(isOpen());
    save();
    EXPECT_EQ(ws.tableCount("BillAccum"), 1);
    EXPECT_EQ(rows("select Amountbilled, AmountBIlledInWord from Billing"), "75|SEVENTY FIVE NAIRA");
    EXPECT_FALSE(isOpen());
}

TEST_P(BillPat, FeeForServiceFlipsTheWholeVisit) {
    layItem({.client = "0201", .capitated = "YES"});
    openFor("HMO", "0201");
    EXPECT_EQ(told("cmdUpd"), "Specify FeeForService");
    for (const char* flag : {"YES", "NO"}) {
        set("cboFFS", flag);
        click("cmdUpd");
        EXPECT_EQ(rows("select h.referal, p.ref from hRecords h inner join hPatients p on p.PNo=h.PNo"),
                  QString("%1|%1").arg(flag));
        EXPECT_EQ(ws.scalar("select Capitated from BillAccum"), flag == QString("YES") ? "NO" : "YES");
    }
}

TEST_P(BillPat, TypedLineTotalGivesTheUnitPrice) {
    ws.program.session.gLockPrice = "NO";
    openFor("PRIVATE", "0001");
    set("txtQty", "4");
    set("txtSub", "500");
    EXPECT_EQ(value("txtPrice"), "125");
    set("txtQty", "3");
    EXPECT_EQ(value("txtSub"), "375");
    set("txtPrice", "0.1");
    EXPECT_EQ(value("txtSub"), "0.3");
    EXPECT_EQ(state("txtPrice"), "visible enabled");
}

TEST_P(BillPat, TreatmentShowsThePatientAndHisPlan) {
    openFor("HMO", "0201");
    ws.open("frmTreatment");
    EXPECT_EQ(ws.value("frmTreatment.Label5"), "ADEYEMI BOLA: CLEARWATER HMO [HMO]");
    EXPECT_EQ(ws.value("frmTreatment.txtPresc"), value("txtPresc"));
    ws.close("frmTreatment");
    ws.program.session.gConsultID = "none";
    ws.open("frmTreatment");
    EXPECT_EQ(ws.value("frmTreatment.txtPresc"), "N/A");
}

TEST_P(BillPat, PrivateBillPanelIsForTheAdministrator) {
    openFor("PRIVATE", "0001");
    ws.run("update Billing set Amountbilled=900");
    ws.program.session.sPrintBillNo = "P/0001";
    ws.open("frmDecide");
    ws.click("frmDecide.cmdAcc");
    EXPECT_EQ(ui.reports.value(0).title, "Patient Name : ADEYEMI BOLA");
    EXPECT_EQ(ui.reports.value(0).rows, 1);
    ws.click("frmDecide.cmdBill");
    EXPECT_BOXES(ui, {"Sorry Only Management can view BILL for Private patients"});
}

/// Items that are added to a bill which waits for its batch.
class CollatedEntry : public BillPat {
protected:
    CollatedEntry() : BillPat("frmBillPatAdjust") {
        visited = QDate(2026, 2, 27);
        hasRevenue = false;
    }
    void TearDown() override { EXPECT_EQ(checkDatabases(ws.program).findings, QStringList()); }
};
ORVANE_ON_EACH_ENGINE(CollatedEntry);

/// Every kind that is offered can be priced, a laboratory item too; what the private tariff had to lend is told in
/// lblInfo alone.
TEST_P(CollatedEntry, PricesAsItsTwinButQuietly) {
    openFor("HMO", "0201");
    EXPECT_EQ(items("cboCat"), (QStringList{"", "DRUG", "LAB", "SERVICE"}));
    const struct {
        const char *kind, *name, *price;
        bool fallsBack;
    } cases[] = {{"DRUG", "PARACETAMOL 500MG", "40.00", false},
                 {"LAB", "MALARIA PARASITE", "1,200.00", false},
                 {"SERVICE", "WOUND DRESSING", "2,500.00", true}};
    for (const auto& c : cases) {
        pickItem(c.kind, c.name);
        EXPECT_EQ(value("txtPrice"), c.price);
        EXPECT_EQ(!value("lblInfo").isEmpty(), c.fallsBack);
        EXPECT_BOXES(ui, {});
    }
}

/// Every line goes on the bill, whatever it says about capitation, on the day of the visit.
TEST_P(CollatedEntry, EveryLineGoesOnTheBill) {
    openFor("HMO", "0201");
    EXPECT_EQ(value("dtDate"), "2026-02-27");
    addLine("DRUG", "PARACETAMOL 500MG", "10", "YES");
    addLine("SERVICE", "WOUND DRESSING", "1");
    expectChecks({{"dtDate", "", "Please specify Attnd Date"}});
    set("dtDate", "2026-02-27");
    save();
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(
        rows("select dtDate, PNo, consultID, drgName, Price, Qty, SubTotal, billType, billTo, coyName, Capitated, "
             "attendedto, isBilled from BillAccum order by SNo"),
        "2026-02-27|P/0001|001OFL0000001|PARACETAMOL 500MG|40|10|400|DRUG|0201|0201|NO|1|1\n"
        "2026-02-27|P/0001|001OFL0000001|WOUND DRESSING|2500|1|2500|SERVICE|0201|0201|NO|1|1");
    EXPECT_EQ(rows("select d.dtDate, d.billNo, d.SubTotal, d.Capitated, d.BillBy from BillingDetails d inner join "
                   "BillAccum a on a.SNo=d.SNo and a.drgName=d.drgName order by d.SNo"),
              "2026-02-27|001OFL0000001|400|NO|amina.b\n2026-02-27|001OFL0000001|2500|NO|amina.b");
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

TEST_P(CollatedEntry, PrivateLinesAreChargedOnce) {
    openFor("PRIVATE", "0001");
    addLine("DRUG", "PARACETAMOL 500MG", "10");
    addLine("SERVICE", "WOUND DRESSING", "1");
    ws.run("update Billing set isProcess=1");
    expectChecks({{nullptr, nullptr, "This Bill is already processed! to Modify, unProcess the Batch"}});
    ws.run("update Billing set isProcess=0");
    save();
    EXPECT_EQ(account(), "-500|-500|New Bill Item: PARACETAMOL 500MG\n-2500|-3000|New Bill Item: WOUND DRESSING");
    load();
    EXPECT_EQ(debt(), "-3000");
}

} // namespace
} // namespace orvane
