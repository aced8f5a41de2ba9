#include "data/rows/Connection.h"

#include "data/Assert.h"
#include "data/engine/Physical.h"
#include "data/engine/Source.h"
#include "data/rows/Recordset.h"
#include "data/rows/procedures/Procedures.h"

namespace orvane {

namespace {

QStringView bareName(const QString& parameter) {
    return QStringView(parameter).mid(parameter.startsWith(u'@') ? 1 : 0);
}

/// By its name, with or without the @, in any case.
QVariantMap::const_iterator parameterOf(const QVariantMap& given, const QString& name) {
    auto found = given.constFind(name);
    if (found == given.constEnd())
        for (found = given.constBegin(); found != given.constEnd(); ++found)
            if (bareName(found.key()).compare(bareName(name), Qt::CaseInsensitive) == 0)
                break;
    return found;
}

/// The first one that is not among those known.
QString unknownParameter(const QVariantMap& given, const QVariantMap& known) {
    for (auto parameter = given.begin(); parameter != given.end(); ++parameter)
        if (parameterOf(known, parameter.key()) == known.constEnd())
            return bareName(parameter.key()).toString().toLower();
    return {};
}

} // namespace

Connection::Connection(std::shared_ptr<PhysicalConnection> physical) : d(std::move(physical)) {}

Connection::Connection(Connection&&) noexcept = default;

Connection& Connection::operator=(Connection&& other) noexcept {
    if (this != &other) {
        giveBack(std::move(d));
        d = std::move(other.d);
    }
    return *this;
}

Connection::~Connection() {
    giveBack(std::move(d));
}

Engine Connection::engine() const {
    return d->engine;
}

bool Connection::inTransaction() const {
    return d->inTransaction;
}

Connection Connection::beside(const QString& database) const {
    return Connection(
        d->source->take(database.isEmpty() ? d->connectionString : withDatabase(d->connectionString, database)));
}

void Connection::execute(const Sql& sql) {
    d->change(sql.parts());
}

void Connection::executeAll(const QVector<Sql>& changes) {
    QVector<SqlParts> parts;
    for (const Sql& change : changes)
        parts.append(change.parts());
    d->changeAll(parts);
}

Recordset Connection::call(const QString& procedure, const QVariantMap& parameters) {
    const ProcedureEntry* entry = findProcedure(procedure);
    if (!entry)
        throw DataError(QStringLiteral("Could not find stored procedure '%1'.").arg(procedure));
    QVariantMap known;
    for (const QString& name : entry->parameters) {
        const auto found = parameterOf(parameters, name);
        if (found == parameters.end())
            throw DataError(
                QStringLiteral("Procedure '%1' expects parameter '%2', which was not supplied.").arg(procedure, name));
        known.insert(name, *found);
    }
    if (known.size() < parameters.size())
        throw DataError(QStringLiteral("%1 is not a parameter for procedure %2.")
                            .arg(unknownParameter(parameters, known), procedure));
    return entry->body(*this, known);
}

Recordset Connection::run(const QString& tsql) {
    return {*this, SqlParts::ofText(tsql)};
}

DataSource::DataSource(QString homeFolder) : d(std::make_shared<Source>(homeFolder)) {}

DataSource::~DataSource() = default;

Connection DataSource::open(const QString& connectionString) {
    return Connection(d->take(connectionString));
}

Connection DataSource::create(const QString& connectionString) {
    return Connection(openPhysical(d, connectionString, true));
}

QString DataSource::copyDatabase(const QString& connectionString, const QString& suffix) {
    return copyPhysical(d, connectionString, suffix);
}

Engine DataSource::engineOf(const QString& connectionString) const {
    return d->servers.entry(parseConnectionString(connectionString).server).engine;
}

void DataSource::setDisposable() {
    d->disposable = true;
}

void DataSource::acceptAnySchema() {
    d->anySchema = true;
}

void DataSource::setServerClock(std::optional<QDateTime> at) {
    d->setClock(std::move(at));
}

std::optional<QDateTime> DataSource::serverClock() const {
    return d->clock();
}

int DataSource::openTransactions() const {
    return d->openTransactions;
}

qint64 DataSource::statementsSent() const {
    return d->statementsSent;
}

CommitOutcome DataSource::outcomeOf(const CommitTicket& ticket) {
    return d->outcomeOf(ticket);
}

void DataSource::setWaits(int lockMilliseconds, int outcomePauseMilliseconds) {
    d->lockWait = lockMilliseconds;
    d->outcomePause = outcomePauseMilliseconds;
    d->dropIdle();
}

void DataSource::setStatementHook(std::function<void(const QString&)> hook) {
    d->setHook(std::move(hook));
}

QString DataSource::homeFolder() const {
    return d->homeFolder;
}

} // namespace orvane
