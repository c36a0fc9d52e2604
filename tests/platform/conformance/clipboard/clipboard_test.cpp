// The clipboard: who may change it, what it makes of text, promises, and the desktop's part in it.
#include <cstring>

#include "tests/platform/conformance/support/window_test.h"
#include "tests/support/own_system.h"

namespace corvane::conformance {
namespace {

HANDLE memory_of(const std::wstring& text) {
  const std::size_t size = (text.size() + 1) * sizeof(wchar_t);
  HANDLE const memory = GlobalAlloc(GMEM_MOVEABLE, size);
  std::memcpy(GlobalLock(memory), text.c_str(), size);
  GlobalUnlock(memory);
  return memory;
}

class ClipboardTest : public WindowTest {
 protected:
  ClipboardTest() {
    recorder().only(
        {WM_RENDERFORMAT, WM_RENDERALLFORMATS, WM_DESTROYCLIPBOARD, WM_CLIPBOARDUPDATE});
  }
  void copy(HWND window, const std::wstring& text) {
    EXPECT_TRUE(OpenClipboard(window));
    EXPECT_TRUE(EmptyClipboard());
    HANDLE const memory = memory_of(text);
    EXPECT_EQ(SetClipboardData(CF_UNICODETEXT, memory), memory);
    EXPECT_TRUE(CloseClipboard());
  }
  std::wstring pasted() {
    EXPECT_TRUE(OpenClipboard(other_));
    HANDLE const memory = GetClipboardData(CF_UNICODETEXT);
    const std::wstring text = memory ? static_cast<const wchar_t*>(GlobalLock(memory)) : L"none";
    if (memory != nullptr) GlobalUnlock(memory);
    EXPECT_TRUE(CloseClipboard());
    return text;
  }
  static std::vector<UINT> formats() {
    std::vector<UINT> all;
    for (UINT next = 0; (next = EnumClipboardFormats(next)) != 0;) all.push_back(next);
    EXPECT_EQ(GetLastError(), ERROR_SUCCESS);
    EXPECT_EQ(CountClipboardFormats(), static_cast<int>(all.size()));
    return all;
  }
  static void expect_error(DWORD error, bool failed) {
    EXPECT_TRUE(failed);
    EXPECT_EQ(GetLastError(), error);
    SetLastError(0);
  }

  const HWND main_ = settled_popup("main", 0, 0, 100, 100);
  const HWND other_ = settled_popup("other", 200, 0, 100, 100);
};

TEST_F(ClipboardTest, IsOpenForOneWindowAtATime) {
  expect_error(ERROR_CLIPBOARD_NOT_OPEN, CloseClipboard() == FALSE);
  expect_error(ERROR_CLIPBOARD_NOT_OPEN, EmptyClipboard() == FALSE);
  expect_error(ERROR_CLIPBOARD_NOT_OPEN, SetClipboardData(CF_TEXT, nullptr) == nullptr);
  expect_error(ERROR_CLIPBOARD_NOT_OPEN, GetClipboardData(CF_TEXT) == nullptr);
  HWND const gone = create("gone", {});
  DestroyWindow(gone);
  expect_error(ERROR_INVALID_WINDOW_HANDLE, OpenClipboard(gone) == FALSE);
  EXPECT_TRUE(OpenClipboard(main_));
  EXPECT_TRUE(OpenClipboard(main_));
  expect_error(ERROR_ACCESS_DENIED, OpenClipboard(other_) == FALSE);
  expect_error(ERROR_ACCESS_DENIED, OpenClipboard(nullptr) == FALSE);
  EXPECT_EQ(GetOpenClipboardWindow(), main_);
  expect_error(ERROR_INVALID_PARAMETER, SetClipboardData(0, memory_of(L"")) == nullptr);
  expect_error(ERROR_INVALID_HANDLE, SetClipboardData(CF_TEXT, main_) == nullptr);
  EXPECT_TRUE(CloseClipboard());
  EXPECT_TRUE(OpenClipboard(other_));
  DestroyWindow(other_);
  EXPECT_TRUE(OpenClipboard(main_)) << "the window that had it open is gone";
}

TEST_F(ClipboardTest, TextIsThereInEveryForm) {
  const DWORD before = GetClipboardSequenceNumber();
  copy(main_, L"裁剪\r\n\x1F4F7");
  EXPECT_NE(GetClipboardSequenceNumber(), before);
  EXPECT_TRUE(OpenClipboard(other_));
  EXPECT_EQ(formats(), (std::vector<UINT>{CF_UNICODETEXT, CF_LOCALE, CF_TEXT, CF_OEMTEXT}));
  for (const UINT bytes : {CF_TEXT, CF_OEMTEXT}) {
    HANDLE const memory = GetClipboardData(bytes);
    EXPECT_STREQ(static_cast<const char*>(GlobalLock(memory)), "裁剪\r\n\U0001F4F7");
  }
  HANDLE const unterminated = GlobalAlloc(GHND, 3);
  std::memcpy(GlobalLock(unterminated), "abc", 3);
  EXPECT_TRUE(EmptyClipboard());
  const UINT own = RegisterClipboardFormatW(L"Corvane Crop");
  SetClipboardData(own, GlobalAlloc(GHND, 8));
  SetClipboardData(CF_TEXT, unterminated);
  EXPECT_FALSE(IsClipboardFormatAvailable(CF_UNICODETEXT)) << "made when it is closed";
  EXPECT_TRUE(CloseClipboard());
  EXPECT_EQ(pasted(), L"abc");
  EXPECT_TRUE(OpenClipboard(main_));
  HANDLE const made = GetClipboardData(CF_UNICODETEXT);
  expect_error(ERROR_INVALID_HANDLE, SetClipboardData(CF_OEMTEXT, made) == nullptr);
  EXPECT_EQ(SetClipboardData(CF_UNICODETEXT, made), made);
  EXPECT_EQ(GlobalSize(made), 4 * sizeof(wchar_t)) << "is the clipboard's as before";
}

TEST_F(ClipboardTest, HandlersMayThrowAndDestroyWindows) {
  const std::function<void()> handlers[] = {[] { throw 1; }, [&] { DestroyWindow(other_); }};
  for (const auto& handler : handlers) {
    HWND const child = settled_child("child", other_, 0, 0, 9, 9);
    recorder().before_default("main", WM_RENDERFORMAT, handler);
    copy(main_, L"before");
    EXPECT_TRUE(OpenClipboard(child));
    SetClipboardData(CF_UNICODETEXT, nullptr);
    try {
      DestroyWindow(child);
    } catch (int) {
    }
    EXPECT_FALSE(IsWindow(child));
    expect_error(ERROR_CLIPBOARD_NOT_OPEN, SetClipboardData(CF_TEXT, nullptr) == nullptr);
  }
  HWND const opener = create("opener", {});
  recorder().before_default("main", WM_DESTROYCLIPBOARD, [&] { DestroyWindow(opener); });
  own().display.copy_on_desktop("news");
  pump();
  EXPECT_FALSE(OpenClipboard(opener));
  EXPECT_TRUE(OpenClipboard(main_));
}

TEST_F(ClipboardTest, TheDesktopsTextIsExchanged) {
  auto& desktop = own().display;
  copy(main_, L"one\r\n裁剪\r");
  EXPECT_EQ(desktop.clipboard_text(), "one\n裁剪\r");
  EXPECT_TRUE(AddClipboardFormatListener(other_));
  expect_error(ERROR_INVALID_PARAMETER, AddClipboardFormatListener(other_) == FALSE);
  const DWORD sequence = GetClipboardSequenceNumber();
  desktop.copy_on_desktop("two\n\xFF\r\nlast");
  EXPECT_EQ(pump(), true);
  step("another program copies");
  EXPECT_NE(GetClipboardSequenceNumber(), sequence);
  EXPECT_EQ(GetClipboardOwner(), nullptr);
  EXPECT_EQ(pasted(), L"two\r\n\xFFFD\r\nlast");
  copy(main_, L"mine");
  pump_step("our own is no news from the desktop");
  desktop.copy_on_desktop("");
  pump();
  EXPECT_FALSE(IsClipboardFormatAvailable(CF_UNICODETEXT));
  desktop.refuse_clipboard(true);
  copy(main_, L"large");
  EXPECT_EQ(desktop.clipboard_text(), "");
  EXPECT_EQ(pasted(), L"large") << "stays within the program";
}

TEST_F(ClipboardTest, PromisesAreKeptWhenTheyAreNeeded) {
  recorder().before_default("main", WM_RENDERFORMAT,
                            [] { SetClipboardData(CF_UNICODETEXT, memory_of(L"rendered")); });
  const UINT own_format = RegisterClipboardFormatW(L"own");
  EXPECT_TRUE(OpenClipboard(main_));
  EXPECT_TRUE(EmptyClipboard());
  SetClipboardData(CF_UNICODETEXT, nullptr);
  SetClipboardData(own_format, nullptr);
  EXPECT_TRUE(CloseClipboard());
  EXPECT_EQ(own().display.clipboard_text(), "rendered");
  EXPECT_EQ(pasted(), L"rendered");
  step("the desktop wants text");
  DestroyWindow(main_);
  step("the owner is destroyed");
  EXPECT_FALSE(IsClipboardFormatAvailable(own_format)) << "nobody made it";
  EXPECT_EQ(pasted(), L"rendered");
  copy(other_, L"next");
  EXPECT_TRUE(OpenClipboard(nullptr));
  EXPECT_TRUE(EmptyClipboard());
  step("a window loses it");
  expect_error(ERROR_INVALID_PARAMETER, SetClipboardData(CF_TEXT, nullptr) == nullptr);
}

}  // namespace
}  // namespace corvane::conformance
