#!/usr/bin/env bash
# Makes the test certificates of the TLS tests (kept in the repository; run again only to
# change them). Every certificate uses host.key; they last 100 years, apart from expired.pem.
#   ca.pem          the test CA
#   host.pem        127.0.0.1 and localhost, issued by the CA
#   other-host.pem  other.example only, issued by the CA
#   expired.pem     127.0.0.1, issued by the CA, valid in 2020 only
#   self-signed.pem, self-signed-2.pem  127.0.0.1, self-signed (two different certificates)
set -euo pipefail
cd "$(dirname "$0")"
days=36500
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
openssl req -x509 -newkey rsa:2048 -nodes -keyout "$work/ca.key" -out ca.pem -days $days \
  -subj "/CN=Veltrix Test CA" -addext "basicConstraints=critical,CA:TRUE" \
  -addext "keyUsage=critical,keyCertSign,cRLSign" 2>/dev/null
openssl genrsa -out host.key 2048 2>/dev/null
issue() {  # name subject alt-names [ca options]
  local name=$1 subject=$2 names=$3
  shift 3
  openssl req -new -key host.key -subj "/CN=$subject" -out "$work/$name.csr"
  printf 'subjectAltName=%s\nextendedKeyUsage=serverAuth\n' "$names" >"$work/$name.ext"
  openssl x509 -req -in "$work/$name.csr" -CA ca.pem -CAkey "$work/ca.key" -CAcreateserial \
    -extfile "$work/$name.ext" -out "$name.pem" "$@" 2>/dev/null
}
issue host 127.0.0.1 "IP:127.0.0.1,DNS:localhost" -days $days
issue other-host other.example "DNS:other.example" -days $days
# An expired certificate needs set dates, which only `openssl ca` takes.
mkdir -p "$work/ca"
touch "$work/ca/index.txt"
cat >"$work/ca.cnf" <<CNF
[ca]
default_ca = test
[test]
database = $work/ca/index.txt
new_certs_dir = $work/ca
serial = $work/ca/serial
default_md = sha256
policy = any
copy_extensions = none
x509_extensions = server
[any]
commonName = supplied
[server]
subjectAltName = IP:127.0.0.1
extendedKeyUsage = serverAuth
CNF
echo 1000 >"$work/ca/serial"
openssl req -new -key host.key -subj "/CN=127.0.0.1" -out "$work/expired.csr"
openssl ca -batch -config "$work/ca.cnf" -cert ca.pem -keyfile "$work/ca.key" \
  -startdate 20200101000000Z -enddate 20201231000000Z -in "$work/expired.csr" \
  -out "$work/expired.full" 2>/dev/null
openssl x509 -in "$work/expired.full" -out expired.pem
for n in self-signed self-signed-2; do
  openssl req -x509 -key host.key -out "$n.pem" -days $days -subj "/CN=127.0.0.1 $n" \
    -addext "subjectAltName=IP:127.0.0.1" 2>/dev/null
done
rm -f ca.srl
