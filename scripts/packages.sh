# Sourced by run.sh and test.sh: what the program is built from, all of it packages of Debian 12.
build_packages=(
    g++ cmake ninja-build ccache
    qt6-base-dev qt6-multimedia-dev libqt6sql6-sqlite libqt6sql6-psql libqt6sql6-odbc
    libsqlite3-dev libpq-dev libxlsxwriter-dev libgtest-dev libbenchmark-dev
    fonts-dejavu-core
)
fuzz_packages=(clang-14 libclang-rt-14-dev)
test_packages=(postgresql-15 unzip "${fuzz_packages[@]}")

# install_packages NAME...: installs those that are missing; asks nothing, touches nothing when all are there.
install_packages() {
    local missing=() name
    for name in "$@"; do
        dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep -q 'install ok installed' || missing+=("$name")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    local as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    echo "Installing: ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
