#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>
#include <optional>

namespace orvane {

/// One field of a CSV record. An empty field without quotes states no value; "" in quotes states the empty text.
struct CsvField {
    QString text;
    bool quoted = false;
    bool isNoValue() const { return text.isEmpty() && !quoted; }
};

struct CsvRecord {
    int line = 0; ///< where the record begins, counted from 1
    QVector<CsvField> fields;
};

/// What is wrong with a CSV file and where.
struct CsvFault {
    int line = 0;
    int column = 0; ///< counted from 1; 0 when the fault is of the whole record
    QString message;
};

/// Reads RFC 4180 CSV in UTF-8: commas, fields in double quotes with "" for a quote, CRLF or LF line ends, a byte order
/// mark at the start. Blank lines are skipped. Any bytes are safe to hand in.
class CsvReader {
public:
    explicit CsvReader(QByteArray content);

    /// The next record; none at the end of the file or at a fault.
    std::optional<CsvRecord> next();
    const std::optional<CsvFault>& fault() const { return m_fault; }

private:
    bool readField(CsvRecord& record);
    bool readQuoted(QByteArray& bytes, int column);
    void readPlain(QByteArray& bytes);
    bool endOfField(CsvRecord& record);
    bool fail(int line, int column, const QString& message);
    bool atLineEnd() const;

    QByteArray m_content;
    qsizetype m_at = 0;
    int m_line = 1;
    bool m_recordEnded = false;
    std::optional<CsvFault> m_fault;
};

} // namespace orvane
