#include "data/engine/RowReader.h"

namespace orvane {

namespace {

constexpr qsizetype mostRowsAPage = 5000; ///< what comes over the net at once

} // namespace

RowReader::RowReader(std::shared_ptr<PhysicalConnection> connection, const SqlParts& tsql)
    : m_connection(std::move(connection)) {
    try {
        OpenQuery opened = m_connection->open(tsql);
        m_query = std::move(opened.query);
        m_facts = std::move(opened.facts);
        m_columns = columnsOf(*m_query, m_connection->engine);
    } catch (...) {
        giveBack(std::move(m_connection));
        throw;
    }
}

RowReader::~RowReader() {
    end();
}

QStringList RowReader::heads() const {
    return m_facts->heads(m_columns.names);
}

void RowReader::read(Values& values, qsizetype rows) {
    if (m_fault)
        std::rethrow_exception(m_fault);
    try {
        for (; rows > 0 && !atEnd(); rows -= mostRowsAPage)
            readPage(values, std::min(rows, mostRowsAPage));
    } catch (...) {
        m_fault = std::current_exception();
        end();
        throw;
    }
}

void RowReader::readPage(Values& values, qsizetype rows) {
    if (m_connection->engine == Engine::Postgresql)
        m_query = m_connection->fetch(rows);
    QSqlError fault;
    if (readValues(*m_query, m_columns, values, rows, fault) == rows)
        return;
    m_connection->requireAllRead(fault, m_query->lastQuery());
    end();
}

void RowReader::end() noexcept {
    if (atEnd())
        return;
    m_query.reset();
    if (m_connection->engine == Engine::Postgresql)
        m_connection->closeCursor();
    giveBack(std::move(m_connection));
}

} // namespace orvane
