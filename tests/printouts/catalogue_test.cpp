// The list reports, the laboratory's results and bills on paper: who and what stands on them, and what they total.
#include "data/words/Money.h"
#include "forms/ReportViewer.h"
#include "reports/StockTemplates.h"
#include "support/ScreenTest.h"

namespace orvane {
namespace {

class Catalogue : public ScreenTest {
protected:
    Catalogue() : ScreenTest("FrmRptAttendByCoy") {}

    void prepare() override { renewStockTemplates(home.folder()); }
    void layLine(int sno, const QString& bill, double amount, const QString& more = {}) {
        ws.run(
            QStringLiteral("insert into BillingDetails (SNo, billNo, dtDate, PNo, drgName, Qty, Price, SubTotal, "
                           "revType, coyName, BillBy) values (%1, '%2', '2026-03-14', 'P/0001', 'ITEM', 1, %3, %3, %4)")
                .arg(sno)
                .arg(bill)
                .arg(amount)
                .arg(more.isEmpty() ? "'DRUGS', null, null" : more));
    }
    void layOutletVisit(const QString& bill, const QString& pno, const QString& surname) {
        ws.run("insert into hPatientsPublic (PNo, pSurname, pfirstname, sex, Age) values ('" + pno + "', '" + surname +
               "', 'B', 'F', '30')");
        ws.run("insert into hRecordsPublic (consultID, PNo, recDate, clientCat, coyName) values ('" + bill + "', '" +
               pno + "', '2026-03-14', 'PRIVATE', '0001')");
    }
    /// All that the pages say, in order.
    QString paper() {
        PageSource* report = dynamic_cast<ReportViewer&>(*ws.program.activeForm()->find("crViewer1")).report();
        QStringList words;
        for (int page = 0; report && report->has(page); ++page)
            for (const PageText& text : report->page(page).texts)
                words << text.text;
        return words.join('|');
    }
    void expectPaper(const QString& words) { EXPECT_TRUE(paper().contains(words)) << paper().toStdString(); }
    void expectNoPaper(const QString& words) { EXPECT_FALSE(paper().contains(words)) << paper().toStdString(); }
    /// Without a day the screen asks for both; in ten years of nothing it says so.
    void expectDays(const QString& button, const QString& nothing) {
        set("DTPicker2", "");
        EXPECT_EQ(told(button), "Please specify Start/End Date");
        set("DTPicker1", "2001-01-01");
        set("DTPicker2", "2011-01-01");
        EXPECT_EQ(told(button), nothing);
        set("DTPicker2", "2026-03-14");
        set("DTPicker1", "2026-03-14");
    }
};
ORVANE_ON_EACH_ENGINE(Catalogue);

TEST_P(Catalogue, AttendanceTotalsBillsAndWhatAFixedFeeCovers) {
    layVisit({.category = "HMO", .client = "0201"}, {.category = "HMO", .client = "0201"});
    layItem({.client = "0201", .price = 70, .capitated = "YES"});
    Connection billing = ws.billing();
    makeVisit(billing, {.consultID = "V2", .pno = "GONE", .client = "0201"});
    makeVisit(billing, {.consultID = "V3", .client = "0102"});
    layLine(501, "V2", 30.25);
    layLine(502, "V3", 999);
    open();
    EXPECT_EQ(told("cmdDisplay"), "Please select Company Name");
    const QString client = ws.billing().run("select retainName from hRetainership where retainID='0201'").text(0);
    pick("cboCust", client);
    expectDays("cmdDisplay", "No Report for the specified Company");
    click("cmdDisplay");
    expectPaper("Attendance Analysis for " + client + "|Between 14/03/2026 and 14/03/2026|");
    expectPaper("2|visits|30.25|70.00|");
}

TEST_P(Catalogue, ABillCountsForTheOfficerWhoCollatedItLast) {
    Connection billing = ws.billing();
    makePatient(billing);
    for (const char* visit : {"V1", "V2", "V3", "NOLINES"})
        makeVisit(billing, {.consultID = visit});
    layOutletVisit("001/26/000001", "X/1", "PASSER");
    layLine(1, "V1", 10, "'DRUGS', null, 'chidi.o'");
    layLine(2, "V1", 5, "'DRUGS', null, 'amina.b'");
    layLine(3, "V1", 1);
    layLine(4, "V2", 20.5, "'DRUGS', null, 'LEFT.LONG.AGO'");
    layLine(5, "V3", 100);
    layLine(6, "001/26/000001", 7, "'DRUGS', null, 'E001'");
    for (const auto& [bill, amount] : {std::pair("V1", 16.), {"V2", 20.5}, {"V3", 100.}, {"001/26/000001", 7.}})
        layBill(amount, 0, bill);
    makeVisit(billing, {.consultID = "CAPITATED"});
    layBill(0, 0, "CAPITATED");
    ws.run("update Billing set AmountBIlledInWord='XXX' where billNo='CAPITATED'");
    open("FrmRptBillsByBillingOfficers");
    expectDays("cmdDisplay", "No Report for the specified Bill Officer");
    click("cmdList");
    EXPECT_EQ(ws.items("FrmRptBillsByBillingOfficers.cboCust"),
              (QStringList{"(ALL)", "AMINA BELLO", "LEFT.LONG.AGO"})); // she by her user name and by her number
    click("cmdDisplay");
    expectPaper("Bills Collated Betweeen 14/03/2026 and 14/03/2026|All billing officers|");
    expectPaper("4|bills|143.50|");
    expectPaper("PASSER B|");
    pick("cboCust", "LEFT.LONG.AGO");
    click("cmdDisplay");
    expectPaper("1|bills|20.50|");
}

TEST_P(Catalogue, ClientsSeeTheLinesOfTheirBills) {
    Connection billing = ws.billing();
    makePatient(billing);
    makeVisit(billing, {.consultID = "V1", .client = "0102"});
    makeVisit(billing, {.consultID = "V2", .client = "GONE"});
    layLine(1, "V1", 10.5);
    layLine(2, "V1", 10.5);
    layLine(3, "V2", 4);
    open("FrmRptBillsByClient");
    expectDays("cmdDisplay", "No Report for the specified Client");
    click("cmdList");
    click("cmdDisplay");
    expectPaper("Total of GONE|4.00|");
    expectPaper("Total of all clients shown|25.00|");
    pick("cboCust", "GONE");
    EXPECT_EQ(ws.items("FrmRptBillsByClient.cboBill"), (QStringList{"(ALL)", "ADEYEMI BOLA [V2]"}));
    pick("cboBill", 1);
    click("cmdDisplay");
    expectPaper("Total of all clients shown|4.00|");
}

TEST_P(Catalogue, WhatNobodyHasBilledIsListedByCategory) {
    Connection billing = ws.billing();
    makePatient(billing);
    for (const auto& [visit, category] : {std::pair("V1", "PRIVATE"), {"V2", "HMO"}, {"V3", "MTHLY"}, {"V4", "NHIS"}})
        makeVisit(billing, {.consultID = visit, .category = category});
    for (const char* visit : {"V1", "V2", "V3", "V4", "001/26/000001", "001/26/000002"})
        layItem({.consultID = visit, .price = 12.5, .capitated = visit == std::string("V2") ? "YES" : "NO"});
    ws.run("update hRecords set BillDate='2026-03-14' where consultID='V4'");
    layOutletVisit("001/26/000001", "X/1", "PASSER");
    layOutletVisit("001/26/000002", "X/2", "COLLATED");
    layBill(12.5, 0, "001/26/000002");
    open("FrmRptBillsUnAttendedTo");
    EXPECT_EQ(told("cmdCap"), "Please select Patient's Name");
    expectDays("cmdDisplay", "No Report Available");
    for (const auto& [option, total] : {std::pair("radAll", "4|visits|4|50.00|"),
                                        {"radPvt", "2|visits|2|25.00|"},
                                        {"radCorp", "1|visits|1|12.50|"},
                                        {"radHMO", "1|visits|1|12.50|"}}) {
        set(option, "yes");
        click("cmdDisplay");
        expectPaper(QLatin1String(total));
    }
    expectPaper(
        "Attendance Yet to be AttendedTo By Bills Officer (UnCollated Bills)|Between 14/03/2026 and 14/03/2026|");
    click("cmdList");
    pick("cboCust", 0);
    click("cmdCap");
    expectPaper("Covered by the fixed fee, not charged|12.50|");
}

TEST_P(Catalogue, TheLaboratoryAnswersEachPatientAlone) {
    layVisit();
    layOutletVisit("001/26/000001", "X/1", "PASSER");
    const auto request = [&](const char* visit, const char* pno, int conID, const QString& lab) {
        ws.run(
            QStringLiteral("insert into hInvestigate (consultID, PNo, conID, invDate, labnum) values ('%1', '%2', %3, "
                           "'2026-03-14', '%4')")
                .arg(QLatin1StringView(visit), QLatin1StringView(pno))
                .arg(conID)
                .arg(lab));
    };
    const auto finding = [&](const char* visit, int conID, const QString& category, const QString& part,
                             const QString& result) {
        ws.run(QStringLiteral("insert into hInvestigateFindings (consultID, conID, sympItemCat, sympItem, Result, "
                              "Remarks) values ('%1', %2, '%3', '%4', '%5', '%3')")
                   .arg(QLatin1StringView(visit))
                   .arg(conID)
                   .arg(category, part, result));
    };
    request(billNo, "P/0001", 7, "L1");
    request(billNo, "P/0001", 8, "L2"); // nothing was found yet
    request("001/26/000001", "X/1", 0, "L1");
    finding(billNo, 7, "BLOOD", "PCV", "41 %");
    finding(billNo, 7, "BLOOD", "FILM", "XXX");
    finding(billNo, 7, "WIDAL", "TYPHI O", "1:160");
    finding(billNo, 7, "HISTOPATHOLOGY", "DIAGNOSIS", "NO SIGN OF ILLNESS");
    finding(billNo, 8, "BLOOD", "SUGAR", "XXX");
    finding("001/26/000001", 3, "URINE", "PROTEIN", "NIL");
    finding("001/26/000001", 4, "WIDAL", "TYPHI H", "1:80");
    finding("001/26/000001", 4, "HISTOPATHOLOGY", "SPECIMEN", "SKIN");

    open("FrmRptSummQVR");
    EXPECT_EQ(told("cmdDisplay"), "Please select Patient's Name");
    click("cmdList");
    EXPECT_EQ(ws.items("FrmRptSummQVR.cboCust"),
              (QStringList{"ADEYEMI BOLA @14/03/2026 [L1]", "PASSER B @14/03/2026 [L1]"}));
    pick("cboCust", 0);
    click("cmdDisplay");
    expectPaper("Lab Result for: ADEYEMI BOLA|");
    expectPaper("BLOOD|PCV|41 %|FILM|to follow|WIDAL|TYPHI O|1:160|");
    expectNoPaper("TYPHI H|");
    expectNoPaper("DIAGNOSIS");
    click("cmdHist");
    expectPaper("DIAGNOSIS|NO SIGN OF ILLNESS|");
    pick("cboCust", 1);
    click("cmdDisplay");
    expectPaper("URINE|PROTEIN|NIL|WIDAL|TYPHI H|1:80|");
    expectNoPaper("PCV");
    click("cmdHist");
    expectPaper("SPECIMEN|SKIN|");
    ws.run("delete from hInvestigateFindings");
    EXPECT_EQ(told("cmdDisplay"), "No Report for the specified Patient");
    EXPECT_EQ(told("cmdHist"), "No HistPathology Report for the specified Patient");
    set("DTPicker1", "");
    EXPECT_EQ(told("cmdList"), "Please specify Start/End Date");
}

TEST_P(Catalogue, MoreReportsAreListsOfTheirOwn) {
    layVisit();
    layBill(500.5, 100);
    Connection billing = ws.billing();
    for (const auto& [visit, category, client] : {std::tuple("V2", "MTHLY", "0102"), {"V3", "HMO", "0201"}}) {
        makeVisit(billing, {.consultID = visit, .category = category, .client = client});
        layBill(70, 0, visit);
        ws.run("update Billing set clientID='" + QString(client) + "' where billNo='" + visit + "'");
    }
    ws.run("update Billing set bdate='2026-03-14'");
    ws.run("insert into hAdmission (consultID, PNo, admdate) values ('001OFL0000001', 'P/0001', '2026-03-14'), "
           "('V2', 'P/0001', '2026-03-14')");
    ws.run("delete from Payments");
    ws.run("insert into Payments (ReceiptNo, ReceiptDate, billNo, PNo, AmountPaid) values "
           "('R1', '2026-03-14', 'V2', 'P/0001', 60), ('R2', '2026-03-14', 'V2', 'P/0001', -10)");
    open("rptPanelForFinancial");
    EXPECT_EQ(told("OKButton"), "Please select a Report");
    const struct {
        const char* report;
        int rows;
        const char* total;
        const char* nothing;
    } cases[] = {{"rptCompanyBill", 1, "400.50", "No Bills between these two dates"},
                 {"rptPrivateBill", 1, "400.50", "No Bills between these two dates"},
                 {"rptClientBill", 2, "140.00", "No Bills between these two dates"},
                 {"rptHmoClaims3", 1, "70.00", "No Bills between these two dates"},
                 {"rptInPatient", 1, "400.50", "No Bills between these two dates"},
                 {"rptInpatientXX", 1, "70.00", "No Bills between these two dates"},
                 {"rptBillingIncome", 2, "50.00", "No Income between these two dates"},
                 {"rptCancelledReceipt", 1, "-10.00", "No Cancelled Receipts"}};
    for (int i = 0; i < int(std::size(cases)); ++i) {
        pick("cboRpt", i);
        click("OKButton");
        EXPECT_BOXES(ui, {});
        EXPECT_EQ(ui.reports.last().file, cases[i].report);
        EXPECT_EQ(ui.reports.last().rows, cases[i].rows) << cases[i].report;
        EXPECT_TRUE(ui.reports.last().end.contains(cases[i].total)) << ui.reports.last().end.toStdString();
        expectDays("OKButton", cases[i].nothing);
    }
}

TEST_P(Catalogue, ABillIsPrintedLineByLineOrByChargeHeads) {
    layVisit({}, {.category = "MTHLY", .client = "0102"});
    layLine(1, billNo, 2000, "'CONSULTATION', null, null");
    layLine(2, billNo, 35.5, "'PHARMACY', null, null");
    layLine(3, billNo, 4, "'NOBODY KNOWS', null, null");
    layBill(2039.5, 1000);
    ws.program.session.sPrintBillNo = "P/0001";
    open("rptPanelBill");
    EXPECT_EQ(told("OKButton"), "Specify Patient");
    EXPECT_EQ(told("cmdHeads"), "Specify Patient");
    pick("cboVehNo", 0);
    for (const auto& [exempt, lines, consultation] : {std::tuple(false, 3, "2,000.00"), {true, 2, ""}}) {
        if (exempt)
            ws.run("insert into hretainershipExempt (retainID) values ('0102')");
        click("OKButton");
        EXPECT_EQ(ui.reports.last().file, "rptInpatient2");
        EXPECT_EQ(ui.reports.last().rows, lines);
        EXPECT_TRUE(ui.reports.last().end.contains("Billed 2,039.50, paid 1,000.00, due 1,039.50."));
        click("cmdHeads");
        EXPECT_EQ(ui.reports.last().file, "rptBillingForCoy.rpt");
        EXPECT_EQ(ui.reports.last().title, "COMPANY BILL");
        for (const QString& words :
             {"Consultation|" + QString(consultation), QString("Medication|35.50|"), QString("Others|4.00|"),
              QString("Total |2,039.50|Less Deduction|1,000.00|Amout due "
                      "for payment|1,039.50|Amount In Words|One Thousand")})
            EXPECT_TRUE(QString(ui.reports.last().end).replace(" | ", "|").contains(words)) << words.toStdString();
    }
    ws.run("update hRecords set clientCat='PRIVATE'");
    click("cmdHeads");
    EXPECT_EQ(ui.reports.last().file, "rptBilling.rpt");
    EXPECT_EQ(ui.reports.last().title, "BILL");
}

} // namespace
} // namespace orvane
