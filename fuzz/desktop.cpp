#include "fuzz/desktop.h"

#include <algorithm>
#include <iterator>

#include "fuzz/made_up_folders.h"
#include "fuzz/tree_play.h"
#include "tests/support/own_system.h"

namespace {

using corvane::AfxRegisterWndClass;

constexpr RECT kHostPlace{0, 0, 320, 240};
constexpr RECT kButtonsPlace{0, 0, 320, 76};
constexpr RECT kCropPlace{0, 76, 320, 240};
constexpr RECT kTreePlace{200, 20, 310, 220};
constexpr wchar_t kTreePath[] = L"Q:\\Lib";
constexpr int kToolbarList = 100;
constexpr int kButtonIds[] = {1, 4, 6};

constexpr int kShowCommands[] = {SW_HIDE,   SW_SHOWNORMAL,    SW_SHOWNOACTIVATE, SW_SHOW,
                                 SW_SHOWNA, SW_SHOWMAXIMIZED, SW_SHOWMINIMIZED,  SW_RESTORE};
constexpr int kKeys[] = {VK_RETURN, VK_ESCAPE, VK_TAB, VK_SPACE, VK_SHIFT,
                         VK_LEFT,   VK_DOWN,   VK_F1,  'A',      VK_DELETE};
constexpr DWORD kPresses[] = {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP,     MOUSEEVENTF_RIGHTDOWN,
                              MOUSEEVENTF_RIGHTUP,  MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP};
constexpr const wchar_t* kControls[] = {L"Button", L"Static", L"ScrollBar"};
constexpr DWORD kStyles[] = {WS_CHILD,   WS_POPUP,  WS_VISIBLE, WS_DISABLED,        WS_CLIPCHILDREN,
                             WS_CAPTION, WS_BORDER, WS_VSCROLL, WS_OVERLAPPEDWINDOW};
constexpr DWORD kExtendedStyles[] = {0,
                                     WS_EX_TOPMOST,
                                     WS_EX_TRANSPARENT,
                                     WS_EX_TOOLWINDOW,
                                     WS_EX_LAYERED,
                                     WS_EX_NOACTIVATE,
                                     WS_EX_CLIENTEDGE};

// Messages of which a parameter points to memory of the sender. Strangers cannot make one up, here
// as little as on Windows.
constexpr UINT kPointerMessages[] = {WM_CREATE,           WM_NCCREATE,      WM_SETTEXT,
                                     WM_GETTEXT,          WM_GETMINMAXINFO, WM_WINDOWPOSCHANGING,
                                     WM_WINDOWPOSCHANGED, WM_STYLECHANGING, WM_STYLECHANGED,
                                     WM_NCCALCSIZE,       WM_NOTIFY,        WM_MOVING,
                                     WM_SIZING,           WM_GETDLGCODE,    SBM_SETSCROLLINFO,
                                     SBM_GETSCROLLINFO,   SBM_GETRANGE};

template <class Value, std::size_t count>
Value one_of(const Value (&values)[count], ByteStream& stream) {
  return values[stream.below(count)];
}

RECT place(ByteStream& stream) {
  const int left = stream.coordinate();
  const int top = stream.coordinate();
  return {left, top, left + stream.coordinate(), top + stream.coordinate()};
}

UINT message_number(ByteStream& stream) {
  const UINT number = stream.word() % 0x1000;
  return std::ranges::count(kPointerMessages, number) > 0 ? WM_NULL : number;
}

std::vector<HWND> all_windows() {
  std::vector<HWND> windows;
  EnumChildWindows(
      GetDesktopWindow(),
      [](HWND window, LPARAM list) -> BOOL {
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&windows));
  return windows;
}

}  // namespace

FuzzHost::FuzzHost()
    : class_name_(AfxRegisterWndClass(CS_DBLCLKS, nullptr, CreateSolidBrush(0x808080))) {
  tree_.SetFolderListing(std::make_unique<MadeUpListing>());
  tree_.SetPath(kTreePath, nullptr);
}

void FuzzHost::open() {
  if (!m_hWnd) {
    CreateEx(0, class_name_, L"host", WS_POPUP | WS_VISIBLE, kHostPlace, nullptr, 0);
    skin_.Load({kToolbarList});
  }
  if (!buttons_.m_hWnd) {
    buttons_.DelAllBtn();
    buttons_.SetXmlListMgr(&skin_);
    for (const int id : kButtonIds) buttons_.AddBtn(id);
    buttons_.CreateEx(0, class_name_, L"buttons", WS_CHILD, kButtonsPlace, this, 1);
    buttons_.ShowWindow(SW_SHOW);
  }
  if (!tree_.m_hWnd) tree_.Create(nullptr, L"tree", WS_CHILD | WS_VISIBLE, kTreePlace, this, 2);
  if (!crop_.m_hWnd) {
    crop_.SetParentHwnd(m_hWnd);
    crop_.ShowBtn(1);
    crop_.CreateEx(0, class_name_, L"crop", WS_POPUP, kCropPlace, this, 0);
    crop_.ShowWindow(SW_SHOW);
  }
}

const Desktop::Operation Desktop::kOperations[] = {
    &Desktop::move_pointer,    &Desktop::press_or_release_button,
    &Desktop::click,           &Desktop::drag,
    &Desktop::turn_wheel,      &Desktop::press_key,
    &Desktop::post_message,    &Desktop::send_message,
    &Desktop::show_window,     &Desktop::place_window,
    &Desktop::order_window,    &Desktop::change_style,
    &Desktop::destroy_window,  &Desktop::create_window,
    &Desktop::adopt_window,    &Desktop::redraw_window,
    &Desktop::make_layered,    &Desktop::take_input,
    &Desktop::run_timer,       &Desktop::show_crop,
    &Desktop::change_buttons,  &Desktop::reopen,
    &Desktop::advance_clock,   &Desktop::resize_screen,
    &Desktop::turn_loop,       &Desktop::take_frame,
    &Desktop::create_control,  &Desktop::press_dialog_key,
    &Desktop::use_clipboard,   &Desktop::change_scroll_bar,
    &Desktop::drop_files,      &Desktop::change_desktop_focus,
    &Desktop::copy_on_desktop, &Desktop::play_tree,
    &Desktop::play_tree,       &Desktop::play_tree};

Desktop::Desktop(corvane::test::Desktop& desktop) : desktop_(desktop) {
  host_.open();
  app_.m_pMainWnd = &host_;
}

void Desktop::play(ByteStream& stream) {
  constexpr int kMaxOperations = 200;
  for (int count = 0; count < kMaxOperations && !stream.empty(); ++count) {
    const Operation operation = one_of(kOperations, stream);
    (this->*operation)(stream);
    if (count % 4 == 3) turn_loop(stream);
  }
}

void Desktop::close() {
  for (const HWND window : all_windows()) {
    if (IsWindow(window)) DestroyWindow(window);
  }
  desktop_.own().windows.process_pending(nullptr, &corvane::PreTranslateInput);
}

HWND Desktop::window(ByteStream& stream) const {
  const unsigned choice = stream.byte();
  if (choice == 255) return nullptr;
  if (choice >= 250) return reinterpret_cast<HWND>(static_cast<UINT_PTR>(choice * 4321u));
  const auto windows = all_windows();
  return windows.empty() ? nullptr : windows[choice % windows.size()];
}

void Desktop::move_pointer(ByteStream& stream) {
  const int x = stream.coordinate();
  SetCursorPos(x, stream.coordinate());
}

void Desktop::press_or_release_button(ByteStream& stream) {
  desktop_.send_mouse(one_of(kPresses, stream));
}

void Desktop::click(ByteStream& stream) {
  move_pointer(stream);
  desktop_.send_mouse(MOUSEEVENTF_LEFTDOWN);
  desktop_.send_mouse(MOUSEEVENTF_LEFTUP);
}

void Desktop::drag(ByteStream& stream) {
  move_pointer(stream);
  desktop_.send_mouse(MOUSEEVENTF_LEFTDOWN);
  turn_loop(stream);
  move_pointer(stream);
  turn_loop(stream);
  if (stream.flag()) desktop_.send_mouse(MOUSEEVENTF_LEFTUP);
}

void Desktop::turn_wheel(ByteStream& stream) {
  desktop_.send_mouse(MOUSEEVENTF_WHEEL, stream.flag() ? WHEEL_DELTA : -2 * WHEEL_DELTA);
}

void Desktop::press_key(ByteStream& stream) {
  const int key = one_of(kKeys, stream);
  desktop_.send_key(key, !stream.flag());
}

void Desktop::post_message(ByteStream& stream) {
  const HWND target = window(stream);
  const UINT number = message_number(stream);
  const WPARAM wparam = stream.word();
  PostMessageW(target, number, wparam, MAKELPARAM(stream.coordinate(), stream.coordinate()));
}

void Desktop::send_message(ByteStream& stream) {
  const HWND target = window(stream);
  const UINT number = message_number(stream);
  const WPARAM wparam = stream.word();
  SendMessageW(target, number, wparam, MAKELPARAM(stream.coordinate(), stream.coordinate()));
}

void Desktop::show_window(ByteStream& stream) {
  const HWND target = window(stream);
  ShowWindow(target, one_of(kShowCommands, stream));
}

void Desktop::place_window(ByteStream& stream) {
  const HWND target = window(stream);
  const RECT to = place(stream);
  MoveWindow(target, to.left, to.top, to.right - to.left, to.bottom - to.top, stream.flag());
}

void Desktop::order_window(ByteStream& stream) {
  const HWND target = window(stream);
  const HWND after = window(stream);
  const RECT to = place(stream);
  SetWindowPos(target, after, to.left, to.top, to.right - to.left, to.bottom - to.top,
               stream.word() & 0x02FF);
}

void Desktop::change_style(ByteStream& stream) {
  const HWND target = window(stream);
  const bool extended = stream.flag();
  const int index = extended ? GWL_EXSTYLE : GWL_STYLE;
  const DWORD bit = extended ? one_of(kExtendedStyles, stream) : one_of(kStyles, stream);
  SetWindowLongW(target, index,
                 static_cast<LONG>(static_cast<DWORD>(GetWindowLongW(target, index)) ^ bit));
}

void Desktop::destroy_window(ByteStream& stream) { DestroyWindow(window(stream)); }

void Desktop::create_window(ByteStream& stream) {
  const HWND parent = window(stream);
  const DWORD style = one_of(kStyles, stream) | one_of(kStyles, stream) | WS_VISIBLE;
  const RECT at = place(stream);
  CreateWindowExW(one_of(kExtendedStyles, stream), AfxRegisterWndClass(CS_DBLCLKS), L"stranger",
                  style, at.left, at.top, at.right - at.left, at.bottom - at.top, parent, nullptr,
                  nullptr, nullptr);
}

void Desktop::adopt_window(ByteStream& stream) {
  const HWND child = window(stream);
  SetParent(child, window(stream));
}

void Desktop::redraw_window(ByteStream& stream) {
  const HWND target = window(stream);
  const RECT part = place(stream);
  RedrawWindow(target, stream.flag() ? &part : nullptr, nullptr, stream.word() & 0x03AD);
}

void Desktop::make_layered(ByteStream& stream) {
  const HWND target = window(stream);
  const auto alpha = static_cast<BYTE>(stream.byte());
  SetLayeredWindowAttributes(target, stream.flag() ? 0xFFFFFF : 0x808080, alpha, stream.byte() % 4);
}

void Desktop::take_input(ByteStream& stream) {
  const HWND target = window(stream);
  switch (stream.below(5)) {
    case 0:
      SetCapture(target);
      break;
    case 1:
      ReleaseCapture();
      break;
    case 2:
      SetFocus(target);
      break;
    case 3:
      SetActiveWindow(target);
      break;
    default:
      EnableWindow(target, stream.flag());
  }
}

void Desktop::run_timer(ByteStream& stream) {
  const HWND target = window(stream);
  const UINT_PTR id = stream.byte() % 4u;
  if (target == nullptr) return;  // a timer without a window outlives all windows
  if (stream.flag()) {
    SetTimer(target, id, stream.word(), nullptr);
  } else {
    KillTimer(target, id);
  }
}

void Desktop::show_crop(ByteStream& stream) {
  auto& crop = host_.crop();
  crop.SetOCRMode(stream.flag());
  crop.ShowBtn(stream.flag());
  crop.ShowWindow(one_of(kShowCommands, stream));
  crop.GetCutRect();
}

void Desktop::change_buttons(ByteStream& stream) {
  auto& buttons = host_.buttons();
  const int id = stream.below(8);
  if (stream.flag()) buttons.SetBtnRect(id, place(stream));
  if (stream.below(8) == 0) buttons.DelAllBtn();
  buttons.GetBtnRect(id);
}

void Desktop::play_tree(ByteStream& stream) { TreePlay(host_.tree()).play_one(stream); }

void Desktop::create_control(ByteStream& stream) {
  const HWND parent = window(stream);
  const RECT at = place(stream);
  const DWORD style = stream.word();  // its kind, and what it notifies
  const wchar_t* kind = one_of(kControls, stream);
  CreateWindowExW(one_of(kExtendedStyles, stream), kind, L"&Go", WS_CHILD | WS_VISIBLE | style,
                  at.left, at.top, at.right - at.left, at.bottom - at.top, parent, nullptr, nullptr,
                  nullptr);
}

void Desktop::press_dialog_key(ByteStream& stream) {
  const HWND dialog = window(stream);
  MSG message{window(stream), stream.flag() ? WM_KEYDOWN : WM_SYSCHAR, 0, 0, 0, {}};
  message.wParam = message.message == WM_SYSCHAR ? 'G' : static_cast<WPARAM>(one_of(kKeys, stream));
  IsDialogMessageW(dialog, &message);
}

void Desktop::change_scroll_bar(ByteStream& stream) {
  const HWND target = window(stream);
  const int bar = stream.below(4);
  const SCROLLINFO info{sizeof(SCROLLINFO),
                        stream.word() & 0x1Fu,
                        stream.coordinate(),
                        stream.coordinate(),
                        static_cast<UINT>(stream.coordinate()),
                        stream.coordinate(),
                        0};
  SetScrollInfo(target, bar, &info, stream.flag());
  if (stream.flag()) ShowScrollBar(target, bar, stream.flag());
}

void Desktop::use_clipboard(ByteStream& stream) {
  const HWND owner = window(stream);
  if (!OpenClipboard(owner)) return;
  const UINT format = stream.flag() ? CF_UNICODETEXT : CF_TEXT;
  if (stream.flag()) EmptyClipboard();
  if (stream.flag()) SetClipboardData(format, nullptr);  // a promise
  if (stream.flag()) {
    HGLOBAL text = GlobalAlloc(GHND, stream.byte() + 1u);
    if (SetClipboardData(format, text) == nullptr) GlobalFree(text);
  }
  GetClipboardData(format);
  if (stream.below(4) != 0) CloseClipboard();
}

void Desktop::copy_on_desktop(ByteStream& stream) {
  desktop_.own().display.copy_on_desktop(stream.flag() ? "\xE6\x96\x87" : "\xFF\xE6");
  desktop_.own().display.refuse_clipboard(stream.flag());
}

void Desktop::drop_files(ByteStream& stream) {
  corvane::system::InputEvent event;
  event.kind = corvane::system::InputKind::drop;
  event.position = {stream.coordinate(), stream.coordinate()};
  DragAcceptFiles(window(stream), stream.flag());
  for (int count = stream.below(4); count > 0; --count)
    event.files.emplace_back("/tmp/\xFF\xE6.png");
  desktop_.own().display.push(event);
}

void Desktop::change_desktop_focus(ByteStream& stream) {
  corvane::system::InputEvent event;
  event.kind = corvane::system::InputKind::focus;
  event.down = stream.flag();
  desktop_.own().display.push(event);
}

void Desktop::reopen(ByteStream&) { host_.open(); }

void Desktop::advance_clock(ByteStream& stream) { desktop_.advance(stream.word() % 3000u); }

void Desktop::resize_screen(ByteStream& stream) {
  desktop_.own().display.resize({stream.coordinate(), stream.coordinate()});
}

void Desktop::turn_loop(ByteStream&) {
  desktop_.own().windows.process_pending(nullptr, &corvane::PreTranslateInput);
}

void Desktop::take_frame(ByteStream&) { desktop_.frame(); }
