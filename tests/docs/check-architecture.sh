#!/usr/bin/env bash
# Keeps docs/architecture.md true: every file or folder it names in backquotes (src/…, tests/…,
# bench/…, tools/…, docs/…, scripts/…) exists. A type named without its ending stands for its
# files (`src/Views/Components/DesktopWords` for DesktopWords.h and .cpp). Names with a placeholder
# such as <Window> are patterns, not paths, and are left out.
set -euo pipefail
cd "$(dirname "$0")/../.."
missing=0
while read -r path; do
  case "$path" in *'<'*|*'*'*) continue ;; esac
  path=${path%% *}
  if [ ! -e "$path" ] && ! compgen -G "$path.*" >/dev/null; then
    echo "docs/architecture.md names $path, which does not exist"
    missing=1
  fi
done < <(grep -oE '`(src|tests|bench|tools|docs|scripts)/[^`]*`' docs/architecture.md | tr -d '`' | sort -u)
exit $missing
