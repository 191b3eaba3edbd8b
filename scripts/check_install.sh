#!/bin/bash
# check_install.sh BUILD: installs a built program into a folder of its own, checks what the desktop
# will read of it, starts it from there, and checks the Debian package. A missing tool fails.
set -euo pipefail
build=$(realpath "$1")
source=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
prefix=$scratch/usr
share=$prefix/share

Fail() {
    echo "failed: $1" >&2
    exit 1
}

# Expect WHAT VALUE WANTED
Expect() { [[ $2 == "$3" ]] || Fail "$1: found “$2”, wanted “$3”"; }

for tool in desktop-file-validate update-desktop-database appstreamcli update-mime-database gio \
    man lintian cpack dpkg-deb ldd; do
    command -v "$tool" >/dev/null || Fail "$tool is missing"
done

echo "-- installing"
cmake --install "$build" --prefix "$prefix" --strip >"$scratch/install.log" ||
    { cat "$scratch/install.log"; Fail "the installation"; }

echo "-- what the desktop reads"
desktop-file-validate "$share/applications/parapico.desktop"
# The project has no domain to name the program by.
appstreamcli validate --no-net --override cid-desktopapp-is-not-rdns=info \
    "$share/metainfo/parapico.metainfo.xml"
update-mime-database "$share/mime" 2>/dev/null  # it misses the folder in the search path
update-desktop-database "$share/applications"
for page in "$share/man/man1/parapico.1.gz" "$share/man/ja/man1/parapico.1.gz"; do
    LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" \
        >/dev/null 2>"$scratch/man.log"
    [[ ! -s $scratch/man.log ]] || { cat "$scratch/man.log"; Fail "the manual page $page"; }
done

echo "-- kinds of files"
# ContentType FILE: what a file manager takes it for.
ContentType() {
    XDG_DATA_DIRS=$share:/usr/share XDG_DATA_HOME=$scratch/none \
        gio info -a standard::content-type "$1" | sed -n 's/.*content-type: //p'
}
show=application/x-parapico-show
link=application/x-parapico-link
# Kind, tag in the first line; each with its usual name, and with none.
while read -r kind extension tag; do
    for name in "a.$extension" "${tag}_nameless"; do
        printf "$tag\r\na\r\n 3000 \r\n" >"$scratch/$name"
        Expect "kind of $name, which begins with $tag" "$(ContentType "$scratch/$name")" "$kind"
    done
done <<KINDS
$show kvs 21vue3167893
$show kvs 21vue31678
$show kvs \xef\xbb\xbf21vue3167893
$show kvs vue2
$show kvs vue3167
$show kvs 1vue31
$link kvl 1vue3167
$link kvl \xef\xbb\xbf1vue3167
KINDS
printf 'vuelta al mundo\r\n' >"$scratch/nameless"
Expect "kind of a letter" "$(ContentType "$scratch/nameless")" text/plain
for kind in "$show" "$link"; do
    openers=$(PATH=$prefix/bin:$PATH XDG_DATA_DIRS=$share XDG_DATA_HOME=$scratch/none \
        XDG_CONFIG_HOME=$scratch/none XDG_CONFIG_DIRS=$scratch/none gio mime "$kind")
    [[ $openers == *parapico.desktop* ]] || Fail "no program opens $kind"
done

echo "-- the installed program"
touch "$share/parapico/assets/only-here.txt"
echo quit >"$scratch/quit.robot"
QT_QPA_PLATFORM=offscreen "$prefix/bin/parapico" --robot "$scratch/quit.robot" \
    --app-folder "$scratch/home"
[[ -f $scratch/home/only-here.txt ]] || Fail "the program folder is not filled from the installed files"
for program in bin/parapico libexec/parapico/parapico-decoder libexec/parapico/parapico-svg; do
    [[ $(ldd "$prefix/$program") != *"not found"* ]] || Fail "a library of $program is missing"
done

echo "-- pictures that other processes decode"
# A grey pixel, uncompressed: head, no palette, no resources, no layers, the way of storing, pixel.
printf '8BPS\0\1\0\0\0\0\0\0\0\1\0\0\0\1\0\0\0\1\0\10\0\1%b\0\0\200' \
    '\0\0\0\0\0\0\0\0\0\0\0\0' >"$scratch/grey.psd"
cp "$source/tests/sandbox/drawings/shapes.svg" "$scratch"
printf 'vue2\r\na.kvs\r\n 3000 \r\n 1 \r\n 7 \r\n*.wav\r\n 2 \r\ngrey.psd\r\nshapes.svg\r\n' \
    >"$scratch/pictures.kvs"
printf '%s\n' "choose $scratch/pictures.kvs" "menu mnuOPEN" "click Form1.Command1" "+6000 quit" \
    >"$scratch/pictures.robot"
QT_QPA_PLATFORM=offscreen "$prefix/bin/parapico" --robot "$scratch/pictures.robot" \
    --app-folder "$scratch/home" --trace "$scratch/trace"
for picture in grey.psd shapes.svg; do
    grep -q "\"event\":\"slide\".*$picture" "$scratch/trace" || Fail "$picture is not shown"
done

echo "-- the Debian package"
(cd "$scratch" && cpack -G DEB --config "$build/CPackConfig.cmake" -B "$scratch/package") \
    >"$scratch/cpack.log" 2>&1 || { cat "$scratch/cpack.log"; Fail "packaging"; }
package=$(echo "$scratch"/package/*.deb)
dpkg-deb --contents "$package" >"$scratch/contents"
for file in bin/parapico libexec/parapico/parapico-decoder libexec/parapico/parapico-svg \
    share/applications/parapico.desktop share/mime/packages/parapico.xml \
    share/icons/hicolor/scalable/apps/parapico.svg share/man/man1/parapico.1.gz \
    share/parapico/assets/parapico.svg; do
    grep -q " \./usr/$file\$" "$scratch/contents" || Fail "the package lacks $file"
done
# What the program needs while it runs must come with it.
sed -n '/To run:/,/The scripts/{/#/d;p}' "$source/scripts/install_packages.sh" | tr ' ' '\n' |
    sed '/^$/d' >"$scratch/run_time"
[[ -s $scratch/run_time ]] || Fail "install_packages.sh names nothing to run"
depends=" $(dpkg-deb --field "$package" Depends | sed 's/([^)]*)//g; s/[,|]/ /g') "
while read -r needed; do
    [[ $depends == *" $needed "* ]] || Fail "the package does not depend on $needed"
done <"$scratch/run_time"
# The package answers no report of the distribution's.
lintian --allow-root --fail-on error,warning \
    --suppress-tags initial-upload-closes-no-bugs "$package"
echo "installed and packaged as expected"
