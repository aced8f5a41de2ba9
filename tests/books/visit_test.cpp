// Visits, their consultation, and their move to another client.
#include "BooksTest.h"

#include "books/Client.h"
#include "books/Consultation.h"
#include "books/Visit.h"

namespace orvane {
namespace {

class VisitRules : public BooksTest {
protected:
    void SetUp() override {
        BooksTest::SetUp();
        run("delete from hRecords");
        run("delete from hPatients");
    }
    /// "saved", or the words of the refusal.
    template <typename T>
    QString told(const std::function<Given<T>(Books&)>& step) {
        const Given<T> given = save<T>(step);
        return given ? "saved" : refusalText(given.refusal());
    }
    QString enter(const Visit& entered, const QString& followUpOf = {}) {
        return told<QString>([&](Books& books) {
            return enterVisit(books, entered, QDateTime(QDate(2026, 3, 15), QTime(9, 30)), followUpOf);
        });
    }
    const Visit visit{.date = QDate(2026, 3, 14),
                      .pno = "P/0001",
                      .clientID = "0201",
                      .category = "NHIS",
                      .clinic = "OPD",
                      .purpose = "CONSULTATION",
                      .referral = "NO",
                      .officer = "E001"};
};
ORVANE_ON_EACH_ENGINE(VisitRules);

TEST_P(VisitRules, IdsGoOnFromWhatIsThere) {
    const struct {
        QStringList visits;
        const char* next;
    } cases[] = {
        {{}, "001OFL0000001"},
        {{"OFL0000041"}, "001OFL0000042"},
        {{"OFL0000041", "001OFL0000003"}, "001OFL0000004"},
        {{"002OFL0000900", "001OFL0000009", "001OFL0000010"}, "001OFL0000011"},
        {{"001OFL9999999"}, "001OFL0000000"},
        {{"001OFL0000012A"}, "001OFL0000013"},
    };
    for (const auto& ids : cases) {
        billing.run("delete from hRecords");
        for (const QString& id : ids.visits)
            makeVisit(billing, {.consultID = id});
        EXPECT_EQ(genConsultID(billing, "001"), ids.next);
    }
    // What deleted visits have left behind is not the next visit's.
    billing.run("delete from hRecords");
    makeItem(billing);
    billing.run("insert into Billing (billNo, PNo) values ('001OFL0000002', 'P/0001')");
    EXPECT_EQ(genConsultID(billing, "001"), "001OFL0000003");
}

TEST(Consultation, GoesByPurpose) {
    const struct {
        double full;
        const char* purpose;
        double fee;
    } cases[] = {{2000, "CONSULTATION", 2000}, {2000.75, "", 2000.75},   {2000, "REVIEW", 0}, {2000, "FOLLOW-UP", 1000},
                 {1501.5, "FOLLOW-UP", 751},   {1501, "FOLLOW-UP", 750}, {0, "FOLLOW-UP", 0}};
    for (const auto& charge : cases)
        EXPECT_EQ(consultationFee(charge.full, charge.purpose), charge.fee) << charge.full << charge.purpose;
}

TEST_P(VisitRules, AVisitIsChargedAndTakesWhatWaited) {
    makePatient(billing);
    makeItem(billing, {.consultID = "", .name = "MALARIA PARASITE"});
    makeItem(billing, {.consultID = "", .pno = "P/0002"});
    billing.run("insert into hreferal (ConsultID, PNo, attendedTo) values ('OLD', 'P/0001', 0)");
    EXPECT_EQ(enter(visit, "OLD"), "saved");
    EXPECT_EQ(recorded, "001OFL0000001|2000");
    EXPECT_EQ(rows("select consultID, PNo, recDate, htime, clientCat, clinicType, Remarks, referal, empID, coyName, "
                   "attendedto, exitDate from hRecords"),
              "001OFL0000001|P/0001|2026-03-14|09:30|NHIS|OPD|CONSULTATION|NO|E001|0201|0|");
    EXPECT_EQ(rows("select dtDate, drgName, Price, Qty, SubTotal, PNo, billType, attendedto from BillAccum where "
                   "consultID='001OFL0000001' and drgName='CONSULTATION'"),
              "2026-03-15|CONSULTATION|2000|1|2000|P/0001|SERVICE|0");
    EXPECT_EQ(rows("select count(*), sum(case when consultID='' then 1 else 0 end) from BillAccum"), "3|1");
    EXPECT_EQ(rows("select clientcatID, ref from hPatients"), "NHIS|NO");
    EXPECT_EQ(rows("select attendedTo from hreferal"), "1");
    EXPECT_EQ(enter(visit), "Patient Attendance already entered!!! Duplicate not allowed");
    // A closed visit is no hindrance; a clinic without a row charges nothing; without a client there is none.
    billing.run("update hRecords set attendedto=1");
    Visit second = visit;
    second.clinic = "OUT-PATIENT";
    second.clientID.clear();
    EXPECT_EQ(enter(second), "saved");
    EXPECT_EQ(recorded, "001OFL0000002|0");
    EXPECT_EQ(rows("select coyName from hRecords where coyName is not null and consultID='001OFL0000002'"), "");
    EXPECT_EQ(rows("select count(*) from BillAccum"), "3");
}

TEST_P(VisitRules, AChangedOrDeletedVisitLeavesItsItems) {
    makeVisit(billing);
    makeItem(billing);
    const qlonglong recID = scalar("select recID from hRecords").toLongLong();
    const Visit listed = {.date = QDate(2026, 3, 14),
                          .pno = "P/0001",
                          .clientID = {},
                          .category = "PRIVATE",
                          .clinic = "OPD",
                          .purpose = "CONSULTATION",
                          .referral = "NO",
                          .officer = {}};
    const auto change = [&](const Visit& seen) {
        return told<Saved>([&](Books& books) { return changeVisit(books, recID, seen, visit); });
    };
    const auto remove = [&](const Visit& seen) {
        return told<Saved>([&](Books& books) { return deleteVisit(books, recID, seen); });
    };
    // An old list: the bill was saved since, invoiced since, the visit changed since.
    const QString moved = "This attendance was changed or billed by another user.";
    const auto expectRefused = [&](const Visit& seen, const QString& text) {
        EXPECT_EQ(change(seen), text);
        EXPECT_EQ(remove(seen), text);
        EXPECT_EQ(rows("select clientCat from hRecords"), "PRIVATE");
    };
    run("update hRecords set BillDate='2026-03-14'");
    expectRefused(listed, moved);
    run("update hRecords set BillDate=null");
    run("insert into Billing (billNo, isProcess) values ('001OFL0000001', 1)");
    expectRefused(listed, "This Bill is already processed! to Modify, unProcess the Batch");
    run("delete from Billing");
    Visit other = listed;
    other.category = "HMO";
    expectRefused(other, moved);

    EXPECT_EQ(change(listed), "saved");
    EXPECT_EQ(recorded, "001OFL0000001|0");
    EXPECT_EQ(rows("select clientCat, coyName, exitDate from hRecords"), "NHIS|0201|2026-03-14");
    EXPECT_EQ(remove(visit), "saved");
    EXPECT_EQ(recorded, "001OFL0000001|0");
    EXPECT_EQ(change(visit), "This attendance was deleted by another user.");
    EXPECT_EQ(rows("select count(*), max(Price) from BillAccum"), "1|50");
}

TEST_P(VisitRules, AClientMoveReachesEveryRowOfTheBillOrNone) {
    for (const char* pno : {"P/0001", "P/0002"})
        makePatient(billing, {.pno = pno});
    for (const QString id : {"B1", "B2"}) {
        makeVisit(billing, {.consultID = id});
        makeItem(billing, {.consultID = id});
        run("insert into Billing (billNo, PNo, clientID) values ('" + id + "', 'P/0001', '0001')");
        run("insert into BillingDetails (billNo, coyName, billTo, SubTotal) values ('" + id + "', '0001', '0001', 50)");
    }
    const auto clientsOf = [&](const QString& bill) {
        return rows("select p.coyName, p.clientcatID, v.coyName, v.clientCat, d.coyName, d.billTo, d.SubTotal, "
                    "b.clientID, i.coyName, i.billTo from hRecords v inner join hPatients p on p.PNo=v.PNo inner join "
                    "BillingDetails d on d.billNo=v.consultID inner join Billing b on b.billNo=v.consultID inner join "
                    "BillAccum i on i.consultID=v.consultID where v.consultID='" +
                    bill + "'");
    };
    const auto move = [&] {
        return told<Saved>([](Books& books) {
            return moveToClient(
                books, {.pno = "P/0001", .billNo = "B1", .clientID = "0401", .clientCode = "OH1", .category = "MTHLY"});
        });
    };
    billing.run("update Billing set isProcess=1");
    EXPECT_EQ(move(), "This Bill is already processed! to Modify, unProcess the Batch");
    EXPECT_EQ(clientsOf("B1"), "0001|PRIVATE|0001|PRIVATE|0001|0001|50|0001|0001|0001");
    billing.run("update Billing set isProcess=0");
    EXPECT_EQ(move(), "saved");
    EXPECT_EQ(recorded, "B1|0");
    EXPECT_EQ(clientsOf("B1"), "0401|MTHLY|0401|MTHLY|0401|OH1|50|0401|0401|OH1");
    EXPECT_EQ(clientsOf("B2"), "0401|MTHLY|0001|PRIVATE|0001|0001|50|0001|0001|0001");
    EXPECT_EQ(scalar("select coyName from hPatients where PNo='P/0002'"), "0001");
    EXPECT_EQ(clientName(billing, "0201") + '|' + clientName(billing, "gone"), "CLEARWATER HMO|gone");
}

} // namespace
} // namespace orvane
