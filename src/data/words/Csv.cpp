#include "data/words/Csv.h"

#include <QStringDecoder>

namespace orvane {

CsvReader::CsvReader(QByteArray content) : m_content(std::move(content)) {
    if (m_content.startsWith("\xEF\xBB\xBF"))
        m_at = 3;
}

bool CsvReader::fail(int line, int column, const QString& message) {
    m_fault = CsvFault{line, column, message};
    return false;
}

bool CsvReader::atLineEnd() const {
    const char c = m_content.at(m_at);
    return c == '\n' || (c == '\r' && m_at + 1 < m_content.size() && m_content.at(m_at + 1) == '\n');
}

std::optional<CsvRecord> CsvReader::next() {
    while (m_at < m_content.size() && atLineEnd()) {
        m_at += m_content.at(m_at) == '\r' ? 2 : 1;
        ++m_line;
    }
    if (m_fault || m_at >= m_content.size())
        return std::nullopt;
    CsvRecord record;
    record.line = m_line;
    m_recordEnded = false;
    while (!m_recordEnded)
        if (!readField(record))
            return std::nullopt;
    return record;
}

bool CsvReader::readField(CsvRecord& record) {
    const int line = m_line;
    const int column = int(record.fields.size()) + 1;
    CsvField field;
    QByteArray bytes;
    field.quoted = m_at < m_content.size() && m_content.at(m_at) == '"';
    if (!field.quoted)
        readPlain(bytes);
    else if (!readQuoted(bytes, column))
        return false;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    field.text = decoder(bytes);
    if (decoder.hasError())
        return fail(line, column, "the text is not UTF-8");
    if (field.text.contains(QChar(u'\0')))
        return fail(line, column, "the text holds a null character");
    if (!field.quoted && field.text.contains(u'"'))
        return fail(line, column, "a quote stands in a field that does not begin with one");
    record.fields.append(field);
    return endOfField(record);
}

void CsvReader::readPlain(QByteArray& bytes) {
    const qsizetype start = m_at;
    while (m_at < m_content.size() && m_content.at(m_at) != ',' && !atLineEnd())
        ++m_at;
    bytes = m_content.mid(start, m_at - start);
}

bool CsvReader::readQuoted(QByteArray& bytes, int column) {
    const int line = m_line;
    for (++m_at; m_at < m_content.size(); ++m_at) {
        const char c = m_content.at(m_at);
        const bool doubled = c == '"' && m_at + 1 < m_content.size() && m_content.at(m_at + 1) == '"';
        if (c == '"' && !doubled) {
            ++m_at;
            return true;
        }
        if (doubled)
            ++m_at;
        if (c == '\n')
            ++m_line;
        bytes.append(c);
    }
    return fail(line, column, "the quote is never closed");
}

bool CsvReader::endOfField(CsvRecord& record) {
    if (m_at >= m_content.size()) {
        m_recordEnded = true;
    } else if (m_content.at(m_at) == ',') {
        ++m_at;
    } else if (atLineEnd()) {
        m_at += m_content.at(m_at) == '\r' ? 2 : 1;
        ++m_line;
        m_recordEnded = true;
    } else {
        return fail(m_line, int(record.fields.size()), "text follows the closing quote");
    }
    return true;
}

} // namespace orvane
