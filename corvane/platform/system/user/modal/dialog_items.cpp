// Functions on a window's controls by their ids.
#include "corvane/platform/system/user/system_state.h"

namespace corvane_system {

LRESULT SendDlgItemMessageW(HWND dialog, int id, UINT message, WPARAM wparam, LPARAM lparam) {
  HWND item = GetDlgItem(dialog, id);
  return item == nullptr ? 0 : SendMessageW(item, message, wparam, lparam);
}

BOOL SetDlgItemTextW(HWND dialog, int id, LPCWSTR text) {
  return SetWindowTextW(GetDlgItem(dialog, id), text);
}

UINT GetDlgItemTextW(HWND dialog, int id, LPWSTR buffer, int size) {
  if (buffer != nullptr && size > 0) buffer[0] = 0;
  return static_cast<UINT>(GetWindowTextW(GetDlgItem(dialog, id), buffer, size));
}

BOOL CheckDlgButton(HWND dialog, int id, UINT check) {
  HWND item = GetDlgItem(dialog, id);
  if (item == nullptr) return FALSE;
  SendMessageW(item, BM_SETCHECK, check, 0);
  return TRUE;
}

UINT IsDlgButtonChecked(HWND dialog, int id) {
  return static_cast<UINT>(SendDlgItemMessageW(dialog, id, BM_GETCHECK, 0, 0));
}

BOOL CheckRadioButton(HWND dialog, int first, int last, int checked) {
  if (GetDlgItem(dialog, checked) == nullptr) return FALSE;
  for (int id = first; id <= last; ++id) {
    if (id != checked) SendDlgItemMessageW(dialog, id, BM_SETCHECK, BST_UNCHECKED, 0);
  }
  return CheckDlgButton(dialog, checked, BST_CHECKED);
}

}  // namespace corvane_system
