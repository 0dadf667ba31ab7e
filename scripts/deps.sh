#!/bin/sh
# Installs the Debian packages that building, running and testing need. Does nothing
# when all of them are there. The database servers, the print spooler and cron come for
# the tests, which start their own: none of them is left running.
set -eu

packages="
    git cmake ninja-build g++ pkg-config ccache dpkg-dev
    libsqlite3-dev libmariadb-dev libpq-dev unixodbc-dev libcurl4-openssl-dev libzip-dev libfmt-dev
    qt6-base-dev qt6-svg-dev qt6-webengine-dev libgl-dev libcups2-dev libqpdf-dev
    libgtest-dev libgmock-dev
    mariadb-server mariadb-client postgresql odbc-postgresql tdsodbc sqlite3 cron
    cups cups-client cups-filters poppler-utils
    python3-aiosmtpd xvfb xauth imagemagick fonts-dejavu-core
    at-spi2-core dbus-daemon gir1.2-atspi-2.0 python3-gi
    clang-format clang-tidy clazy shellcheck universal-ctags unzip procps time iproute2 util-linux
"

missing() {
    for package in $packages; do echo "$package"; done | sort >"$work/wanted"
    # shellcheck disable=SC2086
    dpkg-query -W -f '${db:Status-Abbrev} ${Package}\n' $packages 2>/dev/null |
        sed -n 's/^ii  *//p' | sort -u >"$work/present"
    comm -23 "$work/wanted" "$work/present"
}

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# Debian starts a server as soon as it is installed, unless this policy forbids it.
policy=/usr/sbin/policy-rc.d
forbid_services() {
    [ -e "$policy" ] && return
    printf '#!/bin/sh\nexit 101\n' | as_root tee "$policy" >/dev/null
    as_root chmod 755 "$policy"
    policy_is_ours=yes
}

clean_up() {
    rm -rf "$work"
    if [ "$policy_is_ours" = yes ]; then as_root rm -f "$policy"; fi
}

install_packages() {
    # shellcheck disable=SC2046
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -q --no-install-recommends $(cat "$work/missing")
}

work=$(mktemp -d)
policy_is_ours=no
trap clean_up EXIT

missing >"$work/missing"
[ -s "$work/missing" ] || exit 0

echo "Installing: $(tr "\n" " " <"$work/missing")"
forbid_services
# Lists that are absent or out of date are the usual reason for a refusal.
install_packages || { as_root apt-get update -q && install_packages; }
