#include "data/DataError.h"
#include "data/rows/Transaction.h"
#include "support/Print.h"
#include "support/Rows.h"
#include "support/TestHome.h"

namespace orvane {

namespace {

void addPayment(Connection& connection, int number) {
    connection.execute(Sql("insert into Payments (ReceiptNo, AmountPaid) values ('")
                       << QString::number(number) << "', " << number << ")");
}

} // namespace

class TransactionTest : public EngineTest {};

TEST_P(TransactionTest, KeepsWhatWasCommittedAndNothingElse) {
    {
        Transaction transaction(billing);
        addPayment(billing, 1);
        EXPECT_TRUE(billing.inTransaction());
        EXPECT_EQ(data.openTransactions(), 1);
        transaction.commit();
        EXPECT_EQ(data.openTransactions(), 0);
        transaction.rollback();
    }
    try {
        Transaction transaction(billing);
        addPayment(billing, 4);
        throw std::runtime_error("a fault of the screen");
    } catch (const std::runtime_error&) {
    }
    EXPECT_EQ(scalar("select count(*) from Payments"), "1");
    EXPECT_EQ(data.openTransactions(), 0);
}

TEST_P(TransactionTest, SeveralChangesAreAllOrNone) {
    const QString hostile = "o'ne $all$ $xall$; \\' end";
    const auto named = [](const QString& patient) {
        return Sql("insert into Patients (PNo,fullname) values('P") << patient.size() << "','" << patient << "')";
    };
    {
        Transaction transaction(billing);
        billing.executeAll({});
        billing.executeAll({named("a"), named(hostile), Sql("update Patients set fullname='b' where PNo='P1'")});
        transaction.commit();
    }
    EXPECT_EQ(scalar("select fullname from Patients where PNo='P1'"), "b");
    EXPECT_EQ(scalar("select fullname from Patients where PNo<>'P1'"), hostile);
    Transaction transaction(billing);
    EXPECT_THROW(billing.executeAll({named("abc"), named("x"), named("abcd")}), DataError);
    EXPECT_THROW(transaction.commit(), DataError);
    EXPECT_EQ(scalar("select count(*) from Patients"), "2");
}

TEST_P(TransactionTest, AFailedStatementPoisonsIt) {
    addPayment(billing, 1);
    Recordset lost(billing, Sql("select * from Payments"));
    lost.set("AmountPaid", 5);
    billing.run("update Payments set AmountPaid=77");
    for (const char* statement : {"insert into Payments (NoSuchColumn) values (1)", "select * from NoSuchTable",
                                  "insert into hPatients (PNo, psurname) values ('P1', null)", "select 'not ended",
                                  "the update of a row that was changed since"}) {
        SCOPED_TRACE(statement);
        Transaction transaction(billing);
        addPayment(billing, 2);
        if (QLatin1StringView(statement).startsWith(QLatin1StringView("the ")))
            EXPECT_THROW(lost.update(), DataError);
        else
            EXPECT_THROW(billing.run(statement), DataError);
        EXPECT_THROW(addPayment(billing, 3), DataError) << "a later statement";
        EXPECT_THROW(billing.run("select 1 as x"), DataError) << "a later question";
        EXPECT_THROW(transaction.commit(), DataError);
        EXPECT_FALSE(billing.inTransaction());
        EXPECT_EQ(scalar("select sum(AmountPaid) from Payments"), "77");
    }
}

TEST_P(TransactionTest, ACommitWithoutAnAnswerIsLookedUpByItsToken) {
    data.setStatementHook([](const QString& tsql) {
        if (tsql == "transaction committed")
            throw DataError("broken here");
    });
    const auto ticketOf = [this](auto&&... action) {
        try {
            Transaction transaction(billing);
            transaction.commit(action...);
        } catch (const CommitUnknown& fault) {
            return fault.ticket();
        }
        ADD_FAILURE() << "its answer came";
        return CommitTicket();
    };
    const QString letters(49, u'O'), longText = letters + QString::fromUtf8("\U0001F600");
    const CommitTicket saved = ticketOf(SavedAction{"amina.b", longText, "frmReceiptTemp", "001OFL0000001", 1500.5});
    EXPECT_EQ(data.outcomeOf(saved), CommitOutcome::Saved);
    EXPECT_EQ(data.outcomeOf({saved.connectionString, "0"}), CommitOutcome::NotSaved);
    EXPECT_EQ(data.outcomeOf(ticketOf()), CommitOutcome::Unknown) << "it left no token";
    EXPECT_EQ(rowsOf(billing, "select username,workstation,action,document,amount from SavedActions"),
              "amina.b|" + letters + "|frmReceiptTemp|001OFL0000001|1500.5")
        << "cut, no character in two";
    EXPECT_EQ(Recordset(billing, Sql("select savedAt from SavedActions")).date("savedAt"), QDate::currentDate());
}

TEST_P(TransactionTest, NeverWaitsForItsOwnWorkstation) {
    Connection other = data.open(TestHome::billing());
    Transaction transaction(billing);
    addPayment(billing, 1);
    EXPECT_THROW(Transaction second(other), DataError);
    if (GetParam() == Engine::Sqlite)
        EXPECT_THROW(addPayment(other, 2), DataError);
    EXPECT_EQ(other.run("select count(*) from Payments").text(0), "0") << "sees what is committed";
    // The other database has a gate of its own.
    Connection accounting = data.open(TestHome::accounting());
    Transaction posting(accounting);
    posting.commit();
    transaction.commit();
    EXPECT_EQ(scalar("select count(*) from Payments"), "1");
}

ORVANE_ON_EACH_ENGINE(TransactionTest);

using TransactionDeathTest = TransactionTest;

TEST_P(TransactionDeathTest, NestingIsAProgrammersError) {
    Transaction transaction(billing);
    EXPECT_DEATH(Transaction inner(billing), "assertion failed");
}

INSTANTIATE_TEST_SUITE_P(On, TransactionDeathTest, ::testing::Values(Engine::Sqlite));

} // namespace orvane
