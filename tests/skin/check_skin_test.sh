#!/bin/sh
# check_skin_test.sh SOURCE_FOLDER: the skin check passes the default skin and finds faults.
check=$1/scripts/check-skin
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
faults=0

expect() { # expect RESULT DESCRIPTION
  "$check" "$folder" >"$folder/log" 2>&1
  result=$?
  if [ "$result" -ne "$1" ]; then
    echo "$2: result $result instead of $1"
    cat "$folder/log"
    faults=1
  fi
}
fresh() { cp -r "$1/skins/default/." "$folder"; }
change() { # change FILE SED-SCRIPT
  fresh "$root"
  sed -i "$2" "$folder/$1"
  ! cmp -s "$folder/$1" "$root/skins/default/$1" || { echo "no change: $2"; faults=1; }
}

root=$1
fresh "$root" && expect 0 "the default skin"
change ui_control.xml 's/caption="3"/captoin="3"/' && expect 1 "an attribute that does not exist"
change ui_control.xml '0,/<control id="4"/s//<control id="3"/' && expect 1 "an id used twice"
change ui_control.xml 's/#E8EEF4/E8EEF4/' && expect 1 "a colour without #"
change ui_control.xml '0,/width="96"/s//width="-96"/' && expect 1 "a negative width"
change ui_control.xml 's/image="panel_bg/image="..\/panel_bg/' && expect 1 "a name outside the folder"
change ui_control.xml 's/toolbar_crop_{state}/toolbar_crop/' && expect 1 "images without {state}"
change ui_control.xml 's/cropbar_save_{state}/cropbar_{state}/' && expect 1 "images that are missing"
change ui_language.xml 's/<list id="100">/<list id="4">/' && expect 1 "a list number used twice"
change ui_language.xml '0,/ text="[^"]*"/s///' && expect 1 "a caption without text"
change ui_logfont.xml 's/size="14"/size="big"/' && expect 1 "a size that is no number"
change ui_logfont.xml 's/<\/fonts>//' && expect 1 "a file cut short"
fresh "$root" && rm "$folder/ui_logfont.xml" && expect 1 "a file that is missing"

exit "$faults"
