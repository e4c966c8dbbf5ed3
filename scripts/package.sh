#!/usr/bin/env bash
# Makes the packages in build/package/, has the validators look at them, and tries them on this machine where it may: as
# root, with no other package of the game installed. Run by ./check --package.
set -eu
cd "$(dirname "$0")/.."
. scripts/build.sh
need package
build release sarnoth sarnoth_content sarnoth_delivery

rm -rf build/package
quietly cpack --config build/release/CPackConfig.cmake -B build/package || exit 1
rm -rf build/package/_CPack_Packages
folder=$(echo build/package/*.tar.gz)
deb=$(echo build/package/*.deb)

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
ls -l "$folder" "$deb"
