#include "data/dialect/Prelude.h"

namespace orvane {

namespace {

// citext compares without regard to case; its functions and joins give citext again, so that what is made of a text
// compares so too.
const char* const postgresql[] = {
    "create extension if not exists citext",
    // The fixed clock of the connection, where a script or test has set one.
    "create function getdate() returns timestamp language sql stable as "
    "$$ select coalesce(nullif(current_setting('orvane.clock', true), '')::timestamp, date_trunc('second', "
    "localtimestamp)) $$",
    // The digits that a text begins with; 0 when it begins with none, so that a foreign number is no fault.
    "create function orvane_bigint(citext) returns bigint language sql immutable parallel safe as "
    "$$ select coalesce(substring($1::text from '^ *([+-]?[0-9]{1,18})')::bigint, case when $1 is null then null else "
    "0 end) $$",
    "create function orvane_bigint(double precision) returns bigint language sql immutable parallel safe as "
    "$$ select trunc($1)::bigint $$",
    "create function \"substring\"(citext, integer, integer) returns citext language sql immutable parallel safe as "
    "$$ select substr($1::text, $2, $3)::citext $$",
    "create function \"right\"(citext, integer) returns citext language sql immutable parallel safe as "
    "$$ select pg_catalog.right($1::text, $2)::citext $$",
    "create function \"left\"(citext, integer) returns citext language sql immutable parallel safe as "
    "$$ select pg_catalog.left($1::text, $2)::citext $$",
    "create function ltrim(citext) returns citext language sql immutable parallel safe as "
    "$$ select pg_catalog.ltrim($1::text)::citext $$",
    "create function rtrim(citext) returns citext language sql immutable parallel safe as "
    "$$ select pg_catalog.rtrim($1::text)::citext $$",
    "create function orvane_join(citext, citext) returns citext language sql immutable parallel safe as "
    "$$ select ($1::text || $2::text)::citext $$",
    "create operator || (leftarg = citext, rightarg = citext, function = orvane_join)",
    "create function round(double precision, integer) returns double precision language sql immutable parallel safe as "
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

} // namespace orvane
