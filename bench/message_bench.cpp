// Posted messages per second through the usual loop: PostMessageW, GetMessageW, DispatchMessageW.
#include <chrono>
#include <cstdio>

#include "bench/measure.h"
#include "tests/support/own_system.h"

namespace corvane::bench {
namespace {

constexpr int batch = 1000;

// With a real clock, which the loop reads for every message.
class ClockedDisplay : public system::HeadlessDisplay {
 public:
  std::uint64_t now() const override {
    return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(
                                          std::chrono::steady_clock::now().time_since_epoch())
                                          .count());
  }
};

long received = 0;

LRESULT count_messages(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message != WM_APP) return ::DefWindowProcW(window, message, wparam, lparam);
  ++received;
  return 0;
}

HWND create_window() {
  WNDCLASSW window_class{};
  window_class.lpfnWndProc = count_messages;
  window_class.lpszClassName = L"bench";
  ::RegisterClassW(&window_class);
  return ::CreateWindowExW(0, L"bench", L"", WS_POPUP | WS_VISIBLE, 0, 0, 100, 100, nullptr,
                           nullptr, nullptr, nullptr);
}

void post_and_dispatch(HWND window, int batches) {
  MSG message{};
  for (int i = 0; i < batches; ++i) {
    for (int j = 0; j < batch; ++j) ::PostMessageW(window, WM_APP, 0, 0);
    const long wanted = received + batch;
    while (wanted > received && ::GetMessageW(&message, nullptr, 0, 0)) {
      ::DispatchMessageW(&message);
    }
  }
}

int run(const Options& options) {
  const test::Desktop desktop(
      std::make_unique<test::OwnSystem>(std::make_unique<ClockedDisplay>()));
  const HWND window = create_window();
  const int batches = options.smoke ? 1 : 20;
  const int rounds = options.smoke ? 2 : 20;
  const Times times = interleaved({[&] { post_and_dispatch(window, batches); }}, rounds).front();
  if (received != static_cast<long>(rounds + 1) * batches * batch) {
    std::fprintf(stderr, "%ld messages arrived\n", received);
    return 1;
  }
  Report report(options);
  report.value("posted messages dispatched", batches * batch / (times.median / 1000), "1/s");
  return report.exit_status();
}

}  // namespace
}  // namespace corvane::bench

int main(int argc, char** argv) {
  return corvane::bench::run(corvane::bench::options_of(argc, argv));
}
