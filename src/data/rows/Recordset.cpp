#include "data/rows/Recordset.h"

#include "data/Assert.h"
#include "data/dialect/Value.h"
#include "data/engine/Physical.h"
#include "data/engine/RowReader.h"
#include "data/rows/RecordsetPrivate.h"

#include <QRegularExpression>

namespace orvane {

namespace {

/// The table of "select * from T where 1=2", which is opened only to add a row; null for any other statement.
const Table* tableOfEmptyRows(const QString& tsql, const QString& database) {
    static const QRegularExpression form("^select\\s+\\*\\s+from\\s+(\\w+)\\s+where\\s+1\\s*=\\s*2\\s*$",
                                         QRegularExpression::CaseInsensitiveOption);
    if (!QStringView(tsql).trimmed().endsWith(u'2'))
        return nullptr;
    const QRegularExpressionMatch match = form.match(tsql);
    return match.hasMatch() ? Catalog::instance().table(match.captured(1), database) : nullptr;
}

} // namespace

Recordset::Recordset() : d(std::make_shared<Private>()) {}

Recordset::Recordset(Connection& connection, const Sql& sql) : Recordset(connection, sql.parts()) {}

Recordset::Recordset(Connection& connection, const SqlParts& tsql) : Recordset() {
    PhysicalConnection& physical = *connection.physical();
    d->physical = connection.physical();
    d->lease = physical.lease;
    // The schema knows the columns of a table: an empty result needs no question to the server.
    const QString fixed = tsql.hasValues() ? QString() : tsql.text();
    if (const Table* table = tableOfEmptyRows(fixed, physical.schema)) {
        d->table = table;
        d->rows.columns = table->columnNames;
        return;
    }
    Answer answer = physical.ask(tsql);
    d->rows = std::move(answer.rows);
    d->table = answer.facts->writableTable(physical.schema);
}

Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::Recordset(const Recordset&) = default;
Recordset& Recordset::operator=(const Recordset&) = default;

Recordset Recordset::detached() const {
    Recordset copy;
    copy.d->rows = d->rows;
    return copy;
}

Recordset Recordset::paged(Connection connection, const Sql& sql) {
    const auto reader = std::make_shared<RowReader>(connection.release(), sql.parts());
    Recordset rows;
    rows.d->rows = Rows(reader->heads(), reader);
    return rows;
}

int Recordset::rowsRead() const {
    return static_cast<int>(d->rows.read());
}

bool Recordset::isWhole() const {
    return d->rows.isWhole();
}

void Recordset::readMore(int rows) const {
    d->rows.readOn(rows);
}

bool Recordset::has(int row) const {
    return d->rows.has(row);
}

int Recordset::columnIndex(const QString& column) const {
    const int index = d->rows.indexOf(column);
    if (index < 0) {
        throw DataError(
            QStringLiteral("Item cannot be found in the collection corresponding to the requested name: %1.")
                .arg(column));
    }
    return index;
}

bool Recordset::eof() const {
    return !d->rows.has(d->row);
}

void Recordset::moveFirst() {
    moveTo(0);
}

void Recordset::moveNext() {
    moveTo(d->row + 1);
}

int Recordset::count() const {
    return static_cast<int>(d->rows.count());
}

int Recordset::row() const {
    return d->row;
}

void Recordset::moveTo(int row) {
    d->dropChanges();
    d->row = std::max(row, 0);
    if (!d->rows.has(d->row))
        d->row = count();
}

bool Recordset::find(const QString& column, const QString& value) {
    const int index = columnIndex(column);
    for (; !eof(); moveNext())
        if (text(index).compare(value, Qt::CaseInsensitive) == 0)
            return true;
    return false;
}

QStringList Recordset::columns() const {
    return d->rows.columns;
}

QVariant Recordset::value(int column) const {
    if (d->adding)
        return d->changes.value(column);
    if (eof())
        throw DataError("Either BOF or EOF is True, or the current record has been deleted.");
    ORVANE_ASSERT(column >= 0 && column < d->rows.columns.size());
    return d->changes.contains(column) ? d->changes.value(column) : d->rows.at(d->row, column);
}

QVariant Recordset::value(const QString& column) const {
    return value(columnIndex(column));
}

QString Recordset::text(int column) const {
    return valueText(value(column));
}

QString Recordset::text(const QString& column) const {
    return text(columnIndex(column));
}

double Recordset::number(const QString& column) const {
    const QVariant found = value(column);
    if (found.typeId() != QMetaType::QString)
        return found.toDouble();
    const QString text = found.toString().trimmed();
    bool ok = text.isEmpty();
    const double number = ok ? 0 : text.toDouble(&ok);
    if (!ok)
        throw DataError(QStringLiteral("\"%1\" is no number: column %2.").arg(text, column));
    return number;
}

qlonglong Recordset::integer(const QString& column) const {
    const QVariant found = value(column);
    const bool whole = found.typeId() == QMetaType::LongLong || found.typeId() == QMetaType::Int;
    return whole ? found.toLongLong() : static_cast<qlonglong>(number(column));
}

QDate Recordset::date(const QString& column) const {
    const QVariant found = value(column);
    return found.typeId() == QMetaType::QString ? dateFromText(found.toString()).toDate() : found.toDate();
}

QDateTime Recordset::dateTime(const QString& column) const {
    const QVariant found = value(column);
    if (found.typeId() == QMetaType::QString)
        return dateTimeFromText(found.toString()).toDateTime();
    return found.typeId() == QMetaType::QDate && !found.isNull() ? found.toDate().startOfDay() : found.toDateTime();
}

bool Recordset::isNull(const QString& column) const {
    return value(column).isNull();
}

void Recordset::addNew() {
    d->dropChanges();
    d->adding = true;
}

void Recordset::set(const QString& column, const QVariant& value) {
    const int index = columnIndex(column);
    if (!d->adding && eof())
        throw DataError("Either BOF or EOF is True, or the current record has been deleted.");
    const Column* known = d->table ? d->table->column(column) : nullptr;
    if (!known)
        throw DataError(QStringLiteral("The column %1 of this recordset cannot be written.").arg(column));
    d->changes.insert(index, valueForColumn(value, known->name, known->kind, known->length));
}

void Recordset::update() {
    d->write();
}

} // namespace orvane
