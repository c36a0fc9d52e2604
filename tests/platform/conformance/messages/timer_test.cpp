// Timers.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class TimerTest : public WindowTest {
 protected:
  TimerTest() { recorder().only({WM_TIMER}); }
  int ticks_after(unsigned milliseconds) {
    recorder().clear();
    advance(milliseconds);
    pump();
    return recorder().count("pop", WM_TIMER);
  }
  const HWND popup_ = settled_popup("pop", 0, 0, 50, 50);
};

TEST_F(TimerTest, TicksWhenThePeriodIsOverOnceHoweverLate) {
  EXPECT_EQ(SetTimer(popup_, 5, 100, nullptr), 5U);
  EXPECT_EQ(ticks_after(99), 0);
  EXPECT_EQ(ticks_after(1), 1);
  step();
  EXPECT_EQ(ticks_after(99), 0);
  EXPECT_EQ(ticks_after(1), 1);
  EXPECT_EQ(ticks_after(1000), 1);
}

TEST_F(TimerTest, TheOneThatFellDueFirstComesFirst) {
  SetTimer(popup_, 1, 300, nullptr);
  SetTimer(popup_, 2, 200, nullptr);
  advance(250);
  advance(100);
  pump();
  step();
}

TEST_F(TimerTest, TheSameNumberReplacesTheTimerAndStartsAnew) {
  SetTimer(popup_, 5, 100, nullptr);
  EXPECT_EQ(ticks_after(90), 0);
  SetTimer(popup_, 5, 100, nullptr);
  EXPECT_EQ(ticks_after(90), 0);
  EXPECT_EQ(ticks_after(10), 1);
  for (const UINT period : {0U, 1U, 9U, 10U}) {
    SetTimer(popup_, 5, period, nullptr);
    EXPECT_EQ(ticks_after(9), 0) << period << " acts as 10";
    EXPECT_EQ(ticks_after(1), 1) << period;
  }
  EXPECT_NE(KillTimer(popup_, 5), 0);
  EXPECT_EQ(KillTimer(popup_, 5), 0);
}

TEST_F(TimerTest, NumbersBelongToTheirWindowAndZeroIsOne) {
  EXPECT_NE(SetTimer(popup_, 0, 50, nullptr), 0U);
  EXPECT_EQ(ticks_after(50), 1);
  EXPECT_NE(KillTimer(popup_, 0), 0);
  const HWND other = settled_popup("other", 100, 0, 50, 50);
  SetTimer(popup_, 5, 50, nullptr);
  SetTimer(other, 5, 50, nullptr);
  EXPECT_NE(KillTimer(other, 5), 0);
  EXPECT_EQ(KillTimer(popup_, 77), 0);
  EXPECT_EQ(KillTimer(nullptr, 77), 0);
  EXPECT_EQ(ticks_after(50), 1);
}

TEST_F(TimerTest, NothingComesAfterKillAlsoWhenOverdueOrPeeked) {
  for (const bool peeked : {false, true}) {
    SetTimer(popup_, 5, 50, nullptr);
    advance(60);
    MSG message{};
    EXPECT_TRUE(!peeked || PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE) != 0);
    EXPECT_NE(KillTimer(popup_, 5), 0);
    EXPECT_EQ(ticks_after(0), 0) << peeked;
  }
}

struct ProcedureCall {
  HWND window;
  UINT message;
  UINT_PTR id;
  DWORD tick;
  bool operator==(const ProcedureCall&) const = default;
};
std::vector<ProcedureCall> procedure_calls;

void CALLBACK note_call(HWND window, UINT message, UINT_PTR id, DWORD tick) {
  procedure_calls.push_back({window, message, id, tick});
}

TEST_F(TimerTest, ProcedureIsCalledInPlaceOfTheWindows) {
  procedure_calls.clear();
  SetTimer(popup_, 9, 50, &note_call);
  advance(50);
  MSG message{};
  ASSERT_NE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE), 0);
  EXPECT_EQ(message.message, WM_TIMER);
  EXPECT_TRUE(procedure_calls.empty()) << "called by dispatching only";
  DispatchMessageW(&message);
  EXPECT_EQ(procedure_calls, (std::vector<ProcedureCall>{{popup_, WM_TIMER, 9, GetTickCount()}}));
  EXPECT_EQ(recorder().count("pop", WM_TIMER), 0);
}

TEST_F(TimerTest, WithoutAWindowTheNumberIsTheSystems) {
  procedure_calls.clear();
  const UINT_PTR id = SetTimer(nullptr, 0, 50, &note_call);
  ASSERT_NE(id, 0U);
  advance(50);
  pump();
  EXPECT_EQ(procedure_calls, (std::vector<ProcedureCall>{{nullptr, WM_TIMER, id, GetTickCount()}}));
  SetTimer(popup_, 77, 5000, nullptr);
  EXPECT_NE(SetTimer(nullptr, 77, 5000, nullptr), 77U) << "which is another's";
  EXPECT_NE(KillTimer(nullptr, id), 0);
  advance(100);
  pump();
  EXPECT_EQ(procedure_calls.size(), 1U);
}

TEST_F(TimerTest, HandlerMayReplaceAndKillTimers) {
  SetTimer(popup_, 1, 50, nullptr);
  SetTimer(popup_, 2, 50, nullptr);
  recorder().before_default("pop", WM_TIMER, [&] {
    KillTimer(popup_, 1);
    KillTimer(popup_, 2);
    SetTimer(popup_, 3, 70, nullptr);
  });
  EXPECT_EQ(ticks_after(50), 1);
  EXPECT_EQ(ticks_after(69), 0);
  EXPECT_EQ(ticks_after(1), 1);
  step();
}

}  // namespace
}  // namespace corvane::conformance
