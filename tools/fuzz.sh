#!/usr/bin/env bash
# Fuzzes the readers with libFuzzer, AddressSanitizer and UndefinedBehaviorSanitizer (clang), in build-fuzz/.
#
#   tools/fuzz.sh [SEGUNDOS] [HARNESS...]
#
# Runs each harness (fuzz_leitura, fuzz_verificacao, fuzz_tabela; all by default) for SEGUNDOS seconds (60 by
# default), starting from its corpus in fuzz/corpus/<harness>/ and the files of tests/data/, then merges what it
# found back into that corpus, minimised (-merge=1), so that the corpus stays small; inputs are cut at 3000
# bytes (the head records and a few items), which keeps the corpus to a few hundred KB. An input that crashes,
# hangs (60 s of wall time: the machine may be shared, and a starved run of a sound input takes seconds) or
# leaks is kept in build-fuzz/artefatos/ and the script ends with status 1.
# VRT_FUZZ_PRAZO changes those 60 s (a run at nice 19 on a busy machine starves for minutes, and a sound input
# that took 62 s there took 0.3 s alone); VRT_FUZZ_BUILD_DIR names another build folder; VRT_FUZZ_JOBS the build's parallel jobs (2); VRT_FUZZ_GUARDA=0
# leaves the corpus of the repository untouched (as CI does).
set -euo pipefail
raiz="$(cd "$(dirname "$0")/.." && pwd)"
build="${VRT_FUZZ_BUILD_DIR:-$raiz/build-fuzz}"
segundos="${1:-60}"
shift || true
harnesses=("$@")
[ ${#harnesses[@]} -gt 0 ] || harnesses=(fuzz_leitura fuzz_verificacao fuzz_tabela)

"$raiz/tools/instala-dependencias.sh" --fuzz
cmake -S "$raiz" -B "$build" -DVRT_FUZZ=ON -DCMAKE_CXX_COMPILER="${VRT_FUZZ_CXX:-clang++-14}" \
    -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$build" -j"${VRT_FUZZ_JOBS:-2}" --target "${harnesses[@]}"

# The declaration files of tests/data, composed with "|" between fields and "#" comment lines, as the bytes they
# stand for: Windows-1252 with CR LF.
sementes="$build/sementes"
rm -rf "$sementes"
mkdir -p "$sementes/declaracao" "$sementes/tabela"
for f in "$raiz"/tests/data/gravacao/*.txt; do
    grep -v -e '^#' -e '^«' -e '^$' "$f" | tr -d '|' | sed 's/$/\r/' | iconv -f UTF-8 -t WINDOWS-1252 \
        > "$sementes/declaracao/$(basename "$f")"
done
cp "$raiz"/tests/data/fuzz/leitura/* "$sementes/declaracao/" 2>/dev/null || true
cp "$raiz"/tests/data/tabelas/* "$sementes/tabela/"

mkdir -p "$build/artefatos"
falhas=0
for h in "${harnesses[@]}"; do
    corpus="$raiz/fuzz/corpus/${h#fuzz_}"
    novos="$build/novos/${h#fuzz_}"
    mkdir -p "$corpus" "$novos"
    case "$h" in
        fuzz_tabela) semente="$sementes/tabela" ;;
        *) semente="$sementes/declaracao" ;;
    esac
    echo "== $h: $segundos s"
    if ! "$build/fuzz/$h" -max_total_time="$segundos" -timeout="${VRT_FUZZ_PRAZO:-60}" -rss_limit_mb=2048 -max_len=3000 \
        -print_final_stats=1 -artifact_prefix="$build/artefatos/$h-" "$novos" "$corpus" "$semente"; then
        falhas=1
        echo "== $h: falha; a entrada está em $build/artefatos/"
    fi
    if [ "${VRT_FUZZ_GUARDA:-1}" = 0 ]; then
        rm -rf "$novos"
        continue
    fi
    minimo="$build/minimo/${h#fuzz_}"
    rm -rf "$minimo"
    mkdir -p "$minimo"
    "$build/fuzz/$h" -merge=1 -max_len=3000 "$minimo" "$corpus" "$novos" "$semente" 2>&1 | tail -n 1
    rm -rf "$corpus" "$novos"
    mv "$minimo" "$corpus"
    echo "== $h: corpus com $(ls "$corpus" | wc -l) arquivos, $(du -sk "$corpus" | cut -f1) KB"
done
exit "$falhas"
