#!/usr/bin/env bash
# Installs the build into a temporary prefix, runs the installed program from elsewhere with no
# option pointing at its data, checks that it wrote nothing into the prefix, and validates the desktop
# entry and the AppStream metainfo. Usage: check-install.sh BUILD_DIR
set -euo pipefail
build=$1
app=io.github.wanderkit.Wanderkit
work=$(mktemp -d)
trap 'chmod -R u+w "$work"; rm -rf "$work"' EXIT
prefix=$work/prefix

cmake --install "$build" --prefix "$prefix" >/dev/null
for f in bin/wanderkit share/wanderkit/device/cities.lst "share/applications/$app.desktop" \
    "share/metainfo/$app.metainfo.xml" "share/icons/hicolor/scalable/apps/$app.svg" \
    "share/icons/hicolor/48x48/apps/$app.png" "share/icons/hicolor/256x256/apps/$app.png" \
    share/man/man1/wanderkit.1.gz; do
    [ -f "$prefix/$f" ] || { echo "not installed: $f" >&2; exit 1; }
done
zcat "$prefix/share/man/man1/wanderkit.1.gz" >"$work/man.txt"
grep -q 'tour\\fR DIR' "$work/man.txt" || { echo "the man page lacks --tour" >&2; exit 1; }

# Read-only prefix; the manifest also catches writes by root, whom the modes do not stop.
chmod -R a-w "$prefix"
manifest() { (cd "$prefix" && find . -printf '%p %s %T@\n' | sort); }
before=$(manifest)

mkdir "$work/elsewhere" "$work/data"
cd "$work/elsewhere"
export XDG_DATA_HOME=$work/data HOME=$work
QT_QPA_PLATFORM=offscreen "$prefix/bin/wanderkit" --tour "$work/tour" >"$work/tour.txt"
grep -q 'launcher.png$' "$work/tour.txt" || { echo "the installed tour wrote no launcher.png" >&2; exit 1; }
"$prefix/bin/wanderkit" cities Paris >"$work/cities.txt"
grep -q 'Paris' "$work/cities.txt" || { echo "the installed program found no Paris" >&2; exit 1; }

[ "$before" = "$(manifest)" ] || { echo "the program wrote into its prefix" >&2; exit 1; }

desktop-file-validate "$prefix/share/applications/$app.desktop"
appstreamcli validate --no-net "$prefix/share/metainfo/$app.metainfo.xml"
echo "installation checked"
