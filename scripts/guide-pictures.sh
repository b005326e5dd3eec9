#!/usr/bin/env bash
# Takes the pictures of the README and the guide anew, from the program as it is now, into
# docs/images. Look at each of them afterwards: what is cut out lies at fixed places of the window,
# and the help window has room for 770 pixels.
set -euo pipefail
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
# shellcheck source=scripts/common.sh
source "$project/scripts/common.sh"

work=$project/run/pictures
images=$project/docs/images
bin=${1:-$project/build/bin} # or a folder of programs that are built
day=2026-11-17 # a Tuesday; the demo faculty lives around it
makeup_day=2026-11-24
week_a=2026-09-07 # so that the day is of week A
day_options=(--date "$day" --week A)

# The window's parts at 1366x768, as width x height + left + top.
readonly panels_day=462x108+4+57
readonly panel_boxes=112x108+468+57
readonly panel_rooms=186x108+583+57
readonly panel_page=146x108+770+57
readonly panel_subject=136x108+1033+57
readonly panel_print=188x108+1171+57

prepare() {
    # shellcheck disable=SC2154 # common.sh sets it
    ensure_packages "${build_packages[@]}" xvfb xdotool openbox imagemagick poppler-utils
    rm -rf "$work"
    mkdir -p "$work/odbc" "$images"
    use_private_folders "$work"
    if [[ $bin == "$project/build/bin" ]]; then
        configure "$project/build" release
        build "$project/build" tempora tempora-demo
    fi
    "$bin/tempora-demo" --sqlite "$work/demo.sqlite" --date "$day"
    export ODBCSYSINI=$work/odbc ODBCINI=$work/odbc/odbc.ini
    printf '[SQLite3]\nDriver=%s\n' \
        "$(find /usr/lib /usr/local/lib -name libsqlite3odbc.so -print -quit)" \
        >"$work/odbc/odbcinst.ini"
    printf '[MonKalo]\nDriver=SQLite3\nDatabase=%s\n' "$work/demo.sqlite" >"$ODBCINI"
}

# shot NAME PALETTE LINES [options of the program ...]: the whole screen as $work/NAME.png. The
# function `act`, when there is one, does what a user does before the picture is taken.
shot() {
    local name=$1 palette=$2 lines=$3 number screen manager program
    shift 3
    printf '[Settings]\nPalette=%s\nTotal_L_P=%s\nSemaineA=%s\n' "$bin/Styles/$palette.mpl" \
        "$lines" "$week_a" >"$work/settings.ini"
    rm -f "$work/display"
    mkfifo "$work/display"
    Xvfb -displayfd 3 -screen 0 1366x768x24 -nolisten tcp 3>"$work/display" 2>/dev/null &
    screen=$!
    read -r number <"$work/display"
    export DISPLAY=:$number
    openbox 2>/dev/null &
    manager=$!
    sleep 0.5
    "$bin/tempora" --settings "$work/settings.ini" "$@" &
    program=$!
    xdotool search --sync --onlyvisible --name 'Planning des Classes' >/dev/null
    sleep 1.5
    if declare -F act >/dev/null; then
        act
        sleep 0.7
        unset -f act
    fi
    import -window root "$work/$name.png"
    kill "$program" "$manager" "$screen"
    wait "$program" "$manager" "$screen" 2>/dev/null || true
}

# The helpers below make a picture each and print the name of its file.
new_part() { mktemp "$work/part-XXXXXX.miff"; }

# cut NAME PLACE: a part of a shot.
cut() {
    local part
    part=$(new_part)
    convert "$work/$1.png" -crop "$2" +repage "$part"
    echo "$part"
}

beside() {
    local part
    part=$(new_part)
    convert "$@" -bordercolor white -border 4 -background white -gravity center +append "$part"
    echo "$part"
}

below() {
    local part
    part=$(new_part)
    convert "$@" -bordercolor white -border 4 -background white -gravity west -append "$part"
    echo "$part"
}

larger() {
    local part
    part=$(new_part)
    convert "$1" -filter Lanczos -resize 150% "$part"
    echo "$part"
}

# window NAME: the shot of a window, as wide as the guide, with an edge.
window() {
    local part
    part=$(new_part)
    convert "$work/$1.png" -filter Lanczos -resize '768x>' -bordercolor '#888888' -border 1x1 "$part"
    echo "$part"
}

# words SIZE TEXT: a label on white.
words() {
    local part
    part=$(new_part)
    convert -background white -fill '#222222' -font Liberation-Sans-Bold -pointsize "$1" \
        label:"$2" -bordercolor white -border 12x6 "$part"
    echo "$part"
}

# key TEXT: a key of the keyboard.
key() {
    local part
    part=$(new_part)
    convert -background '#f2f2f2' -fill '#222222' -font Liberation-Sans-Bold -pointsize 15 \
        label:"$1" -bordercolor '#f2f2f2' -border 9x6 -bordercolor '#777777' -border 1x1 \
        -bordercolor white -border 4x4 "$part"
    echo "$part"
}

# keep NAME FILE: the picture as the guide's, in few colours, so that it stays small.
keep() {
    convert "$2" +dither -colors 128 -define png:compression-level=9 "PNG8:$images/$1.png"
}

press() { # the key $1, with a click where the mouse is
    xdotool keydown "$1"
    sleep 0.2
    xdotool click 1
    sleep 0.2
    xdotool keyup "$1"
    sleep 0.3
}

# opened TITLE SIZE: waits for the window of that title, makes it as large as that, prints its number.
opened() {
    local window
    window=$(xdotool search --sync --onlyvisible --name "$1")
    xdotool windowsize --sync "$window" "${2%x*}" "${2#*x}"
    sleep 1
    echo "$window"
}

# What the windows of the questions answer, each as a picture of its own.
ask() {
    local window
    xdotool key ctrl+l
    window=$(opened '^Salle libre$' 770x330)
    xdotool type --delay 30 'mardi 9h30 40 places'
    xdotool key alt+r # those that are taken, too
    sleep 0.7
    import -window "$window" "$work/free.png"
    xdotool key Escape
    sleep 0.5
    xdotool mousemove 45 508 click --repeat 2 --delay 60 1 # the name of "Atelier 1"
    window=$(opened '^Semaine' 1000x600)
    import -window "$window" "$work/week.png"
    xdotool key ctrl+shift+w
    window=$(opened '^Semaine' 1000x640)
    import -window "$window" "$work/overview.png"
}

take_shots() {
    shot plan Pastel 14 "${day_options[@]}"
    shot counted Pastel 14 "${day_options[@]}" --counting
    shot makeup Pastel 14 --date "$makeup_day" --makeup
    shot exam Pastel 14 --mode exam --exam-week 1 --day 1 --show class,teacher,subject,invigilator
    shot rooms Pastel 14 "${day_options[@]}" --zone 1 --department PHYS --neutral
    shot subject Pastel 14 "${day_options[@]}" --subject Métallurgie
    local shown
    for shown in class class,teacher class,teacher,subject,type; do
        shot "boxes-$shown" Pastel 14 "${day_options[@]}" --show "$shown"
    done
    local palette
    for palette in Accessible Contraste Gris Automne Jardin Océan Pastel; do
        shot "palette-$palette" "$palette" 29 "${day_options[@]}"
    done
    act() { xdotool mousemove 256 306 click 1; } # the counter of a box of five classes
    shot details Pastel 14 "${day_options[@]}"
    act() { # a box of one class; its tooltip takes a while
        xdotool mousemove 190 585 mousemove_relative 2 0
        sleep 1.5
    }
    shot tip Pastel 14 "${day_options[@]}"
    act() {
        xdotool mousemove 190 585
        press shift
        xdotool mousemove 700 740
    }
    shot class-absent Pastel 14 "${day_options[@]}"
    act() {
        xdotool mousemove 190 585
        press shift # takes it back
        press ctrl
        xdotool mousemove 700 740
    }
    shot students-absent Pastel 14 "${day_options[@]}"
    act() { ask; }
    shot asked Pastel 14 "${day_options[@]}"
}

# The window with numbers on its parts.
numbered_window() {
    local marks=() number=0 place part
    for place in 470,38 395,140 92,245 455,180 240,547 1320,245 577,728 760,756; do
        number=$((number + 1))
        marks+=(-fill '#c01020' -stroke white -strokewidth 2
            -draw "circle $place $((${place%,*} + 14)),${place#*,}"
            -fill white -stroke none -draw "text $((${place%,*} - 6)),$((${place#*,} + 7)) '$number'")
    done
    part=$(new_part)
    convert "$work/counted.png" -font Liberation-Sans-Bold -pointsize 21 "${marks[@]}" \
        -filter Lanczos -resize 770x "$part"
    echo "$part"
}

# The same boxes, with what is ticked to their left.
box_variants() {
    local shown variants=()
    for shown in class class,teacher class,teacher,subject,type; do
        variants+=("$(beside "$(cut "boxes-$shown" "$panel_boxes")" \
            "$(cut "boxes-$shown" 540x118+0+221)")")
    done
    below "${variants[@]}"
}

palette_samples() {
    local palette part samples=()
    for palette in Accessible Contraste Gris Automne Jardin Océan Pastel; do
        samples+=("$(below "$(words 14 "$palette")" "$(cut "palette-$palette" 368x90+0+209)")")
    done
    part=$(new_part)
    montage "${samples[@]}" +set label -tile 2x -geometry +4+4 -gravity west "$part"
    echo "$part"
}

# gesture KEY SHOT: a box, the key to hold, and the box afterwards.
gesture() {
    beside "$(cut plan 148x40+118+566)" "$(key "$1")" "$(words 15 '+ clic  →')" \
        "$(cut "$2" 148x40+118+566)"
}

printed_sheet() {
    local part
    part=$(new_part)
    "$bin/tempora" --settings "$work/settings.ini" --export "$work/sheet.pdf" --week A \
        --date "$makeup_day" --makeup
    pdftoppm -r 150 -png -singlefile "$work/sheet.pdf" "$work/sheet"
    convert "$work/sheet.png" -filter Lanczos -resize 766x -bordercolor '#888888' -border 1x1 "$part"
    echo "$part"
}

make_pictures() {
    keep plan "$(cut plan 1366x768+0+0)"
    keep fenetre "$(numbered_window)"
    keep bulle "$(cut tip 620x150+100+567)"
    keep jour "$(cut plan "$panels_day")"
    keep rattrapage "$(below "$(cut makeup 334x108+4+57)" "$(cut makeup 480x82+872+297)")"
    keep examen "$(cut exam 770x297+0+58)"
    keep cases "$(box_variants)"
    keep salles "$(beside "$(cut rooms "$panel_rooms")" "$(cut rooms 540x194+0+488)")"
    keep page "$(beside "$(cut plan "$panel_page")" "$(cut plan 540x132+0+166)")"
    keep depassement "$(below "$(cut plan 572x40+592+566)" "$(cut details 190x150+580+269)")"
    keep totaux "$(cut counted 770x93+0+652)"
    keep matiere "$(beside "$(cut subject "$panel_subject")" "$(cut subject 540x118+0+488)")"
    keep impression "$(cut plan "$panel_print")"
    keep feuille "$(printed_sheet)"
    keep palettes "$(palette_samples)"
    keep libre "$(window free)"
    keep semaine "$(window week)"
    keep toutes "$(window overview)"
    keep absences "$(larger "$(below "$(gesture Maj class-absent)" "$(gesture Ctrl students-absent)")")"
}

prepare
take_shots
make_pictures
say "The pictures are in ${images#"$project"/}."
