#include "corvane/platform/system/user/input/key_characters.h"

#include "corvane/platform/system/user/constants.h"

namespace corvane::system {
namespace {

struct Punctuation {
  int virtual_key;
  wchar_t plain;
  wchar_t shifted;
};
constexpr Punctuation kPunctuation[] = {
    {0xBA, L';', L':'},  {0xBB, L'=', L'+'}, {0xBC, L',', L'<'},  {0xBD, L'-', L'_'},
    {0xBE, L'.', L'>'},  {0xBF, L'/', L'?'}, {0xC0, L'`', L'~'},  {0xDB, L'[', L'{'},
    {0xDC, L'\\', L'|'}, {0xDD, L']', L'}'}, {0xDE, L'\'', L'"'}, {0x6A, L'*', L'*'},
    {0x6B, L'+', L'+'},  {0x6D, L'-', L'-'}, {0x6E, L'.', L'.'},  {0x6F, L'/', L'/'},
};
constexpr wchar_t kShiftedDigits[] = L")!@#$%^&*(";

wchar_t control_character(int virtual_key) {
  switch (virtual_key) {
    case VK_RETURN:
    case VK_ESCAPE:
    case VK_BACK:
    case VK_TAB:
      return static_cast<wchar_t>(virtual_key);
    default:
      return 0;
  }
}

}  // namespace

wchar_t key_character(int virtual_key, KeyModifiers modifiers) {
  if (const wchar_t control = control_character(virtual_key)) return control;
  const bool letter = virtual_key >= 'A' && virtual_key <= 'Z';
  if (modifiers.control) return letter ? static_cast<wchar_t>(virtual_key - 'A' + 1) : L'\0';
  if (letter) return static_cast<wchar_t>(modifiers.shift ? virtual_key : virtual_key + 32);
  if (virtual_key == VK_SPACE) return L' ';
  if (virtual_key >= '0' && virtual_key <= '9') {
    return modifiers.shift ? kShiftedDigits[virtual_key - '0'] : static_cast<wchar_t>(virtual_key);
  }
  if (virtual_key >= 0x60 && virtual_key <= 0x69) {
    return static_cast<wchar_t>(L'0' + virtual_key - 0x60);
  }
  for (const Punctuation& row : kPunctuation) {
    if (row.virtual_key == virtual_key) return modifiers.shift ? row.shifted : row.plain;
  }
  return 0;
}

}  // namespace corvane::system
