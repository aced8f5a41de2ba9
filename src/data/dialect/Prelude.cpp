#include "data/dialect/Prelude.h"

namespace orvane {

namespace {

// citext compares without regard to case; its functions and joins give citext again, so that what is made of a text
// compares so too. Those that name citext in their body have it parsed here and now ("return"): a backup and the
// server's own maintenance use the indexes on them without this schema in their search path.
const char* const postgresql[] = {
    "create extension if not exists citext",
    // The fixed clock of the connection, where a script or test has set one.
    "create or replace function getdate() returns timestamp language sql stable as "
    "$$ select coalesce(nullif(current_setting('orvane.clock', true), '')::timestamp, date_trunc('second', "
    "localtimestamp)) $$",
    // The server's own clock and login, for columns by default: no setting of the session changes them. Their bodies
    // are read here and now, so that no schema of the session's path stands before them.
    "create or replace function sysdatetime() returns timestamp language sql volatile "
    "return date_trunc('second', clock_timestamp() at time zone current_setting('log_timezone'))",
    "create or replace function suser_sname() returns citext language sql stable return session_user::text::citext",
    // The digits that a text begins with; 0 when it begins with none, so that a foreign number is no fault.
    "create or replace function orvane_bigint(citext) returns bigint language sql immutable parallel safe as "
    "$$ select coalesce(substring($1::text from '^ *([+-]?[0-9]{1,18})')::bigint, case when $1 is null then null else "
    "0 end) $$",
    "create or replace function orvane_bigint(double precision) returns bigint language sql immutable parallel safe as "
    "$$ select trunc($1)::bigint $$",
    // Its formats are digits alone, which no setting of the session changes.
    "create or replace function orvane_date(timestamp, text) returns citext language sql immutable parallel safe "
    "return to_char($1, $2)::citext",
    "create or replace function \"substring\"(citext, integer, integer) returns citext language sql immutable parallel "
    "safe "
    "return substr($1::text, $2, $3)::citext",
    "create or replace function \"right\"(citext, integer) returns citext language sql immutable parallel safe "
    "return pg_catalog.right($1::text, $2)::citext",
    "create or replace function \"left\"(citext, integer) returns citext language sql immutable parallel safe "
    "return pg_catalog.left($1::text, $2)::citext",
    "create or replace function ltrim(citext) returns citext language sql immutable parallel safe "
    "return pg_catalog.ltrim($1::text)::citext",
    "create or replace function rtrim(citext) returns citext language sql immutable parallel safe "
    "return pg_catalog.rtrim($1::text)::citext",
    "create or replace function orvane_join(citext, citext) returns citext language sql immutable parallel safe "
    "return ($1::text || $2::text)::citext",
    "create operator || (leftarg = citext, rightarg = citext, function = orvane_join)",
    "create or replace function round(double precision, integer) returns double precision language sql immutable "
    "parallel safe as "
    "$$ select pg_catalog.round($1::numeric, $2)::double precision $$",
};

} // namespace

QStringList preludeStatements(Engine engine) {
    QStringList statements;
    if (engine == Engine::Postgresql)
        for (const char* statement : postgresql)
            statements += QString::fromUtf8(statement);
    return statements;
}

QStringList preludeFunctions(Engine engine) {
    return preludeStatements(engine).filter("create or replace function");
}

} // namespace orvane
