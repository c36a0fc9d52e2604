// IsDialogMessageW: Tab, arrows, Enter, Escape and mnemonics among the controls of a window.
#include <cwctype>
#include <optional>
#include <vector>

#include "corvane/platform/system/gdi/text_prefix.h"
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {
namespace {

UINT dialog_code(HWND window, const MSG* message = nullptr) {
  const WPARAM key = message == nullptr ? 0 : message->wParam;
  return static_cast<UINT>(
      SendMessageW(window, WM_GETDLGCODE, key, reinterpret_cast<LPARAM>(message)));
}

void command(HWND dialog, int id, HWND control) {
  SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(static_cast<WORD>(id), BN_CLICKED),
               reinterpret_cast<LPARAM>(control));
}

template <class Wanted>
HWND first_below(HWND parent, Wanted wanted) {
  const Window* found = find(parent);
  if (found == nullptr) return nullptr;
  for (HWND child : children_of(*found)) {
    if (!IsWindow(child)) continue;
    if (wanted(child)) return child;
    const bool holds_controls =
        (static_cast<DWORD>(GetWindowLongW(child, GWL_EXSTYLE)) & WS_EX_CONTROLPARENT) != 0;
    HWND below = holds_controls ? first_below(child, wanted) : nullptr;
    if (below != nullptr) return below;
  }
  return nullptr;
}

void set_default(HWND button, UINT type) {
  const auto style = static_cast<DWORD>(GetWindowLongW(button, GWL_STYLE));
  SendMessageW(button, BM_SETSTYLE, (style & 0xFFFFu & ~BS_TYPEMASK) | type, TRUE);
}

HWND default_button(HWND dialog) {
  return first_below(dialog,
                     [](HWND child) { return (dialog_code(child) & DLGC_DEFPUSHBUTTON) != 0; });
}

// The button that has the focus is the default one; elsewhere the dialog's own is.
void hand_default_to(HWND dialog, HWND control) {
  HWND wanted = control;
  const UINT code = dialog_code(control);
  if ((code & DLGC_DEFPUSHBUTTON) != 0) return;
  if ((code & DLGC_UNDEFPUSHBUTTON) == 0) {
    const auto answer = static_cast<DWORD>(SendMessageW(dialog, DM_GETDEFID, 0, 0));
    wanted = HIWORD(answer) == DC_HASDEFID ? GetDlgItem(dialog, LOWORD(answer)) : nullptr;
    if (wanted == nullptr || (dialog_code(wanted) & DLGC_UNDEFPUSHBUTTON) == 0) return;
  }
  if (HWND old = default_button(dialog)) set_default(old, BS_PUSHBUTTON);
  set_default(wanted, BS_DEFPUSHBUTTON);
}

void focus_control(HWND dialog, HWND control) {
  if (control == nullptr || !IsWindow(control)) return;
  SetFocus(control);
  if ((dialog_code(control) & DLGC_HASSETSEL) != 0) SendMessageW(control, EM_SETSEL, 0, -1);
  hand_default_to(dialog, control);
}

void on_tab(HWND dialog) {
  const BOOL back = GetKeyState(VK_SHIFT) < 0 ? TRUE : FALSE;
  focus_control(dialog, GetNextDlgTabItem(dialog, GetFocus(), back));
}

void on_arrow(HWND dialog, WPARAM key) {
  const BOOL back = key == VK_LEFT || key == VK_UP ? TRUE : FALSE;
  HWND from = GetFocus();
  HWND next = GetNextDlgGroupItem(dialog, from, back);
  if (next == nullptr || next == from) return;
  focus_control(dialog, next);
  const auto type = static_cast<DWORD>(GetWindowLongW(next, GWL_STYLE)) & BS_TYPEMASK;
  const bool radio = (dialog_code(next) & DLGC_RADIOBUTTON) != 0 && type == BS_AUTORADIOBUTTON;
  if (radio) SendMessageW(next, BM_CLICK, 0, 0);
}

void on_enter(HWND dialog) {
  HWND focus = GetFocus();
  const bool focused_default =
      IsChild(dialog, focus) != FALSE && (dialog_code(focus) & DLGC_DEFPUSHBUTTON) != 0;
  HWND button = focused_default ? focus : nullptr;
  int id = button != nullptr ? GetDlgCtrlID(button) : IDOK;
  const auto answer = static_cast<DWORD>(SendMessageW(dialog, DM_GETDEFID, 0, 0));
  if (button == nullptr && HIWORD(answer) == DC_HASDEFID) {
    id = LOWORD(answer);
    button = GetDlgItem(dialog, id);
  } else if (button == nullptr) {
    button = default_button(dialog);
    if (button != nullptr) id = GetDlgCtrlID(button);
  }
  if (button == nullptr || IsWindowEnabled(button)) command(dialog, id, button);
}

void on_escape(HWND dialog) {
  HWND button = GetDlgItem(dialog, IDCANCEL);
  if (button == nullptr || IsWindowEnabled(button)) command(dialog, IDCANCEL, button);
}

// True: the key is the dialog's.
bool on_key(HWND dialog, const MSG& message) {
  const UINT code = dialog_code(message.hwnd, &message);
  if ((code & DLGC_WANTALLKEYS) != 0) return false;
  switch (message.wParam) {
    case VK_TAB:
      if ((code & DLGC_WANTTAB) == 0) on_tab(dialog);
      return (code & DLGC_WANTTAB) == 0;
    case VK_LEFT:
    case VK_UP:
    case VK_RIGHT:
    case VK_DOWN:
      if ((code & DLGC_WANTARROWS) == 0) on_arrow(dialog, message.wParam);
      return (code & DLGC_WANTARROWS) == 0;
    case VK_RETURN:
      on_enter(dialog);
      return true;
    case VK_ESCAPE:
      on_escape(dialog);
      return true;
    default:
      return false;
  }
}

// Only texts that are drawn with a mark under the letter count.
bool has_mnemonic(HWND control, wchar_t letter) {
  const UINT code = dialog_code(control);
  const Window* found = find(control);
  if (found == nullptr || (found->style & WS_VISIBLE) == 0 || (found->style & WS_DISABLED) != 0) {
    return false;
  }
  if ((code & (DLGC_BUTTON | DLGC_STATIC)) == 0) return false;
  if ((code & DLGC_STATIC) != 0 && (found->style & SS_NOPREFIX) != 0) return false;
  const PrefixedText text = without_prefixes(found->text);
  if (text.underlined < 0) return false;
  const auto mark = static_cast<wint_t>(text.text[static_cast<std::size_t>(text.underlined)]);
  return std::towlower(mark) == std::towlower(static_cast<wint_t>(letter));
}

// True: a control has this letter in its text behind an &, and was chosen. Of several the next one
// gets the focus, and is not clicked.
bool on_mnemonic(HWND dialog, wchar_t letter) {
  std::vector<HWND> marked;
  bool focus_passed = false;
  std::optional<std::size_t> next;  // the first one behind the focus
  first_below(dialog, [&](HWND child) {
    if (has_mnemonic(child, letter)) {
      if (focus_passed && !next) next = marked.size();
      marked.push_back(child);
    }
    focus_passed = focus_passed || child == GetFocus();
    return false;
  });
  if (marked.empty()) return false;
  HWND control = marked[next.value_or(0)];
  const UINT code = dialog_code(control);
  if ((code & DLGC_STATIC) != 0) {
    focus_control(dialog, GetNextDlgTabItem(dialog, control, FALSE));
    return true;
  }
  focus_control(dialog, control);
  const bool clicked = (code & DLGC_BUTTON) != 0 && marked.size() == 1;
  if (clicked && IsWindow(control)) SendMessageW(control, BM_CLICK, 0, 0);
  return true;
}

bool handled(HWND dialog, const MSG& message) {
  switch (message.message) {
    case WM_KEYDOWN:
      return on_key(dialog, message);
    case WM_SYSCHAR:
      return on_mnemonic(dialog, static_cast<wchar_t>(message.wParam));
    case WM_CHAR: {
      constexpr UINT kTakesLetters = DLGC_WANTCHARS | DLGC_WANTALLKEYS;
      if ((dialog_code(message.hwnd, &message) & kTakesLetters) != 0) return false;
      if (message.wParam == L' ') return false;  // works the control that has the focus
      return on_mnemonic(dialog, static_cast<wchar_t>(message.wParam));
    }
    default:
      return false;
  }
}

}  // namespace
}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

BOOL IsDialogMessageW(HWND dialog, LPMSG message) {
  if (checked(dialog) == nullptr || message == nullptr) return FALSE;
  if (message->hwnd != dialog && !IsChild(dialog, message->hwnd)) return FALSE;
  if (handled(dialog, *message)) return TRUE;
  TranslateMessage(message);
  DispatchMessageW(message);
  const bool press = message->message == WM_LBUTTONDOWN || message->message == WM_LBUTTONDBLCLK;
  HWND focus = GetFocus();
  if (press && IsChild(dialog, focus) != FALSE) hand_default_to(dialog, focus);
  return TRUE;
}

}  // namespace corvane_system
