#include "support/ChecksInOrder.h"
#include "support/TestHome.h"

#include <gtest/gtest.h>

namespace orvane {

namespace {

const QString Bill = "001OFL0000001";

class BillPat : public WorkstationTest {
protected:
    /// A seen visit of a patient of this client, and the screen opened for it.
    void openFor(const QString& category, const QString& client, const QString& ref = "NO") {
        Connection connection = ws.billing();
        makePatient(connection, {.category = category, .client = client, .ref = ref});
        makeVisit(connection, {.category = category, .client = client, .referal = ref});
        makeConsultation(connection);
        open();
    }
    void open() {
        ws.program.session.gConsultID = Bill;
        ws.program.session.sBillPno = "P/0001";
        ws.program.session.sBillPatLabel = "ADEYEMI BOLA";
        ws.open("frmBillPat");
    }
    void put(const QString& control, const QString& value) { ws.set("frmBillPat." + control, value); }
    void click(const QString& control) { ws.click("frmBillPat." + control); }
    QString value(const QString& control) { return ws.value("frmBillPat." + control); }
    ComboBox& combo(const QString& control) { return ws.control<ComboBox>("frmBillPat." + control); }

    void pickItem(const QString& kind, const QString& item) {
        put("cboCat", kind);
        put("cboDrug", item);
    }
    void addLine(const QString& kind, const QString& item, const QString& quantity, const QString& capitated = {}) {
        pickItem(kind, item);
        ui.forgetBoxes();
        put("txtQty", quantity);
        put("cboRev", "SERVICES");
        combo("cboPat").setListIndex(1);
        if (!capitated.isEmpty())
            put("cboFFS2", capitated);
        click("cmdAdd");
        EXPECT_BOXES(ui, {});
    }
    void save() {
        ui.answer(true);
        click("OKButton");
        EXPECT_QUESTIONS(ui, {"Are you sure to save?"});
    }
    QString row(const QString& tsql) {
        const Recordset found = ws.billing().run(tsql);
        QStringList cells;
        for (int column = 0; !found.eof() && column < found.columns().size(); ++column)
            cells << found.text(column);
        return cells.join("|");
    }
};

ORVANE_ON_EACH_ENGINE(BillPat);

TEST_P(BillPat, LoadShowsPlanRepairsItemsAndMakesTheBillRow) {
    Connection connection = ws.billing();
    makeItem(connection, {.qty = 2, .capitated = "BIL"});
    makeItem(connection, {.name = "MALARIA PARASITE", .billType = "INVESTIGATION", .price = 1200, .capitated = ""});
    ws.run("update BillAccum set billTo=null, coyName=null");
    openFor("HMO", "0201");
    ws.run("update hconsulting set billRemarks='BILL HALF', services='DRESSING'");
    ws.close("frmBillPat");
    open();

    EXPECT_EQ(value("txtPresc"),
              "Clinic: CONSULTATION\nDiagnosis: MALARIA\n##### Treatment by Dr. D001 on 14/03/2026 09:20:00 #####\n"
              "\nPARACETAMOL 500MG 2 TDS X 3/7\nDRESSING\n-----BILL ADVICE---BILL HALF\n\n"
              "--------------------------------------\nEND OF TREATMENT");
    EXPECT_EQ(value("lblClient") + value("lblNo") + value("lblFFS") + value("lblCoy"), "HMOP/0001NOCLEARWATER HMO");
    EXPECT_EQ(ws.items("frmBillPat.cboPat"), (QStringList{"", "CLEARWATER HMO", "PRIVATE PATIENTS"}));
    EXPECT_EQ(ws.scalar("select count(*) from BillAccum where Capitated='NO' and billTo='0201' and coyName='0201'"),
              "2");
    const QStringList lines = ws.rows("frmBillPat.OrderGridDrug");
    EXPECT_TRUE(lines.contains("PARACETAMOL 500MG\t\t50.00\t2\t100.00\t\tNO\tDRUG\tOLD\t0201\t0201\t"));
    EXPECT_TRUE(lines.contains("MALARIA PARASITE\t\t1,200.00\t1\t1,200.00\t\tNO\tSERVICE\tOLD\t0201\t0201\t"));
    EXPECT_EQ(value("lblGen"), "1,300.00");
    EXPECT_EQ(value("lblBilled"), "0.00");
    EXPECT_EQ(row("select bdate, PNo, clientID, Amountbilled, AmountPaid, billingMonth, billingYear from Billing"),
              "2026-03-14|P/0001|0201|0|0|March|2026");
    EXPECT_EQ(ws.state("frmBillPat.txtPrice"), "visible enabled locked");
}

TEST_P(BillPat, NothingIsPricedWithoutPatientOrCategory) {
    open();
    EXPECT_EQ(value("txtPresc"), "N/A");
    pickItem("DRUG", "PARACETAMOL 500MG");
    EXPECT_BOXES(ui, {"Client Tariff Category cannot be empty please select Patient"});
    EXPECT_EQ(value("cboDrug"), "");
    ws.close("frmBillPat");

    openFor("PRIVATE", "0001");
    pickItem("DRUG", "PARACETAMOL 500MG");
    EXPECT_EQ(value("txtPrice"), "50.00");
    put("cboDrug", "");
    EXPECT_EQ(value("txtPrice"), "50.00") << "the blank row runs no lookup";
    combo("cboCat").setListIndex(0);
    put("cboDrug", "AMOXICILLIN 500MG");
    EXPECT_BOXES(ui, {"Please specify Category"});
}

TEST_P(BillPat, LookupFillsTheEntryLine) {
    ws.run("update DrugNHIS set RevType='LABORATORY' where drgName='AMOXICILLIN 500MG' and company='0201'");
    ws.run("update hServiceNHIS set RevType='UNLISTED', Capitated='YES'");
    openFor("HMO", "0201", "YES");
    EXPECT_EQ(value("cboRev"), "OTHERS");

    pickItem("DRUG", "AMOXICILLIN 500MG");
    EXPECT_BOXES(ui, {"No price for this HMO/Company! Proceed to use Hospital Private tariff"});
    EXPECT_EQ(value("lblInfo"), "No price for this HMO/Company! Proceed to use Hospital Private tariff");
    EXPECT_EQ(value("txtPrice") + "|" + value("cboRev") + "|" + value("cboFFS2"), "120.00|LABORATORY|NO");

    pickItem("DRUG", "PARACETAMOL 500MG");
    EXPECT_EQ(value("cboFFS2"), "NO") << "a fee-for-service patient pays what the template has as capitated";
    EXPECT_EQ(value("lblInfo"), "");
    EXPECT_EQ(value("cboRev"), "DRUGS");

    pickItem("SERVICE", "WOUND DRESSING");
    EXPECT_BOXES(ui, {"Price Template for this HMO/Company Yet to be Created! Proceed to use Hospital Private tariff"});
    EXPECT_EQ(value("cboRev"), "OTHERS") << "the private row's type is not taken";
    ws.program.session.gRevTypeRpt = "YES";
    pickItem("SERVICE", "WOUND DRESSING");
    put("cboDrug", "");
    put("cboDrug", "WOUND DRESSING");
    ui.forgetBoxes();
    EXPECT_EQ(value("cboRev"), "");

    put("cboDrug", "something typed");
    EXPECT_EQ(value("cboDrug"), "SOMETHING TYPED");
    EXPECT_EQ(value("txtPrice"), "0") << "a typed item must not take the price of the one before";
}

TEST_P(BillPat, AddChecksInOrder) {
    openFor("PRIVATE", "0001");
    ws.program.session.gLockPrice = "NO";
    ws.control<TextBox>("frmBillPat.txtPrice").setLocked(false);
    put("cboCat", "DRUG");
    expectChecksInOrder(
        ws, "frmBillPat", "cmdAdd",
        {{"cboDrug", "", "Please specify a Drug/Service No ", "cboDrug"},
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
         {"txtQty", "two", "Please specify Quantity of Drug prescribed", "txtQty"}});
    EXPECT_EQ(ws.rows("frmBillPat.OrderGridDrug").size(), 2) << "head and the empty row";
    put("txtQty", "3");
    click("cmdAdd");
    EXPECT_BOXES(ui, {});
    EXPECT_EQ(ws.rows("frmBillPat.OrderGridDrug").at(1),
              "PARACETAMOL 500MG\tTABLETS\t50.00\t3\t150.00\t***\tNO\tDRUG\tNEW\t0001\t0001\tDRUGS");
    EXPECT_EQ(value("lblTotal"), "150.00");
    EXPECT_EQ(value("Label5"), "ADEYEMI BOLA\n=N=150.00");
    EXPECT_EQ(ws.form("frmBillPat").focused()->name(), "cboDrug");

    pickItem("DRUG", "PARACETAMOL 500MG");
    put("txtQty", "1");
    put("cboRev", "DRUGS");
    click("cmdAdd");
    EXPECT_BOXES(ui, {"Duplicate Entry Detected please Confirm"});
    EXPECT_EQ(value("lblTotal"), "200.00");
}

TEST_P(BillPat, PrivateLinesGoOnTheBillAtOnce) {
    openFor("PRIVATE", "0001");
    addLine("DRUG", "PARACETAMOL 500MG", "3");
    addLine("SERVICE", "WOUND DRESSING", "1", "YES");
    addLine("INVESTIGATION", "FULL BLOOD COUNT", "0");
    save();
    EXPECT_FALSE(ws.program.loadedForm("frmBillPat"));

    EXPECT_EQ(
        row("select dtDate, PNo, consultID, drgName, Category, Price, Qty, SubTotal, usage, billType, billTo, coyName, "
            "revType, conID, Capitated, attendedto, isBilled, isRct from BillAccum order by SNo"),
        "2026-03-14|P/0001|001OFL0000001|PARACETAMOL 500MG|TABLETS|50|3|150|***|DRUG|0001|0001|SERVICES||NO|1|1|0");
    EXPECT_EQ(ws.tableCount("BillAccum where Capitated='NO' and attendedto=1"), 3);
    EXPECT_EQ(row("select dtDate, billNo, drgName, Price, Qty, SubTotal, dosage, BillType, Capitated, billTo, coyName, "
                  "revType, "
                  "conID from BillingDetails order by SNo"),
              "2026-03-14|001OFL0000001|PARACETAMOL 500MG|50|3|150|***|DRUG|NO|0001|0001|SERVICES|");
    EXPECT_EQ(ws.scalar("select count(*) from BillingDetails d inner join BillAccum b on b.SNo = d.SNo and "
                        "b.drgName = d.drgName"),
              "3");
    EXPECT_EQ(row("select Amountbilled, AmountBIlledInWord, AmountPaid, clientID from Billing"),
              "2650|TWO THOUSAND, SIX HUNDRED AND FIFTY NAIRA|0|0001");
    EXPECT_EQ(row("select count(*), min(RunningTotal), max(billNo) from Tranxaction"), "3|-2650|001OFL0000001");
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
        EXPECT_EQ(row("select Capitated, attendedto, billTo from BillAccum"),
                  QString("%1|%2|%3").arg(c.stored).arg(c.details).arg(c.client));
        EXPECT_EQ(ws.tableCount("BillingDetails"), c.details);
        EXPECT_EQ(ws.scalar("select Amountbilled from Billing"), c.billed);
        EXPECT_EQ(ws.tableCount("Tranxaction"), 0);
        EXPECT_EQ(ws.scalar("select DebtBF from hPatients"), "0");
    }
}

TEST_P(BillPat, LinesAreRemovedUntilSaved) {
    Connection connection = ws.billing();
    makeItem(connection, {.name = "MALARIA PARASITE"});
    openFor("PRIVATE", "0001");
    addLine("SERVICE", "WOUND DRESSING", "2");
    addLine("DRUG", "PARACETAMOL 500MG", "1");
    EXPECT_EQ(value("lblTotal"), "5,050.00");

    ws.row("frmBillPat.OrderGridDrug", "MALARIA PARASITE");
    ws.dblClick("frmBillPat.OrderGridDrug");
    EXPECT_BOXES(ui, {"This row cannot be Deleted! Already in the Database"});
    ws.row("frmBillPat.OrderGridDrug", "WOUND DRESSING");
    ui.answer(false);
    ws.dblClick("frmBillPat.OrderGridDrug");
    ui.answer(true);
    ws.row("frmBillPat.OrderGridDrug", "WOUND DRESSING");
    ws.dblClick("frmBillPat.OrderGridDrug");
    EXPECT_BOXES(ui, {"Item Removed"});
    EXPECT_QUESTIONS(ui, {"Are you sure to Delete?", "Are you sure to Delete?"});
    EXPECT_EQ(value("lblTotal"), "50.00");
    EXPECT_EQ(ws.rows("frmBillPat.OrderGridDrug").size(), 4);

    click("cmdRefresh");
    EXPECT_EQ(ws.rows("frmBillPat.OrderGridDrug").size(), 3);
    addLine("DRUG", "AMOXICILLIN 500MG", "1");
    EXPECT_EQ(value("lblTotal"), "120.00") << "lines lost by Refresh count no more";
}

TEST_P(BillPat, SaveChecksAndSaveWithoutNewLines) {
    openFor("PRIVATE", "0001");
    put("dtDate", "");
    click("OKButton");
    EXPECT_BOXES(ui, {"Please specify Date"});
    put("dtDate", "2026-03-14");
    click("OKButton");
    EXPECT_BOXES(ui, {"No  Item is Processed!!! Please Verify"});
    ws.close("frmBillPat");

    Connection connection = ws.billing();
    makeItem(connection);
    ws.run("insert into BillingDetails (SNo, billNo, drgName, SubTotal) select SNo, consultID, drgName, SubTotal from "
           "BillAccum");
    open();
    EXPECT_EQ(value("lblBilled"), "50.00");
    ws.run("update BillingDetails set SubTotal=75");
    ui.answer(false);
    click("OKButton");
    EXPECT_TRUE(ws.program.loadedForm("frmBillPat"));
    ui.takeQuestions();
    save();
    EXPECT_EQ(ws.tableCount("BillAccum"), 1);
    EXPECT_EQ(row("select Amountbilled, AmountBIlledInWord from Billing"), "75|SEVENTY FIVE NAIRA");
    EXPECT_FALSE(ws.program.loadedForm("frmBillPat"));
}

TEST_P(BillPat, FaultOrFrozenBillSavesNothingAndKeepsTheLines) {
    openFor("PRIVATE", "0001");
    addLine("SERVICE", "WOUND DRESSING", "1");
    addLine("DRUG", "PARACETAMOL 500MG", "2");
    ws.program.data().setStatementHook([](const QString& tsql) {
        if (tsql.contains("hPatients set DebtBF=-2600", Qt::CaseInsensitive))
            throw DataError("the cable was pulled");
    });
    save();
    EXPECT_BOXES(ui, {"the cable was pulled"});
    ws.program.data().setStatementHook({});
    ws.run("update Billing set isProcess=1");
    click("OKButton");
    EXPECT_BOXES(ui, {"This Bill is already processed! to Modify, unProcess the Batch"});
    for (const char* table : {"BillAccum", "BillingDetails", "Tranxaction"})
        EXPECT_EQ(ws.tableCount(table), 0) << table;
    EXPECT_EQ(ws.rows("frmBillPat.OrderGridDrug").size(), 4);

    ws.run("update Billing set isProcess=0");
    save();
    EXPECT_EQ(ws.scalar("select Amountbilled from Billing"), "2600");
    EXPECT_EQ(ws.tableCount("BillAccum"), 2);
}

TEST_P(BillPat, FeeForServiceFlipsTheWholeVisit) {
    Connection connection = ws.billing();
    makeItem(connection, {.client = "0201", .capitated = "YES"});
    openFor("HMO", "0201");
    click("cmdUpd");
    EXPECT_BOXES(ui, {"Specify FeeForService"});
    for (const char* flag : {"YES", "NO"}) {
        put("cboFFS", flag);
        click("cmdUpd");
        EXPECT_EQ(row("select h.referal, p.ref from hRecords h inner join hPatients p on p.PNo=h.PNo"),
                  QString("%1|%1").arg(flag));
        EXPECT_EQ(ws.scalar("select Capitated from BillAccum"), flag == QString("YES") ? "NO" : "YES");
    }
}

TEST_P(BillPat, TypedLineTotalGivesTheUnitPrice) {
    ws.program.session.gLockPrice = "NO";
    openFor("PRIVATE", "0001");
    put("txtQty", "4");
    put("txtSub", "500");
    EXPECT_EQ(value("txtPrice"), "125");
    put("txtQty", "3");
    EXPECT_EQ(value("txtSub"), "375");
    put("txtPrice", "0.1");
    EXPECT_EQ(value("txtSub"), "0.3");
    EXPECT_EQ(ws.state("frmBillPat.txtPrice"), "visible enabled");
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
    ASSERT_EQ(ui.reports.size(), 1);
    EXPECT_EQ(ui.reports.first().title, "Patient Name : ADEYEMI BOLA");
    EXPECT_EQ(ui.reports.first().rows, 1);
    ws.click("frmDecide.cmdBill");
    EXPECT_BOXES(ui, {"Sorry Only Management can view BILL for Private patients"});
}

} // namespace

} // namespace orvane
