#!/usr/bin/env bash
# The library exports exactly what its header declares.
# usage: exported_symbols.sh LIBRARY HEADER
set -euo pipefail
library=$1
header=$2

exported=$(nm -D --defined-only "$library" | awk '$2 ~ /[TDBRVW]/ { sub(/@.*/, "", $3); print $3 }' | sort)
declared=$(grep -oE '^VCM_API .*\bVcm[A-Za-z0-9]+\(' "$header" | grep -oE 'Vcm[A-Za-z0-9]+\(' | tr -d '(' | sort)
diff <(echo "$declared") <(echo "$exported")
