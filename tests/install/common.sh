# Shared by the install tests: a scratch folder removed at exit, and an install of this build moved away from
# where it was installed. Needs PLOVIX_BUILD, PLOVIX_SOURCE and CMAKE from the test's environment.
set -euo pipefail
scratch=$(mktemp -d "${TMPDIR:-/tmp}/plovix-install-XXXXXX")
trap 'rm -rf "$scratch"' EXIT
# A run must not open windows nor take values from the caller's environment.
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM PLOVIX_UI PLOVIX_LIB_PATH PLOVIX_USER_LIB_PATH PLOVIX_MODULON \
  PLOVIX_LANGUAGE PLOVIX_ANSWER PLOVIX_PROJECT_DIR PLOVIX_TOP_FILE

fail() {
  echo "FAILED: $*" >&2
  exit 1
}

# Installs into one folder and moves the tree to $prefix, so that nothing can rely on the install path.
install_moved() {
  "$CMAKE" --install "$PLOVIX_BUILD" --prefix "$scratch/installed" >/dev/null
  mkdir -p "$scratch/elsewhere"
  mv "$scratch/installed" "$scratch/elsewhere/plovix"
  prefix="$scratch/elsewhere/plovix"
  libdir=$(dirname "$(find "$prefix/lib" -name 'libvamlet.so.0' | head -n 1)")
}
