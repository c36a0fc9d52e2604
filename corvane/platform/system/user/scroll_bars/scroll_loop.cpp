#include "corvane/platform/system/user/scroll_bars/scroll_loop.h"

#include <algorithm>
#include <cstdlib>

#include "corvane/platform/system/user/messages/send_message.h"
#include "corvane/platform/system/user/modal/capture_loop.h"
#include "corvane/platform/system/user/scroll_bars/scroll_bars.h"

namespace corvane::system {
namespace {

constexpr std::uint64_t kFirstRepeat = 250;  // milliseconds from the press
constexpr std::uint64_t kNextRepeat = 50;
// A thumb whose pointer is further than this from the bar's side goes back to where it was.
constexpr int kMaxSideDistance = 6 * kBarThickness;

UINT code_of(ScrollPart part) {
  switch (part) {
    case ScrollPart::line_back:
      return SB_LINEUP;
    case ScrollPart::page_back:
      return SB_PAGEUP;
    case ScrollPart::page_forward:
      return SB_PAGEDOWN;
    case ScrollPart::line_forward:
      return SB_LINEDOWN;
    default:
      return SB_THUMBTRACK;
  }
}

class ScrollLoop : public CaptureLoop {
 public:
  ScrollLoop(System& state, HWND window, ScrollAxis axis, POINT press)
      : CaptureLoop(state, window), axis_(axis), press_(press), pointer_(press) {}

  void run() {
    part_ = part_at(press_);
    if (part_ == ScrollPart::none) return;
    SetCapture(window_);
    begin();
    finish(run_captured());
  }

 private:
  // The window while it has the bar; null otherwise.
  Window* shown() const {
    Window* found = held_window();
    if (found == nullptr) return nullptr;
    const RECT bar = bar_rect(*found, axis_);
    return IsRectEmpty(&bar) ? nullptr : found;
  }

  // Somebody else may have taken the button's release, or the capture.
  bool wanted() const override {
    return CaptureLoop::wanted() && shown() != nullptr && state_.input.keys_retrieved[VK_LBUTTON];
  }

  RECT bar_on_screen(const Window& window) const {
    RECT bar = bar_rect(window, axis_);
    const POINT origin = client_origin(window);
    OffsetRect(&bar, origin.x, origin.y);
    return bar;
  }

  int along(const RECT& bar, POINT point) const {
    return axis_ == ScrollAxis::vertical ? point.y - bar.top : point.x - bar.left;
  }

  ScrollPart part_at(POINT point) const {
    Window* found = shown();
    if (found == nullptr || found->bar(axis_).disabled) return ScrollPart::none;
    const RECT bar = bar_on_screen(*found);
    if (!PtInRect(&bar, point)) return ScrollPart::none;
    return bar_layout(*found, axis_).part_at(along(bar, point));
  }

  bool far_aside(const RECT& bar, POINT point) const {
    RECT near = bar;
    const bool vertical = axis_ == ScrollAxis::vertical;
    InflateRect(&near, vertical ? kMaxSideDistance : 0, vertical ? 0 : kMaxSideDistance);
    return vertical ? point.x < near.left || point.x >= near.right
                    : point.y < near.top || point.y >= near.bottom;
  }

  // A scroll bar control speaks to its parent.
  void tell(UINT code, int position) {
    const Window* found = state_.find(window_);
    if (found == nullptr) return;
    const bool control = found->scroll_control.has_value();
    const UINT message = axis_ == ScrollAxis::vertical ? WM_VSCROLL : WM_HSCROLL;
    send(control ? GetParent(window_) : window_, message,
         MAKEWPARAM(code, static_cast<WORD>(position)),
         control ? reinterpret_cast<LPARAM>(window_) : 0);
  }

  void begin() {
    Window* found = shown();
    if (found == nullptr) return;
    ScrollBarState& bar = found->bar(axis_);
    bar.pressed = part_;
    redraw_bar(*found, axis_);
    if (part_ != ScrollPart::thumb) {
      next_repeat_ = state_.now() + kFirstRepeat;
      tell(code_of(part_), 0);
      return;
    }
    start_ = {bar_layout(*found, axis_).thumb.begin, bar.model ? bar.model->position : 0};
    bar.drag = start_;
    tell(SB_THUMBTRACK, start_.position);
  }

  Turn on_keyboard(const InputEvent& event) override {
    const Turn turn = CaptureLoop::on_keyboard(event);
    if (turn == Turn::last && part_ == ScrollPart::thumb) drag_to(start_);
    return turn;
  }

  void follow(POINT pointer) override {
    if (pointer.x == pointer_.x && pointer.y == pointer_.y) return;
    pointer_ = pointer;
    state_.input.routed_pointer = pointer;
    Window* found = shown();
    if (found == nullptr) return;
    if (part_ == ScrollPart::thumb) {
      drag_to(drag_for(*found, pointer));
      return;
    }
    const ScrollPart seen = part_at(pointer) == part_ ? part_ : ScrollPart::none;
    if (found->bar(axis_).pressed != seen) redraw_bar(*found, axis_);
    found->bar(axis_).pressed = seen;
  }

  // Where the thumb is and what it means when the pointer is there.
  ThumbDrag drag_for(const Window& window, POINT pointer) const {
    const auto& model = window.bar(axis_).model;
    const RECT bar = bar_on_screen(window);
    if (!model || far_aside(bar, pointer)) return start_;
    const int travel = along(bar, pointer) - along(bar, press_);
    const ScrollLayout layout = dragged_bar_layout(window, axis_, start_.begin + travel);
    // Several positions may share a pixel: a thumb that is where it was means what it meant.
    if (layout.thumb.begin == start_.begin) return start_;
    return {layout.thumb.begin, position_of_thumb(*model, layout)};
  }

  void drag_to(ThumbDrag drag) {
    Window* found = shown();
    if (found == nullptr) return;
    found->bar(axis_).drag = drag;
    redraw_bar(*found, axis_);
    tell(SB_THUMBTRACK, drag.position);
  }

  bool repeats() const { return part_ != ScrollPart::thumb && part_at(pointer_) == part_; }

  Turn on_idle() override {
    if (!repeats()) return sleep(std::nullopt);
    if (state_.now() < next_repeat_) return sleep(next_repeat_);
    tell(code_of(part_), 0);
    next_repeat_ = state_.now() + kNextRepeat;
    return Turn::more;
  }

  void finish(End end) {
    Window* found = held_window();
    if (found != nullptr && found->bar(axis_).drag && end != End::lost) {
      tell(SB_THUMBPOSITION, found->bar(axis_).drag->position);
      found = held_window();
    }
    if (found == nullptr) return;
    found->bar(axis_).pressed = ScrollPart::none;
    found->bar(axis_).drag.reset();
    redraw_bar(*found, axis_);
    tell(SB_ENDSCROLL, 0);
  }

  ScrollAxis axis_;
  POINT press_;
  POINT pointer_;
  ScrollPart part_ = ScrollPart::none;
  ThumbDrag start_;
  std::uint64_t next_repeat_ = 0;
};

}  // namespace

void run_scroll_loop(HWND window, ScrollAxis axis, POINT press) {
  System* state = system();
  if (state != nullptr) ScrollLoop(*state, window, axis, press).run();
}

}  // namespace corvane::system
