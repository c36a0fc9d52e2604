// One step of dragging a crop rectangle, from the mouse's move to the finished frame: the real
// layers over a picture that fills the screen, against a plain copy of a frame.
#include <cstring>

#include "bench/measure.h"
#include "corvane/layers/crop/cut_bg_layer.h"
#include "corvane/platform/framework/framework.h"
#include "tests/support/app_desktop.h"
#include "tests/support/own_system.h"

namespace corvane::bench {
namespace {

using system::HeadlessDisplay;
using system::Pixel;
using system::Region;
using system::Surface;

// Counts frames but keeps none, so that the time is that of making them.
class CountingDisplay : public HeadlessDisplay {
 public:
  explicit CountingDisplay(SIZE size) : HeadlessDisplay(size) {}
  void present(const Surface&, const Region&) override { ++frames_; }
  int frames() const { return frames_; }

 private:
  int frames_ = 0;
};

class PictureWindow : public CWnd {
 public:
  ~PictureWindow() override { DestroyWindow(); }
  bool open(SIZE size) {
    CreateEx(0, AfxRegisterWndClass(CS_DBLCLKS), L"picture", WS_POPUP,
             CRect(0, 0, size.cx, size.cy), nullptr, 0);
    ShowWindow(SW_SHOW);
    return GetSafeHwnd() != nullptr;
  }

 protected:
  LRESULT WindowProc(UINT message, WPARAM wparam, LPARAM lparam) override {
    if (message == WM_ERASEBKGND) return 1;
    if (message != WM_PAINT) return CWnd::WindowProc(message, wparam, lparam);
    paint();
    return 0;
  }

 private:
  void paint() {
    constexpr int square = 16;
    CPaintDC dc(this);
    CRect client;
    GetClientRect(client);
    for (int y = 0; y < client.bottom; y += square) {
      for (int x = 0; x < client.right; x += square) {
        const CBrush brush(RGB(x * 7 % 256, y * 3 % 256, (x + y) % 256));
        const RECT place{x, y, x + square, y + square};
        ::FillRect(dc, &place, brush);
      }
    }
  }
};

class Drag {
 public:
  explicit Drag(SIZE size) : Drag(size, std::make_unique<CountingDisplay>(size)) {}

  bool begin() {
    if (!picture_.open(size_) || !create_layers()) return false;
    desktop_.app().m_pMainWnd = &picture_;
    background_.ShowWindow(SW_SHOW);
    move_to(size_.cx / 4, size_.cy / 4);
    desktop_.press();
    windows().present();
    move_to(size_.cx * 3 / 4, size_.cy * 3 / 4);
    const CRect rectangle = background_.GetCutRect();
    return rectangle.Width() == size_.cx / 2 && rectangle.Height() == size_.cy / 2;
  }

  // About a quarter of the screen is inside the rectangle all the time.
  void step() {
    ++steps_;
    const int forth = steps_ % 2 ? 8 : -8;
    move_to(size_.cx * 3 / 4 + forth, size_.cy * 3 / 4 + forth / 2);
  }

  int frames() const { return display_.frames(); }
  const Surface& frame() { return windows().frame(); }

 private:
  Drag(SIZE size, std::unique_ptr<CountingDisplay> display)
      : size_(size),
        display_(*display),
        desktop_(std::make_unique<test::OwnSystem>(std::move(display))) {}

  system::WindowSystem& windows() { return desktop_.own().windows; }

  bool create_layers() {
    const wchar_t* const window_class =
        AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                            static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH)));
    return background_.CreateEx(WS_EX_TOOLWINDOW, window_class, L"crop", WS_POPUP, 0, 0, size_.cx,
                                size_.cy, picture_, nullptr);
  }

  void move_to(int x, int y) {
    desktop_.move_to(x, y);
    windows().present();
  }

  SIZE size_;
  CountingDisplay& display_;
  test::AppDesktop desktop_;
  PictureWindow picture_;
  CCutBgLayer background_;
  int steps_ = 0;
};

bool run_size(const char* name, SIZE size, const Options& options, Report& report) {
  Drag drag(size);
  if (!drag.begin()) {
    std::fprintf(stderr, "%s: no crop could be begun\n", name);
    return false;
  }
  const std::size_t pixels = static_cast<std::size_t>(size.cx) * static_cast<std::size_t>(size.cy);
  const std::vector<Pixel> original(pixels, 0xFF336699);
  std::vector<Pixel> copy(pixels);
  Surface shown(size.cx, size.cy);
  HeadlessDisplay screen(size);
  const int rounds = options.smoke ? 3 : 60;
  const int frames_before = drag.frames();
  const std::vector<Times> times = interleaved(
      {[&] { std::memcpy(copy.data(), original.data(), pixels * sizeof(Pixel)); },
       [&] { drag.step(); }, [&] { screen.present(drag.frame(), Region(shown.rect())); }},
      rounds);
  if (drag.frames() - frames_before != rounds + 1) {
    std::fprintf(stderr, "%s: %d frames for %d steps\n", name, drag.frames() - frames_before,
                 rounds + 1);
    return false;
  }
  report.ratio(std::string("drag step ") + name, times[1], times[0], 4);
  report.ratio(std::string("whole frame to display ") + name, times[2], times[0], 0);
  return true;
}

int run(const Options& options) {
  Report report(options);
  const bool done = options.smoke ? run_size("640x360", {640, 360}, options, report)
                                  : run_size("1920x1080", {1920, 1080}, options, report) &&
                                        run_size("3840x2160", {3840, 2160}, options, report);
  return done ? report.exit_status() : 1;
}

}  // namespace
}  // namespace corvane::bench

int main(int argc, char** argv) {
  return corvane::bench::run(corvane::bench::options_of(argc, argv));
}
