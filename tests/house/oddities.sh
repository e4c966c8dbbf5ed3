#!/usr/bin/env bash
# Every deliberate oddity in the code has its row in docs/oddities.md: each row names the file, and no file has more
# oddities than rows.
# Usage: oddities.sh SOURCE_FOLDER
set -u
cd "$1" || exit 2
failed=0
while IFS=: read -r file count; do
    rows=$(grep -c "| \`$file\` |" docs/oddities.md)
    if [ "$rows" -lt "$count" ]; then
        echo "$file: $count oddities, $rows rows in docs/oddities.md"
        failed=1
    fi
done < <(grep -rc 'ODDITY' ai combat data field mission personal platform shell state view --include='*.h' --include='*.cpp' | grep -v ':0$')
exit $failed
