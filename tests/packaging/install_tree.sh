#!/usr/bin/env bash
# Installs a build below a new prefix.
# usage: install_tree.sh BUILD PREFIX
set -euo pipefail
rm -rf "$2"
cmake --install "$1" --prefix "$2" >/dev/null
