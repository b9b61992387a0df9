#!/usr/bin/env bash
# Builds everything with clang, AddressSanitizer and UndefinedBehaviorSanitizer into
# build-sanitize/, runs every test there (the Qt widget tests offscreen), then runs every fuzz
# target for FUZZ_SECONDS (60 unless set) on its seed corpus (fuzz/corpus/NAME, plus inputs made
# here). Fails when any of them fails.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${FUZZ_SECONDS:-60}
CXX=clang++-14 cmake -S . -B build-sanitize -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DVELTRIX_FUZZ=ON -DVELTRIX_BUILD_UI=ON -DVELTRIX_BUILD_BENCH=OFF \
  -DCMAKE_COMPILE_WARNING_AS_ERROR=ON >/dev/null
cmake --build build-sanitize

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# Only the summary, or every test that did not pass with its output.
if ctest --test-dir build-sanitize --output-on-failure -j2 >"$work/ctest.log" 2>&1; then
  echo "sanitized tests: $(grep -m1 'tests passed' "$work/ctest.log")"
else
  grep -v -E '^ *Start |Passed +[0-9.]+ sec' "$work/ctest.log"
  exit 1
fi
# Seeds made here: whole settings files of every product, and recorded host sessions (behind the
# byte that picks the host language) where the shared recordings are present.
mkdir -p "$work/seeds/settings_file" "$work/seeds/tn5250" "$work/seeds/set_assignment"
for product in 0 1 2; do
  build-sanitize/veltrix-cli new --product "$product" --out "$work/seeds/settings_file/p$product.QVL"
done
for trace in ../shared/peer-data/tn5250-traces/*.bin; do
  [ -e "$trace" ] || continue
  (printf '\x00'; cat "$trace") >"$work/seeds/tn5250/$(basename "$trace")"
done

# A screen file of a dozen screens is 125,108 bytes.
declare -A max_len=([download_engine]=8192 [srecord]=65536 [settings_file]=600000 [tn5250]=70000 [demo_host]=70000 [replay_keys]=1024 [set_assignment]=4096 [screen_file]=140000)
pids=()
for target in build-sanitize/*_fuzz; do
  name=$(basename "$target" _fuzz)
  mkdir -p "$work/corpus/$name" "$work/seeds/$name"
  "$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
    -max_len="${max_len[$name]:-4096}" -print_final_stats=1 \
    "$work/corpus/$name" "fuzz/corpus/$name" "$work/seeds/$name" >"$work/$name.log" 2>&1 &
  pids+=("$!:$name")
done
failed=0
for entry in "${pids[@]}"; do
  if wait "${entry%%:*}"; then
    echo "fuzz ${entry#*:}: $(grep -m1 'stat::number_of_executed_units' "$work/${entry#*:}.log" | awk '{print $2}') runs, no finding"
  else
    echo "fuzz ${entry#*:}: FAILED"; tail -40 "$work/${entry#*:}.log"; failed=1
  fi
done
exit "$failed"
