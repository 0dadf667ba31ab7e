#!/bin/sh
# Prints what the rules of the code limit: lengths of functions and files, the share of the
# tests, and the words that comments and documents avoid, per 1,000 of their lines.
set -eu
cd "$(dirname "$0")/.."

non_blank() {
    git ls-files -z -- "$@" | xargs -0 cat | grep -c '[^[:space:]]'
}

echo "Lengths of functions (limit 45):"
git ls-files -- 'src/*.cpp' 'src/*.h' 'programs/*.cpp' 'programs/*.h' |
    ctags --languages=C++ --kinds-C++=f --fields=+ne -f - -L - |
    sed -n 's/^\([^\t]*\)\t\([^\t]*\)\t.*line:\([0-9]*\).*end:\([0-9]*\).*/\3 \4 \2 \1/p' |
    awk '{ print $2 - $1 + 1, $3 ":" $1, $4 }' | sort -n |
    awk '{ length_[NR] = $1; text[NR] = $0 }
         END { print "  median", length_[int((NR + 1) / 2)], " 95 %", length_[int(NR * 0.95)], " of", NR
               for (i = NR; i > 0 && length_[i] > 45; --i) print "  " text[i] }'

echo "Files above 400 lines:"
git ls-files -- '*.cpp' '*.h' '*.sh' '*.py' | xargs wc -l | awk '$1 > 400 && $2 != "total" { print "  " $0 }'

code=$(non_blank 'src/*.cpp' 'src/*.h' 'programs/*.cpp' 'programs/*.h')
tests=$(non_blank 'tests/*.cpp' 'tests/*.h' 'tests/*.py')
echo "Tests: $tests lines, code: $code, $((tests * 100 / code)) % (limit 33)"

comments=$(mktemp)
trap 'rm -f "$comments"' EXIT
git ls-files -z -- '*.cpp' '*.h' | xargs -0 grep -ho '//.*' >"$comments"
lines=$(wc -l <"$comments")
echo "Words per 1,000 of $lines comment lines:"
for words in behind 'stand|stands|stood' 'lie|lies' 'is no|are no' 'tell|tells|told'; do
    count=$(grep -owiE "$words" "$comments" | wc -l)
    echo "  $words: $(echo "$count $lines" | awk '{ printf "%.1f", $1 * 1000 / $2 }') ($count)"
done
