// A statement outside a transaction that PostgreSQL has undone for the sake of another one is sent again, and writes
// once.
#include "data/rows/Transaction.h"
#include "support/Hospital.h"
#include "support/Print.h"
#include "support/Rows.h"
#include "support/TestHome.h"

namespace orvane {

TEST(Resend, IsForWhatTheServerHasUndoneOnly) {
    if (!testEngines().contains(Engine::Postgresql))
        GTEST_SKIP() << "needs ORVANE_TEST_PG";
    const struct {
        const char* code;
        int failures; ///< of the first so many times that it is sent
        bool inTransaction;
        int sent;
        const char* fault;
    } cases[] = {
        {"40001", 1, false, 2, ""},
        {"40P01", 1, false, 2, ""},
        {"40P01", 2, false, 3, ""},
        {"40001", 3, false, 3, "in use by another workstation"},
        {"40001", 1, true, 1, "in use by another workstation"}, // what came before it is undone too
        {"40P01", 1, true, 1, "in use by another workstation"},
        {"55P03", 1, false, 1, "in use by another workstation"},
        {"23505", 1, false, 1, "meddled"},
    };
    const TestHome home(Engine::Postgresql);
    DataSource data(home.folder());
    Connection billing = data.open(TestHome::billing());
    for (const char* pno : {"P/1", "P/2"})
        makePatient(billing, {.pno = pno});
    home.onServer("dunmarch", {"create sequence meddled", "grant all on sequence meddled to public"});
    for (const auto& one : cases) {
        SCOPED_TRACE(testing::Message() << one.code << " " << one.failures << " " << one.inTransaction);
        // A sequence counts on, whatever is undone.
        home.onServer(
            "dunmarch",
            {"alter sequence meddled restart", "update hPatients set DebtBF=0",
             QString("create or replace function meddle() returns trigger language plpgsql as $$ begin if new.PNo = "
                     "'P/2' and nextval('meddled') <= %1 then raise exception 'meddled' using errcode = '%2'; end if; "
                     "return new; end $$")
                 .arg(one.failures)
                 .arg(one.code),
             "create or replace trigger meddle before update on hPatients for each row execute function meddle()"});
        const qint64 before = data.statementsSent();
        QString fault;
        try {
            std::optional<Transaction> transaction;
            if (one.inTransaction)
                transaction.emplace(billing);
            billing.execute(Sql("update hPatients set DebtBF=DebtBF+1"));
            if (transaction)
                transaction->commit();
        } catch (const DataError& refused) {
            fault = refused.description();
        }
        EXPECT_TRUE(fault.contains(one.fault) && fault.isEmpty() == (*one.fault == '\0')) << fault.toStdString();
        EXPECT_EQ(data.statementsSent() - before, one.sent);
        home.onServer("dunmarch", {"drop trigger meddle on hPatients"});
        EXPECT_EQ(rowsOf(billing, "select DebtBF from hPatients"), fault.isEmpty() ? "1\n1" : "0\n0");
    }
}

} // namespace orvane
