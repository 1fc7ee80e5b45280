#!/usr/bin/env bash
# The library exports exactly what its header declares and what its list of symbols names.
# usage: exported_symbols.sh LIBRARY HEADER LIST
set -euo pipefail
library=$1
header=$2
list=$3

exported=$(nm -D --defined-only "$library" | awk '$2 ~ /[TDBRVW]/ { sub(/@.*/, "", $3); print $3 }' | sort)
declared=$(grep -oE '^VCM_API .*\bVcm[A-Za-z0-9]+\(' "$header" | grep -oE 'Vcm[A-Za-z0-9]+\(' | tr -d '(' | sort)
listed=$(grep -oE '^ +Vcm[A-Za-z0-9]+;' "$list" | tr -d ' ;' | sort)
diff <(echo "$declared") <(echo "$exported")
diff <(echo "$listed") <(echo "$exported")
