#!/usr/bin/env bash
# Puts the page together in build/web/site/: the module, the page's own files, the game's packed, everything also compressed;
# and build/web/sarnoth.html, all of it as one file.
# Usage: web.sh NATIVE_BUILD_FOLDER      after the preset "web" was built
set -eu
cd "$(dirname "$(readlink -f "$0")")/.."
native=$(readlink -f "$1")
build=build/web
site=$build/site
module=$build/module
# The packs change with the game's files or the module alone.
sum=$( (cat $module/sarnoth.wasm; cd "$native/game"; find dat map pic wav -type f | LC_ALL=C sort | xargs cat) |
    sha256sum | cut -c1-16)
mkdir -p $build/packs $site
if [ "$(cat $build/packs/sum 2>/dev/null)" != "$sum" ]; then
    /usr/bin/python3 browser/pack.py "$native/game" "$sum" $build/packs
    echo "$sum" >$build/packs/sum
fi

files="index.html page.css manifest.webmanifest sarnoth.js sarnoth.wasm game.pack.gz sounds.pack
    icon48.png icon128.png icon256.png $(cd browser/page && echo *.js)"
cp -p browser/page/* $module/sarnoth.js $module/sarnoth.wasm $build/packs/game.pack.gz $build/packs/sounds.pack $site
for size in 48 128 256; do cp "$native/art/stored/icon$size.png" $site; done

list=""
for file in $files; do [ $file = service_worker.js ] || list="$list${list:+, }\"$file\""; done
whole=$(cd $site && for file in $files; do [ $file = service_worker.js ] || cat "$file"; done | sha256sum | cut -c1-16)
sed "s/@SUM@/$whole/; s|@FILES@|\"./\", $list|" browser/page/service_worker.js >$site/service_worker.js

for file in $files; do
    case $file in *.png | *.gz) continue ;; esac
    [ $site/$file.br -nt $site/$file ] && cmp -s $site/$file <(brotli -dc $site/$file.br) || brotli -f -q 11 -w 24 $site/$file
done
/usr/bin/python3 browser/one_file.py $site $build/sarnoth.html
