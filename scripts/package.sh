#!/usr/bin/env bash
# Makes the packages in build/package/, has the validators look at them, and tries them on this machine where it may: as
# root, with no other package of the game installed. Run by ./check --package.
set -eu
cd "$(dirname "$0")/.."
. scripts/build.sh
need package web
build release sarnoth sarnoth_content sarnoth_delivery

rm -rf build/package
quietly cpack --config build/release/CPackConfig.cmake -B build/package || exit 1
rm -rf build/package/_CPack_Packages
folder=$(echo build/package/*.tar.gz)
deb=$(echo build/package/*.deb)

# The page: a folder for a server, and one file that opens by a double click.
build_web sarnoth_web
web=$(basename "$folder" .tar.gz)-web
cp build/web/sarnoth.html "build/package/${web%-web}.html"
tar --sort=name --owner=0 --group=0 --numeric-owner --mtime="@$(git log -1 --format=%ct)" --transform "s|^\.|$web|" \
    -C build/web/site -c . | gzip -9n >"build/package/$web.tar.gz"

desktop-file-validate delivery/sarnoth3.desktop
appstreamcli validate --no-net build/release/delivery/*.metainfo.xml
lintian --fail-on error,warning --info --allow-root "$deb"
echo "Neither errors nor warnings in $deb"

if [ "$(id -u)" -ne 0 ]; then
    echo "Not tried: that needs root"
elif dpkg-query -W sarnoth3 >/dev/null 2>&1; then
    echo "Not tried: sarnoth3 is installed here, and the trial would take it away"
else
    tests/delivery/packages.sh "$folder" "$deb"
fi
ls -l build/package/*
