#!/usr/bin/env bash
# The layers of the source tree: core and platform at the bottom include no
# part above them; nothing but the app (and the command-line program, which
# stands beside it) includes the app; code without a window includes no
# widgets. Prints each offending line and fails when there is one.
set -u
src="${1:?usage: check.sh SRC_DIR}"
cd "$src" || exit 2
parts='documents|markup|publish|websites|generators|images|texttools|tagdialogs|automation|transfer'
bad=0
report() {
    local rule="$1" lines="$2"
    [ -z "$lines" ] && return
    echo "$rule:"
    echo "$lines"
    bad=1
}
report "core and platform include a part above them" \
    "$(grep -rnE "#include \"($parts|app)/" core platform)"
report "a part includes the app" \
    "$(grep -rnE '#include "app/' --include='*.h' --include='*.cpp' . | grep -v '^\./app/')"
report "code without a window includes a widget folder or Qt Widgets" \
    "$(grep -rnE '#include ("[a-z]+/ui/|<Q(Widget|Dialog|Main|Mdi|Action|Menu|Push|Label|Tool|Message|FileDialog|Application|Color)|<Qsci)' \
        core documents markup publish websites generators images texttools platform tagdialogs automation transfer 2>/dev/null \
        --include='*.h' --include='*.cpp' | grep -vE '^[a-z]+/ui/')"
if [ "$bad" -ne 0 ]; then
    echo "layers: FAILED"
    exit 1
fi
echo "layers: 1 passed, 0 failed"
