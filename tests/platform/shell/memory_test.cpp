// Memory by handle, and text between its encodings.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "corvane/platform/system/shell/memory_api.h"

namespace corvane::system {
namespace {

TEST(GlobalMemory, IsLockedResizedAndFreed) {
  HGLOBAL const memory = GlobalAlloc(GHND, 4);
  auto* const bytes = static_cast<char*>(GlobalLock(memory));
  ASSERT_NE(bytes, nullptr);
  EXPECT_EQ(GlobalLock(memory), bytes);
  EXPECT_EQ(std::string(bytes, 4), std::string(4, '\0'));
  EXPECT_EQ(GlobalReAlloc(memory, 100000, 0), nullptr) << "locked memory does not move";
  std::memcpy(bytes, "abcd", 4);
  EXPECT_TRUE(GlobalUnlock(memory));
  for (const DWORD error : {ERROR_SUCCESS, ERROR_NOT_LOCKED}) {
    EXPECT_FALSE(GlobalUnlock(memory));
    EXPECT_EQ(GetLastError(), error);
  }
  EXPECT_EQ(GlobalReAlloc(memory, 6, GMEM_ZEROINIT), memory);
  EXPECT_EQ(GlobalSize(memory), 6U);
  EXPECT_EQ(std::string(static_cast<char*>(GlobalLock(memory)), 6), std::string("abcd\0\0", 6));
  EXPECT_EQ(GlobalFree(memory), nullptr);
  EXPECT_EQ(GlobalFree(memory), memory);
  EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);
  EXPECT_EQ(GlobalAlloc(GHND, ~SIZE_T{}), nullptr);
  EXPECT_EQ(GetLastError(), ERROR_NOT_ENOUGH_MEMORY);
}

TEST(GlobalMemory, FixedMemoryIsItsOwnHandle) {
  HGLOBAL const memory = GlobalAlloc(GPTR, 10);
  EXPECT_EQ(GlobalLock(memory), memory);
  EXPECT_TRUE(GlobalUnlock(memory));
  std::memcpy(memory, "kept", 5);
  EXPECT_EQ(GlobalReAlloc(memory, 1 << 20, 0), nullptr);
  HGLOBAL const moved = GlobalReAlloc(memory, 1 << 20, GMEM_MOVEABLE);
  EXPECT_STREQ(static_cast<char*>(moved), "kept");
  EXPECT_EQ(GlobalFree(moved), nullptr);
}

// Damaged bytes, and what they are read as: as much as could have begun a character is one U+FFFD.
TEST(TextConversion, BothWays) {
  const struct {
    std::string bytes;
    std::wstring wide;
    bool valid;
  } cases[] = {{"a裁\U0001F4F7", L"a裁\x1F4F7", true},
               {"\xFF", L"\xFFFD", false},
               {"\xE8\xA3z", L"\xFFFDz", false},
               {"\xC0\xAF", L"\xFFFD\xFFFD", false},
               {"\xED\xA0\x80", L"\xFFFD\xFFFD\xFFFD", false},
               {"\xF0\x9F\x93", L"\xFFFD", false},
               {"\xF4\x90\x80\x80", L"\xFFFD\xFFFD\xFFFD\xFFFD", false}};
  for (const auto& [bytes, text, valid] : cases) {
    wchar_t wide[20];
    const int size = static_cast<int>(bytes.size());
    const int length = MultiByteToWideChar(CP_UTF8, 0, bytes.data(), size, wide, 20);
    EXPECT_EQ(std::wstring(wide, static_cast<std::size_t>(length)), text);
    EXPECT_EQ(MultiByteToWideChar(CP_ACP, MB_ERR_INVALID_CHARS, bytes.data(), size, wide, 20),
              valid ? length : 0);
    EXPECT_TRUE(valid || GetLastError() == ERROR_NO_UNICODE_TRANSLATION);
    char back[20];
    EXPECT_EQ(WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, back, 20, nullptr, nullptr),
              WideCharToMultiByte(CP_UTF8, 0, text.c_str(), -1, nullptr, 0, nullptr, nullptr));
    EXPECT_TRUE(!valid || back == bytes);
  }
  char back[8];
  EXPECT_EQ(WideCharToMultiByte(CP_UTF8, 0, L"\xD83D\xDCF7\xD83D", 3, back, 8, nullptr, nullptr),
            7);
  EXPECT_EQ(std::string(back, 7), "\U0001F4F7\xEF\xBF\xBD") << "a pair, and half of one";
  BOOL lost = FALSE;
  WideCharToMultiByte(CP_ACP, 0, L"\xD83D", 1, back, 8, nullptr, &lost);
  EXPECT_TRUE(lost);
}

TEST(TextConversion, Refusals) {
  wchar_t wide[2];
  char bytes[2];
  const auto to_wide = [&wide](UINT page, DWORD flags, const char* text, int size, int room) {
    return MultiByteToWideChar(page, flags, text, size, wide, room);
  };
  const auto to_bytes = [&bytes](DWORD flags, const wchar_t* text, int size, const char* other) {
    return WideCharToMultiByte(CP_UTF8, flags, text, size, bytes, 2, other, nullptr);
  };
  const std::pair<std::function<int()>, DWORD> cases[] = {
      {[&] { return to_wide(CP_UTF8, 0, "ab", -1, 2); }, ERROR_INSUFFICIENT_BUFFER},
      {[&] { return to_wide(CP_UTF8, 0, "ab", 0, 2); }, ERROR_INVALID_PARAMETER},
      {[&] { return to_wide(936, 0, "ab", 2, 2); }, ERROR_INVALID_PARAMETER},
      {[&] { return to_wide(CP_UTF8, MB_PRECOMPOSED, "ab", 2, 2); }, ERROR_INVALID_FLAGS},
      {[&] { return to_bytes(0, L"裁", 1, nullptr); }, ERROR_INSUFFICIENT_BUFFER},
      {[&] { return to_bytes(0, L"a", 1, "?"); }, ERROR_INVALID_PARAMETER},
      {[&] { return to_bytes(WC_ERR_INVALID_CHARS, L"\xD800", 1, nullptr); },
       ERROR_NO_UNICODE_TRANSLATION}};
  for (const auto& [call, error] : cases) {
    SetLastError(0);
    EXPECT_EQ(call(), 0);
    EXPECT_EQ(GetLastError(), error);
  }
}

}  // namespace
}  // namespace corvane::system
