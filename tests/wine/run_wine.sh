#!/bin/sh
# Runs a Windows program of the cross build under Wine, in a Wine prefix of its own that is thrown
# away afterwards: ctest's emulator for every test program, and a way to run mvcommon.exe by hand.
#
#   run_wine.sh PROGRAM.exe ARGUMENTS...
#
# Making a prefix (wineboot) takes about ten seconds, so one template prefix is made per test
# run (ctest's fixture wine_template) and copied for each program. MV_WINE_TEMPLATE names the template (default: wine-template beside this
# build's programs, given by MV_WINE_BUILD, else under the temporary folder); MV_WINE_REGISTRY names
# a registry export imported into the template (the demo installation's registry.reg).
# MV_WINE_DISPLAY=xvfb runs the program under a virtual X server, for programs that need windows.
# The exit code is the program's.
set -eu

[ $# -ge 1 ] || { echo "usage: run_wine.sh PROGRAM.exe ARGUMENTS..." >&2; exit 2; }

wine=$(command -v wine64 || command -v wine || true)
[ -n "$wine" ] || { echo "run_wine.sh: Wine is not installed (scripts/setup)" >&2; exit 2; }
wineboot=$(command -v wineboot || echo "$wine wineboot")

base=${TMPDIR:-/tmp}
template=${MV_WINE_TEMPLATE:-$base/mvwine-template-$(id -u)}
export WINEDEBUG=${WINEDEBUG:--all}
export WINEDLLOVERRIDES=${WINEDLLOVERRIDES:-mscoree,mshtml=}

# Makes the template once, under a lock, so that test programs started together wait for one
# another instead of each booting Wine.
make_template() {
  mkdir -p "$(dirname "$template")"
  (
    flock 9
    [ -f "$template/.ready" ] && exit 0
    rm -rf "$template"
    WINEPREFIX=$template $wineboot -i >/dev/null 2>&1
    if [ -n "${MV_WINE_REGISTRY:-}" ] && [ -f "$MV_WINE_REGISTRY" ]; then
      WINEPREFIX=$template "$wine" regedit /S "$(winepath_of "$MV_WINE_REGISTRY")" >/dev/null 2>&1
    fi
    WINEPREFIX=$template wineserver -w
    touch "$template/.ready"
  ) 9>"$template.lock"
}

# The Windows name of a Linux path: drive Z: is the root of the file system in every prefix.
winepath_of() {
  printf 'Z:%s' "$1" | tr / '\\'
}

make_template
# Beside the template, so that hard links reach it (one file system).
prefix=$(mktemp -d "$(dirname "$template")/mvwine-XXXXXX")
cleanup() {
  WINEPREFIX=$prefix wineserver -k >/dev/null 2>&1 || true
  rm -rf "$prefix"
}
trap cleanup EXIT INT TERM
# The system files of the template are shared as hard links (a copy of the whole prefix is
# hundreds of megabytes); what Wine or a test writes (the registry, the users' folders, the
# Windows folder's INI files) is copied.
cp -al "$template/." "$prefix/"
for shared in "$prefix"/*.reg "$prefix/drive_c/users" "$prefix"/drive_c/windows/*.ini; do
  [ -e "$shared" ] || continue
  rm -rf "$shared"
  cp -a "$template/${shared#"$prefix"/}" "$shared"
done
export WINEPREFIX=$prefix

status=0
if [ "${MV_WINE_DISPLAY:-}" = xvfb ]; then
  xvfb-run -a -s "-screen 0 1024x768x24" "$wine" "$@" || status=$?
else
  "$wine" "$@" || status=$?
fi
exit $status
