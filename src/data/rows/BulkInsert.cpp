#include "data/rows/BulkInsert.h"

#include "data/Assert.h"
#include "data/dialect/Translator.h"
#include "data/dialect/Value.h"
#include "data/engine/Physical.h"

#include <exception>

namespace orvane {

namespace {

/// More rows than this no engine takes faster, and SQL Server not at all.
constexpr int rowsInStatement = 500;

} // namespace

BulkInsert::BulkInsert(Connection& connection, const QString& table)
    : m_connection(connection), m_table(Catalog::instance().table(table, connection.physical()->schema)) {
    ORVANE_ASSERT(m_table);
}

BulkInsert::~BulkInsert() {
    ORVANE_ASSERT(m_waiting == 0 || std::uncaught_exceptions() > 0);
}

void BulkInsert::begin(const RowValues& first) {
    QStringList names;
    for (const auto& [name, value] : first) {
        const Column* column = m_table->column(QString::fromLatin1(name));
        ORVANE_ASSERT(column);
        m_heads.append(name);
        m_columns.append(*column);
        names.append(QStringLiteral("[%1]").arg(column->name));
    }
    m_head = translate(QStringLiteral("insert into [%1] (%2) values ").arg(m_table->name, names.join(u',')),
                       m_connection.physical()->engine) +
             u' ';
}

void BulkInsert::add(const RowValues& row) {
    if (m_columns.isEmpty())
        begin(row);
    ORVANE_ASSERT(row.size() == m_columns.size());
    QString text = m_waiting == 0 ? m_head : ",";
    for (qsizetype i = 0; i < row.size(); ++i) {
        const Column& column = m_columns.at(i);
        ORVANE_ASSERT(row.at(i).first == m_heads.at(i) || qstrcmp(row.at(i).first, m_heads.at(i)) == 0);
        text += i == 0 ? u'(' : u',';
        text += valueLiteral(valueForColumn(row.at(i).second, column.name, column.kind));
    }
    m_text += text + u')';
    if (++m_waiting == rowsInStatement)
        flush();
}

void BulkInsert::flush() {
    if (m_waiting == 0)
        return;
    ORVANE_ASSERT(m_connection.inTransaction());
    PhysicalConnection& physical = *m_connection.physical();
    physical.sendNative(physical.engine == Engine::SqlServer ? translate(m_text, physical.engine) : m_text);
    m_text.truncate(0); // keeps its memory
    m_waiting = 0;
}

} // namespace orvane
