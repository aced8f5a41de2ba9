#include "data/dialect/Catalog.h"
#include "support/Hospital.h"
#include "support/Print.h"
#include "support/Rows.h"
#include "support/TestHome.h"

namespace orvane {

/// A hospital with its clients and one patient, P/0001, on whose visits the views are asked.
class Views : public EngineTest {
protected:
    Views() {
        Connection accounting = data.open(TestHome::accounting());
        layHospital(billing, accounting);
        makePatient(billing);
        data.setServerClock(QDateTime(QDate(2026, 3, 14), QTime(9, 30)));
    }

    QString rows(const QString& tsql) { return rowsOf(billing, tsql); }
    /// What each statement gives.
    void expect(std::initializer_list<std::pair<const char*, const char*>> cases) {
        for (const auto& [tsql, expected] : cases)
            EXPECT_EQ(rows(tsql), expected) << tsql;
    }
    void add(const char* into, std::initializer_list<const char*> rows) { addRows(billing, into, rows); }

    void visit(const char* consultID, const char* category = "PRIVATE", const char* client = "0001") {
        makeVisit(billing, {.consultID = consultID, .category = category, .client = client});
    }
};

TEST_P(Views, EveryViewOfBothDatabasesSelects) {
    const std::pair<QString, QString> databases[] = {{"billing", TestHome::billing()},
                                                     {"accounting", TestHome::accounting()}};
    for (const auto& [database, connectionString] : databases) {
        Connection connection = data.open(connectionString);
        for (const QString& view : Catalog::instance().views(database)) {
            SCOPED_TRACE(view.toStdString());
            QStringList names = connection.run("select * from " + view).columns().join(u'|').toLower().split(u'|');
            EXPECT_EQ(names.removeDuplicates(), 0) << "a column twice";
        }
    }
}

TEST_P(Views, ABillHasATotalAsSoonAsItHasALine) {
    visit("A");
    visit("B", "HMO", "0201");
    visit("C");
    add("hRecordsPublic (consultID, PNo, recDate, coyName)", {"'001/26/000001', 'X1', '2026-03-14', '0001'"});
    add("BillingDetails (SNo, billNo, SubTotal)", {"1, 'A', 2000", "2, 'A', 120.5", "null, 'A', -100", "3, 'A', null",
                                                   "4, 'B', 3000", "5, '001/26/000001', 1500"});
    add("Billing (billNo, PNo, Amountbilled, InvNo, isProcess)",
        {"'B', 'P/0001', 2500, '0201/2026/03', 1", "'C', 'P/0001', 10, null, 0"});
    expect({{"select billno, PNo, SubTotal, amountBilled, isprocess, invNo, coycode from "
             "vwBillingProcessDetailsGrouped order by billno",
             "001/26/000001|X1|1500||0||0001\n"
             "A|P/0001|2020.5||0||0001\n"
             "B|P/0001|3000|2500|1|0201/2026/03|0201"},
            {"select billno, Amountbilled, SubTotal, Diff from vwBillingProcessDetailsGroupedVerify",
             "B|2500|3000|-500"}});
}

TEST_P(Views, BillInfoSumsEveryItemAndTakesTheRestFromTheBill) {
    visit("A", "HMO", "0201");
    visit("B");
    makeItem(billing, {.consultID = "A", .price = 1000});
    makeItem(billing, {.consultID = "A", .price = 40, .qty = 6, .capitated = "YES"});
    add("Billing (billNo, Amountbilled, AmountPaid)", {"'A', 1000, null"});
    EXPECT_EQ(rows("select consultID,amountGen,Amountbilled,AmountPaid,AmountBal from vwbillInfo order by consultID"),
              "A|1240|1000|0|1000\nB||0|0|0");
}

TEST_P(Views, ABalanceIsDueOnAPrivateBillInEitherDirection) {
    const struct {
        const char* category;
        const char* billed;
        const char* paid;
        const char* due; ///< "" where the bill is settled or not private
    } cases[] = {
        {"PRIVATE", "1000", "400", "600"},   {"PRIVATE", "1000", "1000", ""}, {"PRIVATE", "1000", "1200", "-200"},
        {"PRIVATE", "1000", "null", "1000"}, {"private", "5", "0", "5"},      {"PRIVATE", "0.3", "0.1+0.2", ""},
        {"PRIVATE", "0.02", "0.01", "0.01"}, {"HMO", "1000", "0", ""},        {"COMPANY", "1000", "0", ""}};
    int number = 0;
    for (const auto& test : cases) {
        const QString bill = QStringLiteral("B%1").arg(++number);
        visit(bill.toUtf8(), test.category);
        billing.run(QStringLiteral("insert into Billing (billNo, PNo, bdate, Amountbilled, AmountPaid) values ('%1', "
                                   "'P/0001', '2026-03-14', %2, %3)")
                        .arg(bill, test.billed, test.paid));
        for (const char* view : {"AmountDue from qryBillingBalanceDueForPrivate", "AmountDue from qryBillingBalanceDue",
                                 "Balance from qryhBillingbalanceForPrivate"})
            EXPECT_EQ(scalar(QStringLiteral("select %1 where billNo='%2'").arg(view, bill)), test.due)
                << view << " of " << test.category << " billed " << test.billed << " paid " << test.paid;
    }
    EXPECT_EQ(rows("select fullName, clientName, Date from qryBillingBalanceDueForPrivate where billNo='B1'"),
              "ADEYEMI BOLA||2026-03-14");
}

TEST_P(Views, AnItemIsBilledByItsVisitsCategory) {
    makePatient(billing, {.pno = "P/0002", .surname = "OKON", .category = "HMO", .client = "0201"});
    makeVisit(billing, {.consultID = "A", .pno = "P/0002", .category = "MTHLY", .client = "0102", .referal = "YES"});
    visit("B");
    billing.run("update hRecords set clientCat=null where consultID='B'");
    add("BillAccum (consultID, PNo, drgName, usage, dosage, SubTotal, coyName, billTo)",
        {"'A', 'P/0002', 'A1', '2 TDS', null, 5, '0102', '0102'", "'B', null, 'B1', '', '1 OD', 6, null, null",
         "'GONE', null, 'C1', null, null, 7, null, null"});
    expect({
        {"select ConsultID, PNo, Service, ClientCat, Referal, Dosage, Subtotal, CoyName, BillTo, AttendedTo from "
         "qryBillAccum order by ConsultID",
         "A|P/0002|A1|MTHLY|YES|2 TDS|5|0102|0102|0\n"
         "B|P/0001|B1||NO|1 OD|6|||0\n"
         "GONE||C1||||7|||0"}, // the client columns give the client's id, and an item outlives its visit
        {"select Service from qryBillAccum where consultid='B' and ClientCat not in ('HMO','PHIS','NHIS') and SNo not "
         "in (Select SNo from BillingDetails)",
         "B1"} // a visit without a category is charged
    });
}

TEST_P(Views, TheListsGiveOneRowAVisit) {
    visit("A");
    visit("B", "HMO", "0201");
    visit("C");
    visit("D");
    for (const char* consultID : {"A", "A", "B", "D"})
        makeConsultation(billing, {.consultID = consultID});
    makeConsultation(billing, {.consultID = "C", .finished = false});
    billing.run("update hRecords set BillDate='2026-03-14' where consultID='D'");
    billing.run("delete from hRetainership where retainID='0201'");
    add("hAdmission (consultID, PNo, admdate, DischDate, wardid)",
        {"'A', 'P/0001', '2026-03-10', '2026-03-12', 'W1'", "'A', 'P/0001', '2026-03-12', null, 'W2'",
         "'D', 'P/0001', '2026-03-10', '2026-03-12', null"});
    expect({
        {"select ConsultID, Fullname, Client, Debt from vwhConsultingVisitsForBilling where date='2026-03-14' order by "
         "ConsultID",
         "A|ADEYEMI BOLA|PRIVATE PATIENTS|0\n"
         "B|ADEYEMI BOLA||0"}, // finished by a doctor, not billed, also of a client that is gone
        {"select consultID, isbilled, coyname, retainID from vwhConsultingVisitsList order by consultID",
         "A|0|PRIVATE PATIENTS|0001\nB|0||0201\nC|0|PRIVATE PATIENTS|0001\nD|1|PRIVATE PATIENTS|0001"},
        {"select consultID from vwhConsultingVisitsAdmission order by consultID",
         "A\nD"} // a bill that a deposit made bears no discharge
    });
    add("Billing (billNo, DischDate)", {"'D', '2026-03-14'"});
    expect({{"select consultID from vwhConsultingVisitsAdmission", "A"}, // D was discharged and billed
            {"select admdate, DischDate from vwAdmissionAndDischargeInfo where consultID='A'",
             "2026-03-12|"}, // the last stay counts
            {"select wardid from qryhAdmission where consultID='A'", "W2"},
            {"select consultID from vwhConsultingVisits", "B"}, // a private patient needs no approval
            {"select consultID from qryhVisitsOffline order by consultID", "A\nB\nC"},
            {"select count(*) as n from vwhConsultingDetailsForBillingAlt where consultID='A'", "2"}});
}

TEST_P(Views, AVisitWithoutDoctorOrClientCanBePriced) {
    makePatient(billing, {.pno = "P/0002", .surname = "OKON", .firstname = "", .category = "HMO", .client = "0201"});
    makeVisit(billing, {.consultID = "A", .pno = "P/0002", .category = "HMO", .referal = "YES"});
    billing.run("update hRecords set coyName=null where consultID='A'");
    billing.run("update hPatients set DOB='1990-06-01' where PNo='P/0002'");
    expect({{"select fullName, clientcat, ref, retainID, RetainCode, Company, Age, treatedby from "
             "vwhConsultingDetailsForBillingAlt where consultID='A'",
             "OKON|HMO|YES|0201|0201|CLEARWATER HMO|36|"}, // a visit that names no client is its patient's client's
            {"select clientcatID, retainID, RetainName from qryhVisitsForAttend where consultid='A'",
             "HMO|0201|CLEARWATER HMO"}});
}

TEST_P(Views, ATemplatePriceStandsBesideTheItemsMaster) {
    add("DrugNHIS (drgName, company, Price, Capitated)", {"'NEW DRUG', '0201', 15, 'YES'"});
    add("labservices (Drgname, drgCatName, coyID)", {"'MALARIA PARASITE', 'PARASITOLOGY', '0201'"});
    add("hServiceNHIS (service, company, Price)", {"'NEW SERVICE', '0201', 5"});
    expect({{"select Drug, LocID, Price, Capitated, Category, revType, UnitsInStock from vwDrugNHIS where coyID='0201' "
             "and Drug in ('NEW DRUG','paracetamol 500mg') order by Drug",
             "NEW DRUG|0001|15|YES|||\n"
             "PARACETAMOL 500MG|0001|40|YES|TABLETS|DRUGS|500"},
            {"select Price, Category, revType from vwLabServiceNHIS where LabItem ='MALARIA PARASITE'and coyID='0201'",
             "1200|PARASITOLOGY|LABORATORY"}, // a master row a client does not double the price
            {"select Price, Category from vwServiceNHIS where service ='NEW SERVICE'   and coyID='0201'", "5|"}});
}

TEST_P(Views, DebtsStandAsTheScreensAskForThem) {
    makePatient(billing, {.pno = "P/0002", .surname = "OKON", .debt = -1500.5});
    makePatient(billing, {.pno = "P/0003", .surname = "PAM", .debt = 200});
    billing.run("update hPatients set DebtBF=null where PNo='P/0001'");
    expect({{"SELECT PNo, debtBF FROM qryhFullnameHosp order by abs(debtBF) desc",
             "P/0002|1500.5\nP/0003|-200\nP/0001|0"}, // a debt report shows what is owed as plus
            {"select debt from qryhfullname where pno='P/0002'", "-1500.5"},
            {"select debt from vwDebtInfoForPatUnionGrouped where pno='P/0002'", "-1500.5"}});
}

/// A sum of doubles may miss nothing by a hair; nobody owes a hair.
TEST_P(Views, LessThanHalfAKoboIsNoDebt) {
    visit("A");
    add("hconsulting (consultID, attendedto)", {"'A', 1"});
    add("BillingDetails (billNo, SubTotal)", {"'A', 100"});
    add("Billing (billNo, PNo, AmountPaid)", {"'A', 'P/0001', 100"});
    const std::pair<const char*, bool> cases[] = {
        {"-0.0000000000018", true}, {"0.0049", true}, {"-0.0051", false}, {"0.01", false}};
    for (const auto& [amount, nothing] : cases) {
        billing.run(QStringLiteral("update hPatients set DebtBF=%1").arg(amount));
        billing.run(QStringLiteral("update Billing set Amountbilled=100 - (%1)").arg(amount));
        for (const char* column :
             {"Debt from vwhpatients", "Debt from qryhfullname", "debtBF from qryhFullnameHosp",
              "Debt from vwDebtInfoForPatUnionGrouped", "debt from vwDebtInfo",
              "Debt from vwhConsultingVisitsForBilling", "AmountBal from vwbillInfo", "Balance from vwBilling",
              "AmountDue from qryBillingBalanceForPrivate", "Diff from vwBillingProcessDetailsGroupedVerify"})
            EXPECT_EQ(scalar(QStringLiteral("select %1").arg(column)) == "0", nothing) << column << " of " << amount;
    }
}

/// A receipt may be what saves a bill: its lines are enough for Receipt Entry to offer it.
TEST_P(Views, ABillOfWhichOnlyTheLinesAreThereIsDue) {
    visit("A");
    visit("B", "HMO", "0201");
    add("BillingDetails (billNo, SubTotal)", {"'A', 2000.5", "'B', 700"});
    add("Payments (ReceiptNo, billNo, AmountPaid)", {"'1', 'A', 500"});
    EXPECT_EQ(rows("select distinct Date,billno,pno,amountbilled,currentDebt,prevDebt,AmountPaid,bdate from "
                   "qryBillingBalanceDueForPrivate"),
              "2026-03-14|A|P/0001|2000.5|1500.5|0|500|");
    billing.run("update Payments set AmountPaid=2000.5");
    EXPECT_EQ(rows("select billNo from qryBillingBalanceDueForPrivate"), "");
}

TEST_P(Views, AReceiptCountsOnceWhoeverPaid) {
    visit("A");
    add("hRecordsPublic (consultID, PNo, recDate, coyName)", {"'001/26/000001', 'X1', '2026-03-14', '0001'"});
    add("hPatientsPublic (PNo, pSurname, pfirstname)", {"'X1', 'EZE', 'IFY'", "'X1', 'EZE', 'IFY'"});
    add("Payments (ReceiptDate, ReceiptNo, billNo, PNo, Amountbilled, AmountPaid)",
        {"'2026-03-14', '1', 'A', 'P/0001', 2000, 1500", "'2026-03-14', '2', '001/26/000001', 'X1', 1000, 1000",
         "'2026-03-14', '3', 'A', 'P/0001', -2000, -1500"});
    for (const char* view :
         {"AmountPaid from qrypayments", "AmountPaid from qryhBillingReceipt", "Income from qryhBillingIncome"})
        EXPECT_EQ(rows(QStringLiteral("select receiptNo, Fullname, %1 order by receiptNo").arg(view)),
                  "1|ADEYEMI BOLA|1500\n2|EZE IFY|1000\n3|ADEYEMI BOLA|-1500")
            << view;
    expect({{"select receiptNo, Fullname from qryhBillingReceiptPublic", "2|EZE IFY"},
            {"select receiptNo from qryreceiptCancelled where receiptdate ='2026-03-14'", "3"},
            {"select rctCode, ClinicID from vwClinicCode where consultID='A'", "OP|OPD"}});
}

TEST_P(Views, TodayIsTheServersDay) {
    visit("OLD");
    visit("OLDOPEN");
    visit("TODAY");
    billing.run("update hRecords set attendedto=1 where consultID<>'OLDOPEN'");
    billing.run("update hRecords set recDate='2026-03-01' where consultID<>'TODAY'");
    add("hreferal (ConsultID, PNo, ApptDate, Remarks)",
        {"'OLD', 'P/0001', '2026-03-14', 'FOLLOW-UP'", "'OLD', 'P/0001', '2026-03-15', 'REVIEW'"});
    makePatient(billing, {.pno = "P/0002", .surname = "OKON", .expiry = QDate(2026, 3, 14)});
    makePatient(billing, {.pno = "P/0003", .surname = "PAM", .expiry = QDate(2026, 3, 15)});

    expect({{"select ConsultID from qryhVisitsForToday order by ConsultID", "OLDOPEN\nTODAY"},
            {"select Remarks from qryhAppt where pno='P/0001' and attendedto =0", "FOLLOW-UP"},
            {"SELECT pNo FROM qryhCardNotExpired order by psurname",
             "P/0001\nP/0003"}, // a card is no longer valid on its last day
            {"select Pno, expired from vwhpatients order by Pno", "P/0001|0\nP/0002|1\nP/0003|0"}});
}

TEST_P(Views, AUserIsSeenOncePerRole) {
    add("ApplicationUsers (Username, Fullname, AccountStatus)", {"'new.user', 'NEW USER', 'Enabled'"});
    add("UserRoles (RoleID, Username)", {"101, 'NEW.USER'"});
    expect({{"SELECT EmpID, Fullname,username,loginrole,hname,hospID FROM vwUsers WHERE Username = 'AMINA.B'  and "
             "loginrole='BILLING'",
             "E001|AMINA BELLO|amina.b|BILLING|HALDEN HOSPITAL|001"},
            {"select hospID, loginrole from vwUsers where username='new.user'",
             "001|BILLING"}, // a user without a hospital belongs to the first
            {"select count(*) as n from vwUsers", "3"}});
}

TEST_P(Views, ABillBelongsToTheMonthOfItsVisitsBillDate) {
    visit("A", "MTHLY", "0102");
    visit("B", "HMO", "0201");
    visit("C", "HMO", "0201");
    visit("D", "HMO", "0201");
    visit("E");
    visit("F");
    billing.run("update hRecords set BillDate='2026-03-31' where consultID in ('A', 'B', 'E', 'F')");
    billing.run("update hRecords set BillDate='2026-04-01', coyName=null where consultID='C'");
    add("Billing (billNo, Amountbilled, isProcess, InvNo)",
        {"'A', 100, 0, null", "'B', 70, 1, '0201/2026/03'", "'C', 5, 0, '0'", "'D', 5, 0, null", "'E', 0, 0, null"});
    add("BillingDetails (SNo, billNo, SubTotal, BillHead)",
        {"1, 'A', 60.1, ''", "2, 'A', 39.9, 'DRUGS'", "3, 'C', 5, null"});
    add("hApprvCode (consultID, ApprvCode)", {"'A', 'FIRST'", "'A', 'SECOND'"});
    expect({{"select BillNo, batchNo, batchVal, retainCode, CoyName, ApprvCode, isProcess, invNo from "
             "vwBillingProcessAll order by BillNo",
             "A|2026/03|202603|0102|HARMONY MILLS LTD|FIRST|0|\n"
             "B|2026/03|202603|0201|CLEARWATER HMO||1|0201/2026/03\n"
             "C|2026/04|202604||||0|0\n" // of no client: seen, and in nobody's invoice
             "E|2026/03|202603|0001|PRIVATE PATIENTS||0|"},
            {"select billNo from vwBillingProcess where batchNo='2026/03' order by billno", "A\nE"},
            {"select billNo from vwBillingProcess where batchNo='2026/03' and retainCode='0102'", "A"},
            {"select billNo from vwBillingProcessBatch where batchNo='2026/04'", "C"},
            {"select BillNo from vwBillingProcessDetailsGroupedVerifyDiff where batchNo='2026/03'", "B"},
            {"select SNO, Company from vwBillHeadingWithNull where batchNo='2026/03'", "1|HARMONY MILLS LTD"}});
}

ORVANE_ON_EACH_ENGINE(Views);

} // namespace orvane
