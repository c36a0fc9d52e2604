#!/bin/sh
# check_skin_test.sh SOURCE_FOLDER PROGRAM: the skin check passes the default skin and finds faults.
root=$1
program=$2
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
faults=0

expect() { # expect RESULT WORDS: the program's result, and what stands in its output
  "$program" "$folder" >"$folder/log" 2>&1
  result=$?
  if [ "$result" -ne "$1" ] || ! grep -qF -e "$2" "$folder/log"; then
    echo "$result instead of $1, or not there: $2"
    cat "$folder/log"
    faults=1
  fi
}
fresh() { cp -r "$root/skins/default/." "$folder"; }
# Each line of the table: file | sed script | where and what
finds() {
  while IFS='|' read -r file script words; do
    fresh
    sed -i "$script" "$folder/$file"
    cmp -s "$folder/$file" "$root/skins/default/$file" && { echo "no change: $script"; faults=1; }
    expect 1 "$file:$words"
  done
}

fresh && expect 0 "No faults were found."
finds <<'TABLE'
ui_control.xml|s/caption="3"/captoin="3"/|16: the attribute captoin
ui_control.xml|0,/<control id="4"/s//<control id="3"/|19: a second <control> with id 3
ui_control.xml|s/#E8EEF4/E8EEF4/|19: text-color="E8EEF4"
ui_control.xml|0,/width="96"/s//width="-96"/|16: width="-96"
ui_control.xml|s/image="panel_bg/image="..\/panel_bg/|62: image="../panel_bg.png"
ui_control.xml|s/toolbar_crop_{state}/toolbar_crop/|38: images="toolbar_crop.png"
ui_control.xml|s/cropbar_save_{state}/cropbar_{state}/|16: there is no picture image/cropbar_hover.png
ui_control.xml|s/caption="5"/caption="50"/|28: there is no caption 50 for control 5
ui_control.xml|s/<control id="3" x="196"/<control id="8" x="196"/| control 3 of list 100 is missing: open
ui_control.xml|s/<list id="4"/<list id="40"/| list 4 is missing or empty: the bar
ui_control.xml|s/x="12" y="8"/x="12" y="20"/|38: control 1 reaches below its window, which is 76
ui_control.xml|s/x="12" y="8"/x="-1" y="8"/|38: control 1 lies outside
ui_control.xml|s/padding-left="38"/padding-left="80"/|16: the caption
ui_control.xml|0,/height="40"/s//height=40/|16: the value of height stands without
ui_language.xml|s/<list id="100">/<list id="4">/|12: a second <list> with id 4
ui_language.xml|0,/ text="[^"]*"/s///|5: text is missing in <caption>
ui_language.xml|0,/font="1"/s//font="70"/|5: there is no font 70
ui_language.en.xml|s/<caption id="2".*"Cancel".*//| caption 2 of list 4 is missing
ui_language.en.xml|0,/text="Redo"/s//text="Draw another rectangle"/|5: the caption Draw another
ui_language.en.xml|0,/font="1"/s//font="70"/|5: there is no font 70
ui_language.en.xml|s/{1}\. {2}/{2}/|41: caption 20 of list 102 has other marks
ui_language.xml|s/<list id="102">/<list id="112">/| list 102 is missing or empty: what
ui_language.xml|s/<caption id="37".*//| caption 37 of list 102 is missing
ui_language.xml|s/{1}。{2}/{3}/|41: caption 20 of list 102 has other marks
ui_control.xml|s/<control id="5" text-color="#E8EEF4"/<control id="5"/|71: control 5 of list 102 has no colour
ui_control.xml|s/<control id="23" width="640"/<control id="23"/|79: control 23 of list 102 has no size
ui_control.xml|s/<control id="20" height="40"/<control id="20"/|76: control 20 of list 102 has no size
ui_control.xml|s/<control id="20" height="40"/<control id="20" height="30000"/|76: control 20 of list 102 has no
ui_logfont.xml|s/size="14"/size="big"/|4: size="big"
ui_logfont.xml|s/黑体/Nonesuch/|4: the face Nonesuch
ui_logfont.xml|s/<\/fonts>//|13: the file ends too early
TABLE
fresh && rm "$folder/ui_logfont.xml" && expect 1 "ui_logfont.xml: the file is missing"
fresh && echo broken >"$folder/image/panel_bg.png" &&
  expect 1 "the picture image/panel_bg.png is damaged"
fresh && sed -i '/<!-- The toolbar/,/^<\/controls>/{/<\/controls>/!d}' "$folder/ui_control.xml" &&
  expect 1 "3 faults were found."
"$program" --without-capture "$folder" >"$folder/log" || { cat "$folder/log" && faults=1; }

exit "$faults"
