// The message queue: retrieval order, posting, quitting, filters and default handling.
#include <cstdint>

#include "tests/platform/conformance/support/message_names.h"
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class QueueTest : public WindowTest {
 protected:
  // The messages in retrieval order, not dispatched; a paint is validated so that it ends.
  std::vector<UINT> retrieve_all() {
    std::vector<UINT> seen;
    MSG message{};
    while (seen.size() < 50 && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != 0) {
      seen.push_back(message.message);
      if (message.message == WM_PAINT) ValidateRect(message.hwnd, nullptr);
    }
    return seen;
  }
};

TEST_F(QueueTest, OrderOfRetrieval) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  SetTimer(popup, 1, 10, nullptr);
  advance(50);
  InvalidateRect(popup, nullptr, TRUE);
  PostQuitMessage(3);
  PostMessageW(popup, WM_USER, 0, 0);
  PostMessageW(popup, WM_USER + 1, 0, 0);
  EXPECT_EQ(retrieve_all(), (std::vector<UINT>{WM_USER, WM_USER + 1, WM_QUIT, WM_PAINT, WM_TIMER}));
}

TEST_F(QueueTest, InputComesAfterPostedMessagesAndBeforePaintAndTimer) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  SetTimer(popup, 1, 10, nullptr);
  advance(50);
  InvalidateRect(popup, nullptr, TRUE);
  SetCursorPos(10, 10);
  PostMessageW(popup, WM_USER, 0, 0);
  EXPECT_EQ(retrieve_all(), (std::vector<UINT>{WM_USER, WM_MOUSEMOVE, WM_PAINT, WM_TIMER}));
}

TEST_F(QueueTest, SentMessagesOvertakePostedOnesAndReturnTheResult) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  recorder().answer("pop", WM_USER + 1, 42);
  PostMessageW(popup, WM_USER, 0, 0);
  EXPECT_EQ(SendMessageW(popup, WM_USER + 1, 5, 6), 42);
  pump();
  EXPECT_TRUE(log_is("pop WM_USER+1 5 6 > (q) WM_USER+0 0 0"));
}

TEST_F(QueueTest, PaintIsReturnedUntilTheRegionIsValidated) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  InvalidateRect(popup, nullptr, FALSE);
  InvalidateRect(popup, nullptr, FALSE);
  MSG message{};
  for (int times = 0; times < 3; ++times) {
    ASSERT_NE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE), 0);
    EXPECT_EQ(message.message, WM_PAINT);
    EXPECT_EQ(message.hwnd, popup);
  }
  ValidateRect(popup, nullptr);
  EXPECT_EQ(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE), 0);
}

TEST_F(QueueTest, ManyInvalidationsAreOnePaint) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  for (int times = 0; times < 5; ++times) InvalidateRect(popup, nullptr, FALSE);
  pump();
  EXPECT_EQ(recorder().count("pop", WM_PAINT), 1);
}

TEST_F(QueueTest, PaintPostedByHandIsDeliveredLikeAnyMessage) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  PostMessageW(popup, WM_PAINT, 0, 0);
  PostMessageW(popup, WM_USER, 0, 0);
  EXPECT_EQ(retrieve_all(), (std::vector<UINT>{WM_PAINT, WM_USER}));
}

TEST_F(QueueTest, PeekWithoutRemovalLeavesTheMessage) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  PostMessageW(popup, WM_USER, 1, 2);
  MSG message{};
  EXPECT_NE(PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE), 0);
  EXPECT_NE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE), 0);
  EXPECT_EQ(message.message, WM_USER);
  EXPECT_EQ(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE), 0);
}

TEST_F(QueueTest, PostingToADestroyedWindowFails) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  DestroyWindow(popup);
  SetLastError(0);
  EXPECT_EQ(PostMessageW(popup, WM_USER, 0, 0), 0);
  EXPECT_EQ(GetLastError(), 1400U);
  SetLastError(0);
  EXPECT_EQ(SendMessageW(popup, WM_USER, 0, 0), 0);
  EXPECT_EQ(GetLastError(), 1400U);
  SetLastError(0);
  EXPECT_EQ(SendMessageW(nullptr, WM_USER, 0, 0), 0);
  EXPECT_EQ(GetLastError(), 1400U);
}

TEST_F(QueueTest, PostingToNoWindowMakesAThreadMessage) {
  settled_popup("pop", 0, 0, 50, 50);
  EXPECT_NE(PostMessageW(nullptr, WM_USER + 3, 7, 8), 0);
  MSG message{};
  ASSERT_NE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE), 0);
  EXPECT_EQ(message.hwnd, nullptr);
  EXPECT_EQ(message.message, WM_USER + 3);
  EXPECT_EQ(message.wParam, 7U);
  DispatchMessageW(&message);
  EXPECT_TRUE(log_is(""));
}

TEST_F(QueueTest, PendingMessagesGoWithTheirWindow) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  PostMessageW(popup, WM_USER, 0, 0);
  DestroyWindow(popup);
  EXPECT_TRUE(retrieve_all().empty());
}

TEST_F(QueueTest, InputSkippedByAFilterGoesWithItsWindowToo) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  SetCursorPos(10, 10);
  send_mouse(MOUSEEVENTF_LEFTDOWN);
  MSG message{};
  EXPECT_EQ(PeekMessageW(&message, nullptr, WM_KEYFIRST, WM_KEYLAST, PM_REMOVE), 0);
  DestroyWindow(popup);
  EXPECT_TRUE(retrieve_all().empty());
}

TEST_F(QueueTest, QuitWaitsForWhatAHandlerPostsWhileInputIsRetrieved) {
  settled_popup("pop", 0, 0, 50, 50);
  settled_popup("other", 100, 0, 50, 50);
  recorder().before_default("pop", WM_NCHITTEST,
                            [&] { PostMessageW(window("other"), WM_USER, 0, 0); });
  PostQuitMessage(0);
  SetCursorPos(10, 10);
  MSG message{};
  EXPECT_NE(PeekMessageW(&message, window("other"), 0, 0, PM_REMOVE), 0);
  EXPECT_EQ(message.message, WM_USER);
}

TEST_F(QueueTest, ParametersKeepTheirFullWidthAndSign) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  const WPARAM wide = ~WPARAM{0} - 5;
  const LPARAM negative = INTPTR_MIN + 3;
  std::vector<std::pair<WPARAM, LPARAM>> seen;
  recorder().on("pop", WM_USER, [&](const Message& sent) -> std::optional<LRESULT> {
    seen.emplace_back(sent.wparam, sent.lparam);
    return INTPTR_MIN + 1;
  });
  PostMessageW(popup, WM_USER, wide, negative);
  pump();
  EXPECT_EQ(SendMessageW(popup, WM_USER, wide, -1), INTPTR_MIN + 1);
  EXPECT_EQ(seen, (std::vector<std::pair<WPARAM, LPARAM>>{{wide, negative}, {wide, -1}}));
}

TEST_F(QueueTest, WindowFilterIncludesChildren) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  const HWND child = settled_child("child", popup, 0, 0, 20, 20);
  const HWND other = settled_popup("other", 60, 0, 50, 50);
  pump();
  PostMessageW(other, WM_USER, 0, 0);
  PostMessageW(child, WM_USER + 1, 0, 0);
  PostMessageW(popup, WM_USER + 2, 0, 0);
  MSG message{};
  ASSERT_NE(PeekMessageW(&message, popup, 0, 0, PM_REMOVE), 0);
  EXPECT_EQ(message.message, WM_USER + 1);
  ASSERT_NE(PeekMessageW(&message, popup, 0, 0, PM_REMOVE), 0);
  EXPECT_EQ(message.message, WM_USER + 2);
  EXPECT_EQ(PeekMessageW(&message, popup, 0, 0, PM_REMOVE), 0);
  EXPECT_EQ(retrieve_all(), (std::vector<UINT>{WM_USER}));
}

TEST_F(QueueTest, RangeFilterLeavesTheRest) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  for (const UINT message : {WM_USER + 1, WM_USER + 5, WM_USER + 9}) {
    PostMessageW(popup, message, 0, 0);
  }
  MSG message{};
  ASSERT_NE(PeekMessageW(&message, nullptr, WM_USER + 4, WM_USER + 6, PM_REMOVE), 0);
  EXPECT_EQ(message.message, WM_USER + 5);
  EXPECT_EQ(PeekMessageW(&message, nullptr, WM_USER + 4, WM_USER + 6, PM_REMOVE), 0);
  EXPECT_EQ(retrieve_all(), (std::vector<UINT>{WM_USER + 1, WM_USER + 9}));
}

TEST_F(QueueTest, QuittingTwiceIsOneQuitWithTheLastCode) {
  PostQuitMessage(1);
  PostQuitMessage(2);
  MSG message{};
  EXPECT_EQ(GetMessageW(&message, nullptr, 0, 0), 0);
  EXPECT_EQ(message.message, WM_QUIT);
  EXPECT_EQ(message.hwnd, nullptr);
  EXPECT_EQ(message.wParam, 2U);
  EXPECT_EQ(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE), 0);
}

TEST_F(QueueTest, GetMessageReturnsNonZeroForOtherMessages) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  PostMessageW(popup, WM_NULL, 0, 0);
  MSG message{};
  EXPECT_NE(GetMessageW(&message, nullptr, 0, 0), 0);
  EXPECT_EQ(message.message, WM_NULL);
}

TEST_F(QueueTest, GetMessageSleepsUntilTheNextTimer) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  const DWORD start = GetTickCount();
  SetTimer(popup, 4, 250, nullptr);
  MSG message{};
  ASSERT_NE(GetMessageW(&message, nullptr, 0, 0), 0);
  EXPECT_EQ(message.message, WM_TIMER);
  EXPECT_EQ(GetTickCount() - start, 250U);
}

TEST_F(QueueTest, RegisteredMessages) {
  const UINT first = RegisterWindowMessageW(L"Conformance.Message");
  EXPECT_GE(first, 0xC000U);
  EXPECT_LE(first, 0xFFFFU);
  EXPECT_EQ(RegisterWindowMessageW(L"Conformance.Message"), first);
  EXPECT_NE(RegisterWindowMessageW(L"Conformance.Other"), first);
  EXPECT_EQ(RegisterWindowMessageW(L""), 0U);
}

TEST_F(QueueTest, ObservedThatRegisteredNamesIgnoreCase) {
  EXPECT_EQ(RegisterWindowMessageW(L"Conformance.CASE"),
            RegisterWindowMessageW(L"conformance.case"));
}

class DefaultHandlingTest : public QueueTest {};

TEST_F(DefaultHandlingTest, UnknownMessagesGiveZero) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  for (const UINT message : {WM_USER + 77, WM_APP + 5, 0xC123U, 0x03FFU}) {
    EXPECT_EQ(DefWindowProcW(popup, message, 1, 2), 0) << message;
  }
}

TEST_F(DefaultHandlingTest, CloseDestroys) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  SendMessageW(popup, WM_CLOSE, 0, 0);
  EXPECT_EQ(IsWindow(popup), 0);
}

TEST_F(DefaultHandlingTest, EraseTellsWhetherTheClassBrushFilled) {
  const HWND white = settled_popup("white", 0, 0, 50, 50);
  const HWND none = create("none", {.style = WS_POPUP | WS_VISIBLE, .brush = nullptr});
  settle();
  for (const auto& [window, filled] : {std::pair{white, true}, std::pair{none, false}}) {
    const HDC dc = GetDC(window);
    EXPECT_EQ(DefWindowProcW(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0) != 0, filled);
    ReleaseDC(window, dc);
  }
}

TEST_F(DefaultHandlingTest, SubclassedProcedureCallsTheFormerOne) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  static WNDPROC former = nullptr;
  former = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(
      popup, GWLP_WNDPROC,
      reinterpret_cast<LONG_PTR>(+[](HWND window, UINT message, WPARAM w, LPARAM l) -> LRESULT {
        return CallWindowProcW(former, window, message, w + 100, l);
      })));
  ASSERT_NE(former, nullptr);
  SendMessageW(popup, WM_USER, 1, 2);
  EXPECT_TRUE(log_is("pop WM_USER+0 101 2"));
  SetWindowLongPtrW(popup, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(former));
}

}  // namespace
}  // namespace corvane::conformance
