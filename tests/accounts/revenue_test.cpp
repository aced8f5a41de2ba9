#include "support/Print.h"
#include "support/ScreenTest.h"

namespace orvane {

class RevenueTypes : public ScreenTest {
protected:
    RevenueTypes() : ScreenTest("frmRevCat") {}

    void prepare() override {
        layAccounts({"'4001', 'CONSULTATION INCOME', '4110000'", "'4002', 'DRUG INCOME', '4120000'"});
    }
    /// How many rows of the tables bear the name: items, lines, drugs, laboratory items, services, paid items.
    QString bearing(const QString& type) {
        QStringList counts;
        for (const char* table :
             {"BillAccum", "BillingDetails", "drugMaster", "labservices", "hservices", "PaymentDetails"})
            counts << rows(QStringLiteral("select count(*) as n from %1 where revType='%2'")
                               .arg(QLatin1StringView(table), QString(type).replace("'", "''")));
        return counts.join('|');
    }
    QString type(const QString& name) {
        return rows("select revType,CatRemarks,Active,AccountNo from hRevenueType where revType='" + name + "'");
    }
    void edit(const QString& name) {
        row("grdData", name);
        dblClick("grdData");
    }
};

TEST_P(RevenueTypes, ATypeIsAddedWithAnAccountThatIsPicked) {
    open();
    click("cmdAdd");
    expectChecks({{nullptr, nullptr, "Specify Revenue Type", "txtNAme"},
                  {"txtNAme", "SCANS", "Specify Category", "cboVehNo"},
                  {"cboVehNo", "DIAGNOSTIC", "Specify Whether Item is Active or Not", "cboYes"},
                  {"cboYes", "YES", "Specify Account No", "txtAcctNo"}});
    const auto take = [&](const QStringList& accounts) {
        ws.tick("frmRevAcctSelect.LstAcct", accounts);
        ws.click("frmRevAcctSelect.OKButton");
    };
    ui.inModal("frmRevAcctSelect", [&](Form&) {
        take({"DRUG INCOME [4002]", "CONSULTATION INCOME [4001]"});
        EXPECT_BOXES(ui, {"Select one Account at a time"});
        ws.tick("frmRevAcctSelect.LstAcct", {"CONSULTATION INCOME [4001]"}, false);
        take({});
    });
    click("cmdAccts");
    EXPECT_EQ(shown("txtAcctNo lblAcct"), "4002|DRUG INCOME");
    ui.answer(true);
    EXPECT_EQ(told("OKButton"), "Record Succesfully Saved");
    EXPECT_EQ(type("SCANS"), "SCANS|DIAGNOSTIC|YES|4002");
}

TEST_P(RevenueTypes, ANewNameIsCarriedThroughItsTablesOrThroughNone) {
    layVisit();
    layItem();
    ws.run("insert into BillingDetails (billNo, drgName, revType) values ('B', 'X', 'drugs')");
    ws.run("insert into PaymentDetails (billNo, BillItem, revType) values ('B', 'X', 'DRUGS')");
    ws.run("update labservices set revType='DRUGS' where Drgname='MALARIA PARASITE'");
    ws.run("update hservices set revType='DRUGS'");
    const QString before = bearing("DRUGS");
    EXPECT_EQ(before, "1|1|3|1|1|1");
    open();
    edit("DRUGS");
    set("txtNAme", "DOCTOR'S DRUGS");
    set("cboVehNo", "PHARMACY");
    breakAt("update hservices", true);
    ui.answer(true);
    click("OKButton");
    ui.forgetBoxes();
    EXPECT_EQ(bearing("DRUGS") + type("DRUGS"), before + "DRUGS||YES|4002") << "half a name";
    mend();
    ui.answer(true);
    EXPECT_EQ(told("OKButton"), "Record Succesfully Update");
    EXPECT_EQ(bearing("DOCTOR'S DRUGS"), "1|1|3|1|1|0");
    EXPECT_EQ(bearing("DRUGS"), "0|0|0|0|0|1");
    EXPECT_EQ(type("DOCTOR''S DRUGS"), "DOCTOR'S DRUGS|PHARMACY|YES|4002");
}

TEST_P(RevenueTypes, ANameStandsForOneTypeAndTheCatchAllStays) {
    open();
    edit("DRUGS");
    set("txtNAme", "OTHERS");
    set("cboVehNo", "PHARMACY");
    ui.answer(true);
    EXPECT_EQ(told("OKButton"), "There is a Revenue Type of this name already");
    click("cmdCancel");
    row("grdData", "OTHERS");
    EXPECT_EQ(told("cmdDel"), "This Item Cannot be Deleted");
    row("grdData", "DRUGS");
    ui.answer(true);
    EXPECT_EQ(told("cmdDel"), " Record successfully deleted ");
    EXPECT_EQ(type("DRUGS") + bearing("DRUGS"), "0|0|3|0|0|0") << "rows that bear its name keep it";
}

TEST_P(RevenueTypes, APaymentIsForTheHeadingsThatWerePicked) {
    layVisit();
    layItem();
    load();
    ui.inModal("frmRevHeaders", [&](Form&) {
        ws.click("frmRevHeaders.OKButton");
        EXPECT_BOXES(ui, {"Select Items paid for"});
        ws.tick("frmRevHeaders.LstRev", {"DRUGS", "LABORATORY"});
        ws.click("frmRevHeaders.OKButton");
    });
    set("chkRct", "yes");
    click("cmdRev");
    EXPECT_EQ(value("cboPayFor"), "DRUGS, LABORATORY");
}

ORVANE_ON_EACH_ENGINE(RevenueTypes);

/// Lines of two days: of a private patient, of a company's, of an outlet's customer.
class Revenue : public ScreenTest {
protected:
    Revenue() : ScreenTest("frmRevCatEdit") {}

    void prepare() override {
        ws.run("insert into hClientType (ClientType) values ('PRIVATE'), ('COMPANY')");
        layVisit();
        Connection connection = ws.billing();
        makeVisit(connection, {.consultID = "C", .category = "MTHLY", .client = "0102"});
        ws.run("insert into hPatientsPublic (PNo, psurname) values ('X1', 'DARE')");
        ws.run("insert into hRecordsPublic (consultID, PNo, recDate, coyName) values ('001/26/000001', 'X1', "
               "'2026-03-13', '0001')");
        ws.run("insert into BillAccum (consultID, drgName, revType) values ('001OFL0000001', 'WOUND DRESSING', "
               "'SERVICES')");
        ws.run("insert into BillingDetails (SNo, billNo, PNo, dtDate, drgName, SubTotal, BillType, revType, coyName) "
               "values (1, '001OFL0000001', 'P/0001', '2026-03-14', 'WOUND DRESSING', 2500, 'SERVICE', 'SERVICES', "
               "'0001'), (2, 'C', 'P/0001', '2026-03-14', 'O''ILL', 120.5, 'DRUG', 'OTHERS', '0102'), "
               "(3, '001/26/000001', 'X1', '2026-03-13', 'MALARIA PARASITE', 1500, 'LAB', 'LABORATORY', '0001'), "
               "(4, '001OFL0000001', 'P/0001', '2026-02-28', 'CARD', 500, 'DRUG', 'OTHERS', '0001')");
        ws.run("insert into PaymentDetails (ReceiptNo, ReceiptDate, billNo, BillItem, revType, AmountPaid) values "
               "('R1', '2026-03-14', '001OFL0000001', 'WOUND DRESSING', 'SERVICES', 2500), "
               "('R1', '2026-03-14', '001OFL0000001', 'CARD', 'OTHERS', 500)");
    }
    void range(const QString& group, const QString& from = "2026-03-13") {
        set("DTPicker1", from);
        pick("cboGroup", group);
    }
    QString listed() {
        QStringList services;
        for (const QString& line : ws.rows("frmRevCatEdit.grdData").mid(1))
            services << line.section('\t', 2, 2);
        return services.join('|');
    }
    /// What the statement that was handed to the report gives.
    int reported() {
        Connection connection = ws.billing();
        return Recordset(connection, ws.program.session.sRevRptSQL).count();
    }
};

TEST_P(Revenue, IsListedAndPrintedByClientAndByType) {
    open();
    click("cmdList");
    EXPECT_BOXES(ui, {"Specify Company/Category"});
    click("cmdCash");
    EXPECT_BOXES(ui, {"Specify Patient Category"});
    const struct {
        const char* kind;
        const char* group;
        const char* lines;
        const char* others;
        int cash;
    } cases[] = {{"radCoy", "(ALL)", "MALARIA PARASITE|O'ILL|WOUND DRESSING", "O'ILL", 2},
                 {"radCoy", "HARMONY MILLS LTD [0102]", "O'ILL", "O'ILL", 0},
                 {"radCat", "PRIVATE", "MALARIA PARASITE|WOUND DRESSING", "", 2},
                 {"radCat", "COMPANY", "O'ILL", "O'ILL", 0}};
    for (const auto& one : cases) {
        SCOPED_TRACE(one.group);
        set(one.kind, "yes");
        range(one.group);
        for (const auto& [only, lines] : {std::pair("no", one.lines), std::pair("yes", one.others)}) {
            set("ChkOnly", only);
            click("cmdList");
            QStringList found = listed().split('|');
            found.sort();
            EXPECT_EQ(found.join('|'), lines);
        }
        for (const auto& [button, mode] : {std::pair("cmdView", "SUMMARY"), std::pair("cmdDetails", "DETAIL"),
                                           std::pair("cmdRevCons", "CONS-DETAIL"), std::pair("cmdCash", "CASH")}) {
            click(button);
            EXPECT_EQ(ws.program.session.sRevRptMode, mode);
            EXPECT_EQ(reported(), QLatin1StringView(mode) == "CASH" ? one.cash : QString(one.lines).split('|').size());
            ui.forgetBoxes();
            if (Form* viewer = ws.program.loadedForm("frmRevPrintRpt"))
                viewer->unload();
        }
    }
    click("cmdExport");
    EXPECT_EQ(ui.exports.size(), 1);
    set("radCoy", "yes");
    range("(ALL)", "2027-01-01");
    set("DTPicker2", "2027-01-02");
    EXPECT_EQ(told("cmdExport"), "No Revenue OR \r\n");
    set("DTPicker2", "");
    EXPECT_EQ(told("cmdList"), "Please specify Attendance Date Range");
}

TEST_P(Revenue, ALineIsCorrectedWithItsItemAndItsReceipt) {
    open();
    range("(ALL)");
    click("cmdList");
    EXPECT_EQ(told("OKButton"), "Specify Revenue Item for this Item");
    row("grdData", "WOUND DRESSING");
    EXPECT_EQ(shown("txtItem cboRev"), "WOUND DRESSING|SERVICES");
    set("cboRev", "LABORATORY");
    EXPECT_EQ(told("OKButton"), "Please specify Name of Consultant who Rendered Service! Or Tick Ignore CheckBox to "
                                "Ignore Name of Consultant");
    pick("cboCon", "OKAFOR CHIDI [D001]");
    click("OKButton");
    EXPECT_EQ(rows("select revType,treatedBy from BillingDetails where SNo=1") + ' ' +
                  rows("select revType,treatedBy from BillAccum where SNo=1") + ' ' +
                  rows("select revType from PaymentDetails order by SNo"),
              "LABORATORY|D001 LABORATORY|D001 LABORATORY\nOTHERS");
    EXPECT_EQ(audit("Revenue Type Edit%"),
              "Revenue Type Edit: WOUND DRESSING|OldValue >> SERVICES :NewValue >> LABORATORY");
    EXPECT_EQ(shown("txtItem cboRev"), "WOUND DRESSING|LABORATORY") << "the list stands on the line again";
    EXPECT_EQ(rows("select Consultant from vwBillingDetailsForRev where SNO=1"), "OKAFOR CHIDI");
    set("chkIgnore", "yes");
    click("OKButton");
    EXPECT_EQ(rows("select treatedBy from BillingDetails where SNo=1"), "");
}

ORVANE_ON_EACH_ENGINE(Revenue);

} // namespace orvane
