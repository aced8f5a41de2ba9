// A statement outside a transaction that PostgreSQL has undone for the sake of another one is sent again, and writes
// once.
#include "data/engine/ServerList.h"
#include "data/rows/Recordset.h"
#include "data/rows/Transaction.h"
#include "support/Hospital.h"
#include "support/TestHome.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

namespace orvane {

namespace {

/// Patients P/1 and P/2 in a database of PostgreSQL, and a session on it in the server's own words.
class Resend : public ::testing::Test {
protected:
    void SetUp() override {
        if (!testEngines().contains(Engine::Postgresql))
            GTEST_SKIP() << "needs ORVANE_TEST_PG";
        m_home = std::make_unique<TestHome>(Engine::Postgresql);
        m_data = std::make_unique<DataSource>(m_home->folder());
        Connection billing = open();
        for (const char* pno : {"P/1", "P/2"})
            makePatient(billing, {.pno = pno});
        const ServerEntry server = ServerList(m_home->folder()).entry("SERVER");
        m_beside = QSqlDatabase::addDatabase("QPSQL", "beside");
        m_beside.setHostName(server.host);
        m_beside.setPort(server.port);
        m_beside.setUserName("zorva");
        m_beside.setDatabaseName(server.prefix + "dunmarch");
        ASSERT_TRUE(m_beside.open()) << m_beside.lastError().text().toStdString();
    }
    void TearDown() override {
        m_beside = QSqlDatabase();
        QSqlDatabase::removeDatabase("beside");
        m_data.reset();
        m_home.reset();
    }

    Connection open() { return m_data->open(TestHome::billing()); }

    QString native(const QString& text) {
        QSqlQuery query(m_beside);
        EXPECT_TRUE(query.exec(text)) << query.lastError().text().toStdString();
        return query.next() ? query.value(0).toString() : QString();
    }

    /// Has this run before each update of a patient's row.
    void beforeEachUpdate(const QString& body) {
        native("create or replace function meddle() returns trigger language plpgsql as $$ begin " + body +
               " return new; end $$");
        native("create or replace trigger meddle before update on hPatients for each row execute function meddle()");
    }

    std::unique_ptr<TestHome> m_home;
    std::unique_ptr<DataSource> m_data;
    QSqlDatabase m_beside;
};

void addOne(Connection& connection) {
    connection.execute(Sql("update hPatients set DebtBF=DebtBF+1"));
}

/// The words of the fault; empty: none.
QString faultOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const DataError& fault) {
        return fault.description();
    }
    return {};
}

} // namespace

TEST_F(Resend, IsForWhatTheServerHasUndoneOnly) {
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
    native("create sequence meddled");
    for (const auto& one : cases) {
        SCOPED_TRACE(testing::Message() << one.code << " " << one.failures << " " << one.inTransaction);
        // A sequence counts on, whatever is undone.
        native("alter sequence meddled restart");
        native("update hPatients set DebtBF=0");
        beforeEachUpdate(QString("if new.PNo = 'P/2' and nextval('meddled') <= %1 then raise exception 'meddled' "
                                 "using errcode = '%2'; end if;")
                             .arg(one.failures)
                             .arg(one.code));
        Connection billing = open();
        const qint64 before = m_data->statementsSent();
        const QString fault = faultOf([&] {
            if (!one.inTransaction) {
                addOne(billing);
                return;
            }
            Transaction transaction(billing);
            addOne(billing);
            transaction.commit();
        });
        EXPECT_TRUE(fault.contains(one.fault) && fault.isEmpty() == (*one.fault == '\0')) << fault.toStdString();
        EXPECT_EQ(m_data->statementsSent() - before, one.sent);
        native("drop trigger meddle on hPatients");
        EXPECT_EQ(native("select string_agg(DebtBF::text, ' ') from hPatients"), fault.isEmpty() ? "1 1" : "0 0");
    }
}

} // namespace orvane
