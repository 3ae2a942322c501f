#!/usr/bin/env bash
# Builds the GIF block reader with clang's libFuzzer, AddressSanitizer and
# UndefinedBehaviorSanitizer, and runs it for a while on the test GIFs.
#   bash fuzz/run_gif_fuzz.sh [SECONDS]   (default 60)
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
out="${QUILLERY_FUZZ_DIR:-$here/build-fuzz}"
seconds="${1:-60}"
mkdir -p "$out/corpus"
cp "$here"/tests/data/gif/*/*.gif "$out/corpus/"
flags=(-std=c++20 -g -O1 -fsanitize=fuzzer,address,undefined -fno-sanitize-recover=undefined
       -DQT_NO_CAST_FROM_ASCII -I"$here/src" $(pkg-config --cflags Qt6Core) -fPIC)
clang++ "${flags[@]}" "$here/fuzz/gif_fuzz.cpp" "$here/src/images/GifReader.cpp" \
        "$here/src/images/TransparentGif.cpp" $(pkg-config --libs Qt6Core) -o "$out/gif_fuzz"
"$out/gif_fuzz" -max_total_time="$seconds" -max_len=4096 "$out/corpus"
