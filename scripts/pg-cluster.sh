#!/usr/bin/env bash
# A private PostgreSQL cluster for tests and benchmarks.
#   scripts/pg-cluster.sh start DIR   starts one in DIR (made if it is missing) and prints the line for the environment
#   scripts/pg-cluster.sh start DIR durable   the same, but its commits wait for the disk
#   scripts/pg-cluster.sh stop DIR    stops it and removes its files
#   scripts/pg-cluster.sh halt DIR    stops it and keeps its files; start then starts it again on the same port
# It listens on a free port of 127.0.0.1 and, unless it is durable, writes nothing safely (fsync off): for tests only.
set -euo pipefail

usage="usage: $0 start|stop|halt DIR"
action=${1:?$usage}
directory=$(realpath -m "${2:?$usage}")
safety="-c fsync=off -c synchronous_commit=off -c full_page_writes=off"
if [ "${3:-}" = durable ]; then safety=; fi
cd / # a folder that the server's own user may enter
binaries=$(ls -d /usr/lib/postgresql/*/bin 2>/dev/null | sort -V | tail -1)
[ -n "$binaries" ] || { echo "PostgreSQL is not installed" >&2; exit 1; }

# The server refuses to run as root; the package's own user serves then.
as_owner() {
    if [ "$(id -u)" = 0 ]; then
        runuser -u postgres -- "$@"
    else
        "$@"
    fi
}

free_port() {
    perl -MIO::Socket::INET -e 'print IO::Socket::INET->new(LocalAddr => "127.0.0.1", LocalPort => 0, Listen => 1)->sockport, "\n"'
}

start() {
    mkdir -p "$directory"
    if [ "$(id -u)" = 0 ]; then
        chown postgres "$directory"
    fi
    if [ ! -d "$directory/data" ]; then
        as_owner "$binaries/initdb" --pgdata="$directory/data" --username=zorva --auth=trust --encoding=UTF8 \
            --locale=C.UTF-8 --no-sync >"$directory.log" 2>&1 || { cat "$directory.log" >&2; exit 1; }
        rm -f "$directory.log"
        echo "$(free_port)" >"$directory/port"
    fi
    local port
    port=$(cat "$directory/port")
    as_owner "$binaries/pg_ctl" --pgdata="$directory/data" --log="$directory/data/server.log" --wait --silent start \
        -o "-p $port -c listen_addresses=127.0.0.1 -c unix_socket_directories= $safety \
            -c max_connections=200 -c autovacuum=off" >&2
    echo "ORVANE_TEST_PG=host=127.0.0.1 port=$port"
}

halt() {
    as_owner "$binaries/pg_ctl" --pgdata="$directory/data" --mode=fast --wait --silent stop >&2
}

stop() {
    as_owner "$binaries/pg_ctl" --pgdata="$directory/data" --mode=immediate --silent stop >&2 || true
    rm -rf "$directory"
}

case "$action" in
start) start ;;
stop) stop ;;
halt) halt ;;
*) echo "$usage" >&2; exit 1 ;;
esac
