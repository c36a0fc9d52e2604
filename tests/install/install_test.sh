#!/usr/bin/env bash
# install_test.sh STEP FOLDER: one step of the test, with what it makes under FOLDER. ctest gives
# SOURCE, BUILD, CMAKE, CXX and SANITIZE.
set -euo pipefail
step=$1
work=$2
prefix=$work/moved
flags=()
if [ -n "$SANITIZE" ]; then
  flags=("-fsanitize=$SANITIZE")
fi
unset CORVANE_SKIN

fail() {
  echo "$1" >&2
  exit 1
}

package_flags() {
  local folder
  folder=$(dirname "$(find "$prefix" -name corvane.pc)")
  PKG_CONFIG_PATH=$folder PKG_CONFIG_LIBDIR=$folder pkg-config "$@" corvane
}

# Installed under one name and used under another: nothing may remember the first.
tree() {
  rm -rf "$work"
  "$CMAKE" --install "$BUILD" --prefix "$work/staging"
  mv "$work/staging" "$prefix"
}

contents() {
  local file
  for file in include/corvane/platform/platform.h include/corvane/layers/buttons/window_layer.h \
    include/corvane/platform/system/user/window_system.h share/corvane/skins/default/ui_control.xml \
    share/corvane/skins/default/image/toolbar_crop_normal.png share/doc/*/LICENSE; do
    compgen -G "$prefix/$file" >/dev/null || fail "not installed: $file"
  done
  if grep -rnF -e "$SOURCE" -e "$BUILD" --include='*.cmake' --include='*.pc' --include='*.h' \
    "$prefix"; then
    fail "an installed text names the source or the build folder"
  fi
}

# A host needs the standard library's headers and ours, no others.
headers() {
  if grep -rnE '#\s*include\s*<.*(cairo|pango|pixbuf|glib|SDL|pugixml)' "$prefix/include"; then
    fail "an installed header wants another library's headers"
  fi
  (cd "$prefix/include" && find corvane -name '*.h' | sort | sed 's/.*/#include "&"/') \
    >"$work/all_headers.cpp"
  echo 'int main() {}' >>"$work/all_headers.cpp"
  # shellcheck disable=SC2046
  "$CXX" -std=c++20 -Wall -Wextra -Werror -fsyntax-only $(package_flags --cflags) \
    "$work/all_headers.cpp"
}

expect_output() {
  local output
  output=$("$2") || fail "the host ended with status $?: $output"
  [ "$output" = "$1" ] || fail "the host printed: $output"
}

# The example as it is, built with find_package. In memory nobody clicks, so it ends by itself.
find_package() {
  rm -rf "$work/find_package"
  "$CMAKE" -S "$SOURCE/examples/minimal_host" -B "$work/find_package" -G Ninja \
    -DCMAKE_CXX_COMPILER="$CXX" -DCMAKE_CXX_FLAGS="${flags[*]}" -DCMAKE_PREFIX_PATH="$prefix"
  "$CMAKE" --build "$work/find_package"
  expect_output "" "$work/find_package/minimal_host"
}

# The example together with somebody who clicks, built with pkg-config. Its skin is the installed
# one: when two buttons change places there, the click hits the other.
pkg_config() {
  local compile link
  read -r -a compile <<<"$(package_flags --cflags)"
  read -r -a link <<<"$(package_flags --libs)"
  "$CXX" -std=c++20 "${flags[@]}" "${compile[@]}" -Dmain=host_main \
    -c "$SOURCE/examples/minimal_host/main.cpp" -o "$work/host.o"
  "$CXX" -std=c++20 "${flags[@]}" "${compile[@]}" "$SOURCE/tests/install/click_driver.cpp" \
    "$work/host.o" "${link[@]}" "-Wl,-rpath,$(package_flags --variable=libdir)" -o "$work/host"
  expect_output "button 2 was clicked" "$work/host"
  sed -i -e 's/id="2" x="104"/id="3" x="104"/' -e 's/id="3" x="196"/id="2" x="196"/' \
    "$prefix/share/corvane/skins/default/ui_control.xml"
  expect_output "button 3 was clicked" "$work/host"
}

"$step"
