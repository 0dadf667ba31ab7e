#!/bin/bash
# Throw-away MariaDB and PostgreSQL servers for tests and measurements.
#
#   scripts/servers.sh start DIR   starts both on free ports of the loopback address, with
#                                  their data in DIR (made, must not exist or be empty),
#                                  and writes DIR/env: addresses, ports, user, password
#   scripts/servers.sh stop DIR    stops them by their process ids and removes DIR
#
# Nothing is synced to the disk (fsync=off, innodb_flush_log_at_trx_commit=0): fast, and
# the data does not survive a crash of the machine. Run by root, PostgreSQL runs as the
# user postgres, so every folder above DIR must be open to that user.
set -euo pipefail

readonly USER_NAME=Tallix
readonly PASSWORD=norvadat
readonly WAIT_SECONDS=60

fail() {
  echo "servers.sh: $*" >&2
  exit 1
}

free_port() {
  local port
  while true; do
    port=$((20000 + RANDOM % 12000))
    # A refused connect means that nobody listens there.
    if ! (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null; then
      echo "$port"
      return
    fi
  done
}

as_postgres() {
  if [ "$(id -u)" = 0 ]; then
    (cd / && runuser -u postgres -- "$@")
  else
    "$@"
  fi
}

start_mariadb() {
  local dir=$1 port=$2 account=()
  [ "$(id -u)" = 0 ] && account=(--user=root)
  mkdir "$dir/mariadb"
  mariadb-install-db --no-defaults --datadir="$dir/mariadb" --skip-test-db \
    --auth-root-authentication-method=normal "${account[@]}" >"$dir/mariadb-install.log" 2>&1 || return 1
  cat >"$dir/mariadb.sql" <<SQL
CREATE DATABASE TALLIX CHARACTER SET utf8mb4;
CREATE USER '$USER_NAME'@'%' IDENTIFIED BY '$PASSWORD';
GRANT ALL ON *.* TO '$USER_NAME'@'%';
SQL
  setsid mariadbd --no-defaults "${account[@]}" --datadir="$dir/mariadb" --bind-address=127.0.0.1 --port="$port" \
    --socket="$dir/mariadb.sock" --pid-file="$dir/mariadb.pid" --init-file="$dir/mariadb.sql" --skip-name-resolve \
    --innodb-flush-log-at-trx-commit=0 --innodb-doublewrite=0 --innodb-flush-method=nosync --sync-frm=0 --skip-log-bin --innodb-buffer-pool-size=512M \
    --max-allowed-packet=64M >"$dir/mariadb.log" 2>&1 </dev/null &
  local n
  for ((n = 0; n < WAIT_SECONDS * 10; ++n)); do
    # The account is made by the init file, which runs before the port answers.
    mariadb --no-defaults -h 127.0.0.1 -P "$port" -u "$USER_NAME" "-p$PASSWORD" -e 'SELECT 1' TALLIX >/dev/null 2>&1 && return
    sleep 0.1
  done
  return 1
}

start_postgres() {
  local dir=$1 port=$2 bin
  bin=$(printf '%s\n' /usr/lib/postgresql/*/bin | sort -V | tail -n 1)
  install -d -m 0700 "$dir/postgres"
  [ "$(id -u)" = 0 ] && chown postgres "$dir/postgres"
  mkdir "$dir/postgres.log.d" && chmod 0777 "$dir/postgres.log.d"
  as_postgres "$bin/initdb" -D "$dir/postgres" -U postgres --auth-local=trust --auth-host=scram-sha-256 \
    --locale=C.UTF-8 -E UTF8 --no-sync >"$dir/postgres-install.log" 2>&1 || return 1
  as_postgres "$bin/pg_ctl" start -w -t "$WAIT_SECONDS" -D "$dir/postgres" -l "$dir/postgres.log.d/server.log" \
    -o "-p $port -k '$dir/postgres' -c listen_addresses=127.0.0.1 -c fsync=off -c synchronous_commit=off \
        -c full_page_writes=off -c shared_buffers=256MB" >"$dir/postgres-start.log" 2>&1 </dev/null || return 1
  as_postgres psql -q -h "$dir/postgres" -p "$port" -U postgres -v ON_ERROR_STOP=1 >>"$dir/postgres-start.log" 2>&1 <<SQL
CREATE ROLE "$USER_NAME" LOGIN CREATEDB PASSWORD '$PASSWORD';
CREATE DATABASE tallix OWNER "$USER_NAME";
SQL
}

start() {
  local dir=$1 maria_port postgres_port
  mkdir -p "$dir"
  dir=$(cd "$dir" && pwd)
  [ -z "$(ls -A "$dir")" ] || fail "$dir is not empty"
  chmod 0755 "$dir"
  maria_port=$(free_port)
  postgres_port=$(free_port)
  touch "$dir/servers"
  start_mariadb "$dir" "$maria_port" &
  local maria=$! failed=
  start_postgres "$dir" "$postgres_port" || failed=PostgreSQL
  wait "$maria" || failed=MariaDB
  if [ -n "$failed" ]; then
    stop_servers "$dir"
    fail "$failed does not start, see the logs in $dir"
  fi
  cat >"$dir/env" <<ENV
MARIADB_ADDRESS=127.0.0.1:$maria_port
POSTGRES_ADDRESS=127.0.0.1:$postgres_port
SERVER_USER=$USER_NAME
SERVER_PASSWORD=$PASSWORD
ENV
}

stop_process() {
  local file=$1 signal=$2 pid n
  [ -f "$file" ] || return 0
  pid=$(head -n 1 "$file")
  kill "-$signal" "$pid" 2>/dev/null || return 0
  for ((n = 0; n < WAIT_SECONDS * 20; ++n)); do
    kill -0 "$pid" 2>/dev/null || return 0
    sleep 0.05
  done
  kill -KILL "$pid" 2>/dev/null || true
}

stop_servers() {
  stop_process "$1/mariadb.pid" TERM &
  # An immediate shutdown: nobody wants the data, and open connections must not hold it up.
  stop_process "$1/postgres/postmaster.pid" QUIT
  wait
}

stop() {
  [ -f "$1/servers" ] || fail "$1 holds no servers of this script"
  stop_servers "$1"
  rm -rf "$1"
}

[ $# = 2 ] || fail "usage: servers.sh start|stop DIR"
case $1 in
  start) start "$2" ;;
  stop) stop "$2" ;;
  *) fail "usage: servers.sh start|stop DIR" ;;
esac
