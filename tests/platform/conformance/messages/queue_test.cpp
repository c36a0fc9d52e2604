// The message queue: retrieval order, posting, quitting, filters and default handling.
#include <cstdint>

#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class QueueTest : public WindowTest {
 protected:
  using Messages = std::vector<UINT>;
  // In retrieval order, not dispatched; a paint is validated so that it ends.
  static Messages retrieve_all() {
    Messages seen;
    MSG message{};
    while (seen.size() < 50 && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
      seen.push_back(message.message);
      if (message.message == WM_PAINT) ValidateRect(message.hwnd, nullptr);
    }
    return seen;
  }
  // The next message's number, or 0.
  static UINT next(HWND window, UINT first, UINT last, UINT flags = PM_REMOVE) {
    MSG message{};
    return PeekMessageW(&message, window, first, last, flags) != 0 ? message.message : 0;
  }
  const HWND popup_ = settled_popup("pop", 0, 0, 50, 50);
};

TEST_F(QueueTest, PlaceTimeAndKeysAreThoseOfTheLastMessage) {
  move_to(11, 7);
  const LONG before = GetMessageTime();
  advance(30);
  send_key(VK_CAPITAL, true);
  send_key('A', true);
  SetCursorPos(40, 41);
  EXPECT_EQ(GetMessagePos(), MAKELONG(11, 7));
  EXPECT_EQ(GetKeyState(VK_CAPITAL), 0);
  for (int keys = 0; keys < 2; ++keys) EXPECT_EQ(next(nullptr, 0, 0), WM_KEYDOWN);
  EXPECT_EQ(GetMessageTime(), before + 30);
  BYTE keys[256];
  EXPECT_TRUE(GetKeyboardState(keys));
  EXPECT_EQ(keys[VK_CAPITAL], 0x81);
  key_up(VK_CAPITAL);
  EXPECT_EQ(GetKeyState(VK_CAPITAL), 1);
}

TEST_F(QueueTest, OrderOfRetrieval) {
  SetTimer(popup_, 1, 10, nullptr);
  advance(50);
  InvalidateRect(popup_, nullptr, TRUE);
  SetCursorPos(10, 10);
  PostMessageW(popup_, WM_USER, 0, 0);
  PostMessageW(popup_, WM_USER + 1, 0, 0);
  EXPECT_EQ(retrieve_all(), (Messages{WM_USER, WM_USER + 1, WM_MOUSEMOVE, WM_PAINT, WM_TIMER}));
  advance(50);
  InvalidateRect(popup_, nullptr, TRUE);
  PostQuitMessage(3);
  PostMessageW(popup_, WM_USER, 0, 0);
  EXPECT_EQ(retrieve_all(), (Messages{WM_USER, WM_QUIT, WM_PAINT, WM_TIMER}));
}

TEST_F(QueueTest, SentMessagesOvertakePostedOnesAndReturnTheResult) {
  recorder().answer("pop", WM_USER + 1, 42);
  PostMessageW(popup_, WM_USER, 0, 0);
  const LRESULT result = SendMessageW(popup_, WM_USER + 1, 5, 6);
  pump();
  step("", result);
}

TEST_F(QueueTest, PaintIsReturnedUntilTheRegionIsValidated) {
  for (int times = 0; times < 5; ++times) InvalidateRect(popup_, nullptr, FALSE);
  for (int times = 0; times < 3; ++times) EXPECT_EQ(next(nullptr, 0, 0), WM_PAINT);
  ValidateRect(popup_, nullptr);
  EXPECT_EQ(next(nullptr, 0, 0), 0U);
  for (int times = 0; times < 5; ++times) InvalidateRect(popup_, nullptr, FALSE);
  pump();
  EXPECT_EQ(recorder().count("pop", WM_PAINT), 1);
  PostMessageW(popup_, WM_PAINT, 0, 0);
  PostMessageW(popup_, WM_USER, 0, 0);
  EXPECT_EQ(retrieve_all(), (Messages{WM_PAINT, WM_USER})) << "posted by hand: like any message";
}

TEST_F(QueueTest, PeekWithoutRemovalLeavesTheMessage) {
  PostMessageW(popup_, WM_USER, 1, 2);
  EXPECT_EQ(next(nullptr, 0, 0, PM_NOREMOVE), WM_USER);
  EXPECT_EQ(next(nullptr, 0, 0), WM_USER);
  EXPECT_EQ(next(nullptr, 0, 0), 0U);
}

TEST_F(QueueTest, PostingToNoWindowMakesAThreadMessage) {
  EXPECT_NE(PostMessageW(nullptr, WM_USER + 3, 7, 8), 0);
  MSG message{};
  ASSERT_NE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE), 0);
  EXPECT_EQ(message.hwnd, nullptr);
  EXPECT_EQ(message.message, WM_USER + 3);
  EXPECT_EQ(message.wParam, 7U);
  DispatchMessageW(&message);
  EXPECT_TRUE(recorder().log().empty());
}

TEST_F(QueueTest, HoldsTenThousandMessages) {
  for (int times = 0; times < 10000; ++times) ASSERT_NE(PostMessageW(popup_, WM_USER, 0, 0), 0);
  EXPECT_EQ(PostMessageW(popup_, WM_USER, 0, 0), 0);
  EXPECT_EQ(GetLastError(), ERROR_NOT_ENOUGH_QUOTA);
  EXPECT_EQ(next(nullptr, 0, 0), WM_USER);
  EXPECT_NE(PostMessageW(popup_, WM_USER, 0, 0), 0);
}

TEST_F(QueueTest, PendingMessagesGoWithTheirWindow) {
  SetCursorPos(10, 10);
  send_mouse(MOUSEEVENTF_LEFTDOWN);
  EXPECT_EQ(next(nullptr, WM_KEYFIRST, WM_KEYLAST), 0U) << "input is skipped by the filter";
  PostMessageW(popup_, WM_USER, 0, 0);
  DestroyWindow(popup_);
  EXPECT_TRUE(retrieve_all().empty());
}

TEST_F(QueueTest, QuitWaitsForWhatAHandlerPostsWhileInputIsRetrieved) {
  settled_popup("other", 100, 0, 50, 50);
  recorder().before_default("pop", WM_NCHITTEST,
                            [&] { PostMessageW(window("other"), WM_USER, 0, 0); });
  PostQuitMessage(0);
  SetCursorPos(10, 10);
  EXPECT_EQ(next(window("other"), 0, 0), WM_USER);
}

TEST_F(QueueTest, ParametersKeepTheirFullWidthAndSign) {
  const WPARAM wide = ~WPARAM{0} - 5;
  const LPARAM negative = INTPTR_MIN + 3;
  std::vector<std::pair<WPARAM, LPARAM>> seen;
  recorder().on("pop", WM_USER, [&](const Message& sent) -> std::optional<LRESULT> {
    seen.emplace_back(sent.wparam, sent.lparam);
    return INTPTR_MIN + 1;
  });
  PostMessageW(popup_, WM_USER, wide, negative);
  pump();
  EXPECT_EQ(SendMessageW(popup_, WM_USER, wide, -1), INTPTR_MIN + 1);
  EXPECT_EQ(seen, (std::vector<std::pair<WPARAM, LPARAM>>{{wide, negative}, {wide, -1}}));
}

TEST_F(QueueTest, FiltersLeaveTheRest) {
  const HWND child = settled_child("child", popup_, 0, 0, 20, 20);
  const HWND other = settled_popup("other", 60, 0, 50, 50);
  PostMessageW(other, WM_USER, 0, 0);
  PostMessageW(child, WM_USER + 1, 0, 0);
  PostMessageW(popup_, WM_USER + 2, 0, 0);
  EXPECT_EQ(next(popup_, 0, 0), WM_USER + 1) << "a window's filter includes its children";
  EXPECT_EQ(next(popup_, 0, 0), WM_USER + 2);
  EXPECT_EQ(next(popup_, 0, 0), 0U);
  PostMessageW(popup_, WM_USER + 5, 0, 0);
  PostMessageW(popup_, WM_USER + 9, 0, 0);
  EXPECT_EQ(next(nullptr, WM_USER + 4, WM_USER + 5), WM_USER + 5);
  EXPECT_EQ(next(nullptr, WM_USER + 4, WM_USER + 8), 0U);
  EXPECT_EQ(next(nullptr, WM_USER + 9, WM_USER + 12), WM_USER + 9);
  EXPECT_EQ(retrieve_all(), Messages{WM_USER});
}

TEST_F(QueueTest, QuittingTwiceIsOneQuitWithTheLastCode) {
  PostQuitMessage(1);
  PostQuitMessage(2);
  MSG message{};
  EXPECT_EQ(GetMessageW(&message, nullptr, 0, 0), 0);
  EXPECT_EQ(message.message, WM_QUIT);
  EXPECT_EQ(message.hwnd, nullptr);
  EXPECT_EQ(message.wParam, 2U);
  EXPECT_EQ(next(nullptr, 0, 0), 0U);
}

TEST_F(QueueTest, GetMessageSleepsUntilTheNextTimer) {
  PostMessageW(popup_, WM_NULL, 0, 0);
  MSG message{};
  EXPECT_NE(GetMessageW(&message, nullptr, 0, 0), 0);
  EXPECT_EQ(message.message, WM_NULL);
  const DWORD start = GetTickCount();
  SetTimer(popup_, 4, 250, nullptr);
  EXPECT_NE(GetMessageW(&message, nullptr, 0, 0), 0);
  EXPECT_EQ(message.message, WM_TIMER);
  EXPECT_EQ(GetTickCount() - start, 250U);
}

TEST_F(QueueTest, RegisteredMessages) {
  const UINT first = RegisterWindowMessageW(L"Conformance.Message");
  EXPECT_GE(first, 0xC000U);
  EXPECT_LE(first, 0xFFFFU);
  EXPECT_EQ(RegisterWindowMessageW(L"Conformance.Message"), first);
  EXPECT_EQ(RegisterWindowMessageW(L"conformance.MESSAGE"), first) << "observed";
  EXPECT_NE(RegisterWindowMessageW(L"Conformance.Other"), first);
  EXPECT_EQ(RegisterWindowMessageW(L""), 0U);
}

class DefaultHandlingTest : public QueueTest {};

TEST_F(DefaultHandlingTest, UnknownMessagesGiveZeroAndCloseDestroys) {
  for (const UINT message : {WM_USER + 77, WM_APP + 5, 0xC123U, 0x03FFU}) {
    EXPECT_EQ(DefWindowProcW(popup_, message, 1, 2), 0) << message;
  }
  const HWND other = settled_popup("other", 60, 0, 50, 50);
  SendMessageW(popup_, WM_CLOSE, 0, 0);
  EXPECT_EQ(IsWindow(popup_), 0);
  SendMessageW(other, WM_SYSCOMMAND, SC_CLOSE | 3, 0);
  EXPECT_EQ(IsWindow(other), 0) << "the system uses the lowest four bits";
}

TEST_F(DefaultHandlingTest, EraseTellsWhetherTheClassBrushFilled) {
  const HWND none = create("none", {.style = WS_POPUP | WS_VISIBLE, .brush = nullptr});
  for (const auto& [window, filled] : {std::pair{popup_, true}, std::pair{none, false}}) {
    const HDC dc = GetDC(window);
    EXPECT_EQ(DefWindowProcW(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0) != 0, filled);
    ReleaseDC(window, dc);
  }
}

TEST_F(DefaultHandlingTest, SubclassedProcedureCallsTheFormerOne) {
  static WNDPROC former = nullptr;
  former = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(
      popup_, GWLP_WNDPROC,
      reinterpret_cast<LONG_PTR>(+[](HWND window, UINT message, WPARAM w, LPARAM l) -> LRESULT {
        return CallWindowProcW(former, window, message, w + 100, l);
      })));
  ASSERT_NE(former, nullptr);
  SendMessageW(popup_, WM_USER, 1, 2);
  step();
  SetWindowLongPtrW(popup_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(former));
}

}  // namespace
}  // namespace corvane::conformance
