#!/usr/bin/env bash
# One check of what packages install beside the program.
#   check.sh CHECK PROJECT_FOLDER PROGRAM VERSION
set -euo pipefail
check=$1 program=$3 version=$4
desktop=$2/packaging/desktop
debian=$2/packaging/debian

fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

# The options that the program itself knows, one a line; those of the program `$1` beside it.
options() {
    "${program%/*}/${1:-tempora}" --help | sed -n 's/^  \(-[a-z?], \)*\(--[a-z-]*\).*/\2/p'
}

# What completion offers for the words given, one a line.
offered() {
    (
        set +eu # the library is written without them
        # shellcheck disable=SC1091
        source /usr/share/bash-completion/bash_completion
        # shellcheck disable=SC1091
        source "$desktop/tempora.bash"
        COMP_WORDS=("${completed:-$program}" "$@")
        COMP_CWORD=$#
        COMP_LINE="${COMP_WORDS[*]}"
        COMP_POINT=${#COMP_LINE}
        _tempora "${COMP_WORDS[0]}"
        printf '%s\n' "${COMPREPLY[@]}"
    )
}

case $check in
    entryIsValid)
        said=$(desktop-file-validate "$desktop/tempora.desktop") || fail "$said"
        [[ -z $said ]] || fail "$said"
        ;;
    metainfoIsValid)
        appstreamcli validate --no-net "$desktop"/*.metainfo.xml
        ;;
    manualsHaveNoWarnings)
        for page in "$desktop"/*.1; do
            said=$(MANROFFSEQ='' LC_ALL=C.UTF-8 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)
            [[ -z $said ]] || fail "$page: $said"
        done
        ;;
    manualNamesEveryOption)
        count=0
        while read -r option; do
            # Up to its end: --week is not named where --weeks-running and --week-of are.
            grep -qP -- "\\Q${option//-/\\-}\\E(?![a-z]|\\\\-)" "$desktop/tempora.1" ||
                fail "tempora.1 does not name $option"
            count=$((count + 1))
        done < <(options)
        ((count >= 40)) || fail "The program told $count options only."
        ;;
    versionIsToldEverywhere)
        grep -qF "<release version=\"$version\"" "$desktop"/*.metainfo.xml || fail "metainfo"
        for page in "$desktop"/*.1; do
            grep -q "^\.TH .* \"Tempora $version\"" "$page" || fail "$page"
        done
        head -n 1 "$debian/changelog" | grep -qF "($version-" || fail "debian/changelog"
        ;;
    completionOffersEveryOption)
        for name in tempora tempora-demo tempora-setup; do
            completed=${program%/*}/$name
            [[ -n $(options "$name") ]] || fail "$name tells no options"
            diff <(options "$name" | sort) <(offered -- | sort) || fail "$name"
        done
        ;;
    completionOffersValues)
        [[ $(offered --mode ex) == exam ]] || fail "--mode ex"
        [[ $(offered --week '' | paste -sd' ') == "all A B" ]] || fail "--week"
        [[ $(offered --every) == --every-room ]] || fail "--every"
        [[ -z $(offered --room am) ]] || fail "--room is a name that nobody here knows"
        ;;
    *) fail "No such check: $check" ;;
esac
