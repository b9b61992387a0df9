#!/bin/sh
# Rebuilds src/tn5250/double_byte_tables.cpp from ICU's converters (development time only;
# needs libicu-dev). Veltrix itself builds and runs without ICU.
set -eu
cd "$(dirname "$0")/.."
out=$(mktemp -d)
trap 'rm -rf "$out"' EXIT
g++ -std=c++20 -O1 tools/dbcs_gen/gen_dbcs_tables.cpp $(pkg-config --cflags --libs icu-uc) \
  -o "$out/gen_dbcs_tables"
"$out/gen_dbcs_tables" --stats
"$out/gen_dbcs_tables" > "$out/double_byte_tables.cpp"
mv "$out/double_byte_tables.cpp" src/tn5250/double_byte_tables.cpp
