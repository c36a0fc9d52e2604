// Presses on the frame become system commands; system commands run loops, close, change the place.
#include "corvane/platform/system/user/default_handling/default_handlers.h"
#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/modal/box_loop.h"
#include "corvane/platform/system/user/modal/move_loop.h"
#include "corvane/platform/system/user/scroll_bars/scroll_loop.h"

namespace corvane::system {
namespace {

constexpr UINT kCommandBits = 0xFFF0;
// A side's WMSZ_ number is its hit code less this.
constexpr int kHitOfSides = HTLEFT - WMSZ_LEFT;

bool is_box(int hit_code) {
  return hit_code == HTCLOSE || hit_code == HTMAXBUTTON || hit_code == HTMINBUTTON;
}

bool has_style(HWND window, DWORD style) {
  const Window* found = find(window);
  return found != nullptr && (found->style & style) != 0;
}

UINT command_of_box(HWND window, int box) {
  if (box == HTCLOSE) return SC_CLOSE;
  if (box == HTMAXBUTTON) return has_style(window, WS_MAXIMIZE) ? SC_RESTORE : SC_MAXIMIZE;
  return has_style(window, WS_MINIMIZE) ? SC_RESTORE : SC_MINIMIZE;
}

// 0: a press there commands nothing.
UINT command_of_press(HWND window, int hit_code) {
  if (hit_code == HTCAPTION) return SC_MOVE | HTCAPTION;
  if (hit_code == HTVSCROLL) return SC_VSCROLL | HTVSCROLL;
  if (hit_code == HTHSCROLL) return SC_HSCROLL | HTHSCROLL;
  if (hit_code >= HTLEFT && hit_code <= HTBOTTOMRIGHT) {
    return SC_SIZE + static_cast<UINT>(hit_code - kHitOfSides);
  }
  if (!is_box(hit_code) || !run_box_loop(window, hit_code)) return 0;
  return command_of_box(window, hit_code);
}

POINT point_of(LPARAM lparam) { return {GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)}; }

void on_scroll(const SentMessage& sent) {
  const bool vertical = (sent.wparam & kCommandBits) == SC_VSCROLL;
  run_scroll_loop(sent.window, vertical ? ScrollAxis::vertical : ScrollAxis::horizontal,
                  point_of(sent.lparam));
}

void on_move(const SentMessage& sent) {
  if (sent.wparam == (SC_MOVE | HTCAPTION)) run_move_loop(sent.window);
}

void on_size(const SentMessage& sent) {
  run_size_loop(sent.window, static_cast<int>(sent.wparam & ~WPARAM{kCommandBits}));
}

void on_close(const SentMessage& sent) { send(sent.window, WM_CLOSE); }
void on_maximize(const SentMessage& sent) { ShowWindow(sent.window, SW_SHOWMAXIMIZED); }
void on_minimize(const SentMessage& sent) { ShowWindow(sent.window, SW_MINIMIZE); }
void on_restore(const SentMessage& sent) { ShowWindow(sent.window, SW_RESTORE); }

struct SystemCommand {
  UINT command;
  void (*run)(const SentMessage& sent);
};
constexpr SystemCommand kSystemCommands[] = {
    {SC_SIZE, on_size},         {SC_MOVE, on_move},       {SC_MINIMIZE, on_minimize},
    {SC_MAXIMIZE, on_maximize}, {SC_CLOSE, on_close},     {SC_VSCROLL, on_scroll},
    {SC_HSCROLL, on_scroll},    {SC_RESTORE, on_restore},
};

// A child without a caption means WS_TABSTOP by the same bit.
bool has_maximize_box(HWND window) {
  const Window* found = find(window);
  return found != nullptr && (found->style & WS_MAXIMIZEBOX) != 0 &&
         (!found->is_child() || found->has_caption());
}

}  // namespace

LRESULT default_nc_press(const SentMessage& sent) {
  const UINT command = command_of_press(sent.window, static_cast<int>(sent.wparam));
  if (command != 0) send(sent.window, WM_SYSCOMMAND, command, sent.lparam);
  return 0;
}

// Whoever presses an arrow, a side or a box quickly means it twice.
LRESULT default_nc_double_click(const SentMessage& sent) {
  if (sent.wparam != WPARAM{HTCAPTION}) return default_nc_press(sent);
  if (has_style(sent.window, WS_MINIMIZE)) {
    send(sent.window, WM_SYSCOMMAND, SC_RESTORE, sent.lparam);
  } else if (has_maximize_box(sent.window)) {
    send(sent.window, WM_SYSCOMMAND, command_of_box(sent.window, HTMAXBUTTON), sent.lparam);
  }
  return 0;
}

LRESULT default_system_command(const SentMessage& sent) {
  for (const SystemCommand& row : kSystemCommands) {
    if ((sent.wparam & kCommandBits) == row.command) row.run(sent);
  }
  return 0;
}

LRESULT default_close(const SentMessage& sent) {
  DestroyWindow(sent.window);
  return 0;
}

}  // namespace corvane::system
