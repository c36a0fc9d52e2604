// The keys of the main window: they reach it before the window that has the focus. What the pointer
// does everywhere: zoom with Control and the wheel, bring parts in full screen.
#include <algorithm>

#include "apps/capture/main_window.h"

namespace capture {

using namespace corvane;

namespace {

LONG left_edge(HWND window) {
  RECT rect{};
  ::GetWindowRect(window, &rect);
  return rect.left;
}

}  // namespace

BOOL CMainWindow::PreTranslateMessage(MSG* message) {
  if (message->message == WM_LBUTTONDOWN) keyboard_led_ = false;
  if (message->message == WM_KEYDOWN && take_key(static_cast<UINT>(message->wParam))) return TRUE;
  if (message->message == WM_MOUSEWHEEL && take_wheel(*message)) return TRUE;
  if (message->message == WM_MOUSEMOVE) reveal_at(message->pt);
  return CWnd::PreTranslateMessage(message);
}

bool CMainWindow::take_wheel(const MSG& message) {
  const RECT stage = stage_on_screen();
  const bool behind_box = (open_panel_.IsWindowVisible() | recognition_.IsWindowVisible()) != FALSE;
  if ((LOWORD(message.wParam) & MK_CONTROL) == 0 || behind_box) return false;
  if (!::PtInRect(&stage, message.pt)) return false;
  wheel_rest_ += static_cast<short>(HIWORD(message.wParam));
  const int steps = wheel_rest_ / WHEEL_DELTA;
  wheel_rest_ -= steps * WHEEL_DELTA;
  CPoint point(message.pt);
  view_.ScreenToClient(&point);
  change_zoom([&] { view_.ZoomBy(steps, point); });
  return true;
}

// What is framed stays so.
void CMainWindow::change_zoom(const std::function<void()>& change) {
  const CRect framed = crop_.GetCutRect();
  const RECT shown = view_.ShownRect();
  change();
  if (crop_.IsWindowVisible()) keep_framed(framed, shown);
}

void CMainWindow::zoom(KeyCommand command) {
  change_zoom([&] {
    if (command == KeyCommand::zoom_to_fit) {
      view_.Fit();
    } else if (command == KeyCommand::zoom_to_own_size) {
      view_.ZoomToOwnSize();
    } else {
      view_.ZoomBy(command == KeyCommand::zoom_in ? 1 : -1, view_.Middle());
    }
  });
}

void CMainWindow::copy_recognised() {
  if (recognition_.IsWindowVisible() && recognition_.CopyText()) {
    recognition_.SetTitle(look_.text(Text::copied));  // the box covers where notices are
  }
}

void CMainWindow::toggle_full_screen() {
  full_screen_.Toggle(m_hWnd);
  const bool all = !full_screen();
  if (!all && ::GetActiveWindow() == m_hWnd) SetFocus();
  show_parts({all, all, all});
  layout();  // the size may be the same
}

void CMainWindow::show_parts(const ShownParts& parts) {
  parts_ = parts;
  toolbar_.Show(parts.toolbar);
  browser_.Show(parts.library, parts.strip);
}

void CMainWindow::reveal_at(POINT screen_point) {
  if (!full_screen() || ::GetCapture() != nullptr || crop_.IsWindowVisible()) return;
  CRect client;
  GetClientRect(client);
  ScreenToClient(&screen_point);
  show_parts(parts_at(parts_, whole_layout(), {client.right, client.bottom}, screen_point));
}

bool CMainWindow::take_key(UINT key) {
  const KeyPress press = key_press(key);
  const std::optional<KeyCommand> command = key_command(press);
  // A box that has the focus has arrows of its own.
  const bool main_is_active = ::GetActiveWindow() == m_hWnd || crop_.IsWindowVisible() != FALSE;
  const bool for_all = press.control || command == KeyCommand::full_screen;
  if (!command || (!main_is_active && !for_all)) return false;
  perform(*command);
  return true;
}

bool CMainWindow::ClickFocusedButton() {
  const std::vector<HWND> parts = parts_for_keys();
  const HWND focus = ::GetFocus();
  if (std::find(parts.begin() + 1, parts.end(), focus) == parts.end()) return false;
  const auto id = static_cast<WORD>(::GetDlgCtrlID(focus));
  ::SendMessageW(::GetParent(focus), WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(focus));
  return true;
}

void CMainWindow::perform(KeyCommand command) {
  const std::vector<HWND> parts = parts_for_keys();
  const bool on_button = std::find(parts.begin() + 1, parts.end(), ::GetFocus()) != parts.end();
  switch (command) {
    case KeyCommand::cancel:
      return cancel();
    case KeyCommand::next_picture:
    case KeyCommand::previous_picture: {
      const int step = command == KeyCommand::next_picture ? 1 : -1;
      if (on_button) return move_focus(step);
      if (!crop_.IsWindowVisible()) open_neighbour(step);  // what is framed is not lost by a key
      return;
    }
    case KeyCommand::select_all:
      if (recognition_.IsWindowVisible()) recognition_.SelectAll();
      return;
    case KeyCommand::copy:
      return copy_recognised();
    case KeyCommand::full_screen:
      return toggle_full_screen();
    case KeyCommand::zoom_in:
    case KeyCommand::zoom_out:
    case KeyCommand::zoom_to_fit:
    case KeyCommand::zoom_to_own_size:
      return zoom(command);
    case KeyCommand::folder_above:
    case KeyCommand::folder_below:
      if (full_screen()) show_parts({false, true, true});
      return browser_.pane().SelectNeighbour(command == KeyCommand::folder_below ? 1 : -1);
    case KeyCommand::open_folder:
    case KeyCommand::close_folder:
      return browser_.pane().OpenCurrent(command == KeyCommand::open_folder);
    case KeyCommand::open_picture:
      return show_open_panel();
    case KeyCommand::save:
      if (crop_.IsWindowVisible()) return save_framed();
      return view_.ShowNotice(look_.text(Text::frame_first));
    case KeyCommand::next_part:
    case KeyCommand::previous_part:
      return move_focus(command == KeyCommand::next_part ? 1 : -1);
  }
}

void CMainWindow::cancel() {
  if (open_panel_.IsWindowVisible() || recognition_.IsWindowVisible()) {
    open_panel_.Close();
    recognition_.Close();
  } else if (crop_.IsWindowVisible()) {
    end_crop();
  } else if (full_screen()) {
    toggle_full_screen();
  }
}

// The picture, whose keys are the window's own, and every button that can be seen, from left to
// right.
std::vector<HWND> CMainWindow::parts_for_keys() const {
  std::vector<HWND> parts = {m_hWnd};
  for (const HWND button : toolbar_.Buttons()) parts.push_back(button);
  const auto first_of_bar = static_cast<std::ptrdiff_t>(parts.size());
  for (HWND button = ::GetWindow(crop_.GetBarHwnd(), GW_CHILD); button != nullptr;
       button = ::GetWindow(button, GW_HWNDNEXT)) {
    if (::IsWindowVisible(button)) parts.push_back(button);
  }
  std::sort(parts.begin() + first_of_bar, parts.end(),
            [](HWND one, HWND other) { return left_edge(one) < left_edge(other); });
  return parts;
}

void CMainWindow::move_focus(int step) {
  const std::vector<HWND> parts = parts_for_keys();
  const auto count = static_cast<std::ptrdiff_t>(parts.size());
  const auto here = std::find(parts.begin(), parts.end(), ::GetFocus());
  const std::ptrdiff_t index = here == parts.end() ? 0 : here - parts.begin();
  keyboard_led_ = true;
  if (full_screen() && !crop_.IsWindowVisible()) show_parts({true, false, false});
  ::SetFocus(parts[static_cast<std::size_t>((index + step + count) % count)]);
}

}  // namespace capture
