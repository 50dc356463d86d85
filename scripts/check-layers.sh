#!/usr/bin/env bash
# Fails when a folder of src/ includes a folder that stands above it. Folders from the ground up:
# each may include only itself and the folders before it. platform/ implements the interfaces of
# the folders below it and app/ wires everything, so only app/ includes platform/; the input helper
# (helper/) includes nothing of the others and nothing includes it.
#   usage: check-layers.sh [src-folder]
set -euo pipefail

src="${1:-$(dirname "${BASH_SOURCE[0]}")/../src}"
layers=(settings capture overlay shortcuts ui platform app)

rank_of() {
    local i
    for i in "${!layers[@]}"; do
        [ "${layers[$i]}" = "$1" ] && { echo "$i"; return; }
    done
    echo -1
}

status=0
while IFS= read -r hit; do
    file=${hit%%:*}
    rest=${hit#*:}
    line=${rest%%:*}
    included=$(sed -E 's/^[^"]*"([a-z0-9_]+)\/.*/\1/' <<<"${rest#*:}")
    folder=$(sed -E "s#^${src%/}/([^/]+)/.*#\\1#" <<<"$file")
    [ "$folder" = "$included" ] && continue
    [ -d "$src/$included" ] || continue # a system or generated header, not a folder of ours
    from=$(rank_of "$folder")
    to=$(rank_of "$included")
    if [ "$folder" = helper ] || [ "$included" = helper ] || [ "$from" -lt 0 ] || [ "$to" -gt "$from" ]; then
        echo "$file:$line: $folder/ includes $included/, which stands above it"
        status=1
    fi
done < <(grep -rnE --include='*.h' --include='*.cpp' --include='*.in' '^[[:space:]]*#[[:space:]]*include[[:space:]]*"[a-z0-9_]+/' "$src" | sort)

[ "$status" -eq 0 ] && echo "layers: every include of src/ points to its own folder or one below"
exit "$status"
