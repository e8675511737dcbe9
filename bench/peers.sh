# Sourced by the benchmark scripts: installs the peer tools they compare against, when missing.
install_peers() {
  local missing=()
  for tool in "$@"; do
    command -v "$tool" >/dev/null 2>&1 || missing+=("$tool")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local sudo=""
  [ "$(id -u)" -eq 0 ] || sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Prints each command's mean time and its ratio to the named baseline, from hyperfine's CSV.
print_ratios() {
  local csv=$1 baseline=$2
  awk -F, -v base="$baseline" '
    NR == 1 { next }
    { name[NR] = $1; mean[NR] = $2; if (index($1, base) > 0) b = $2 }
    END { for (i = 2; i <= NR; i++) printf "  %-60s %8.1f ms   %.2f x %s\n", name[i], mean[i] * 1000, mean[i] / b, base }
  ' "$csv"
}
