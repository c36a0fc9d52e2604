#include <gtest/gtest.h>

#include <cwchar>
#include <tuple>

#include "corvane/platform/framework/c_string.h"

namespace corvane {

void PrintTo(const CString& text, std::ostream* out) {
  *out << testing::PrintToString(text.AsStdString());
}

namespace {

template <class... Arguments>
CString formatted(const wchar_t* format, const Arguments&... arguments) {
  CString text;
  text.Format(format, arguments...);
  return text;
}

TEST(FrameworkString, TakesPartsWithClampedPositions) {
  const CString text(L"移动成功abc");
  const std::tuple<int, int, const wchar_t*> cases[] = {
      {0, 2, L"移动"}, {4, 99, L"abc"}, {7, 1, L""},   {99, 1, L""},
      {-5, 1, L"移"},  {2, -1, L""},    {3, 2, L"功a"}};
  for (const auto& [first, count, part] : cases) EXPECT_EQ(text.Mid(first, count), part);
  EXPECT_EQ(text.Left(4) + text.Right(3), text);
  EXPECT_EQ(text.Left(99), text);
  EXPECT_EQ(text.Right(99), text);
  EXPECT_EQ(text.Right(-1), L"");
  EXPECT_EQ(text.GetAt(0), L'移');
  EXPECT_EQ(text.GetAt(7), 0);
  EXPECT_EQ(text[-1], 0);
}

TEST(FrameworkString, FindsTextAndCharacters) {
  const CString path(L"Z:\\library\\scans\\page");
  EXPECT_EQ(path.Find(L'\\'), 2);
  EXPECT_EQ(path.Find(L'\\', 3), 10);
  EXPECT_EQ(path.Find(L"scans"), 11);
  EXPECT_EQ(path.Find(L"scans", 12), -1);
  EXPECT_EQ(path.ReverseFind(L'\\'), 16);
  EXPECT_EQ(path.ReverseFind(L'?'), -1);
  EXPECT_EQ(path.Find(L"x", 99), -1);
  EXPECT_EQ(path.Find(L'x', -1), -1);
  EXPECT_EQ(path.FindOneOf(L"?*:"), 1);
  EXPECT_EQ(path.Left(path.ReverseFind(L'\\')), L"Z:\\library\\scans");
}

TEST(FrameworkString, ComparesByValueAndWithoutCase) {
  EXPECT_TRUE(CString(L"a") < L"b");
  EXPECT_TRUE(CString(L"B") < CString(L"a")) << "case decides";
  EXPECT_TRUE(CString(L"a") != L"A");
  EXPECT_TRUE(L"same" == CString(L"same"));
  EXPECT_TRUE(CString(static_cast<const wchar_t*>(nullptr)) == L"");
  EXPECT_EQ(CString(L"Image").CompareNoCase(L"iMAGE"), 0);
  EXPECT_LT(CString(L"a").CompareNoCase(L"B"), 0);
  EXPECT_GT(CString(L"C").CompareNoCase(L"b"), 0);
  EXPECT_GT(CString(L"x").Compare(nullptr), 0);
}

TEST(FrameworkString, GrowsFromItsOwnText) {
  CString text(L"ab");
  text += text;
  text += text.GetString();
  EXPECT_EQ(text, L"abababab");
  text = text.GetString() + 6;
  EXPECT_EQ(text, L"ab");
  EXPECT_EQ(L"<" + text + L'>' + L"!" + text, L"<ab>!ab");
  EXPECT_EQ(L'[' + text, L"[ab");
  text += static_cast<const wchar_t*>(nullptr);
  EXPECT_EQ(text, L"ab");
}

TEST(FrameworkString, EditsInPlace) {
  CString text(L" \t one two one\n");
  EXPECT_EQ(text.Trim(), L"one two one");
  EXPECT_EQ(text.Replace(L"one", L"oneone"), 2);
  EXPECT_EQ(text, L"oneone two oneone");
  EXPECT_EQ(text.Replace(L"", L"x"), 0);
  EXPECT_EQ(text.Delete(-1, 2), 17) << "nothing stands there";
  EXPECT_EQ(text.Delete(6, 99), 6);
  EXPECT_EQ(text.Insert(99, text), 12);
  EXPECT_EQ(text.Insert(-1, L">"), 13);
  EXPECT_EQ(text, L">oneoneoneone");
  EXPECT_EQ(text.TrimRight(L'e'), L">oneoneoneon");
  text.SetAt(0, L'O');
  text.SetAt(99, L'?');
  EXPECT_EQ(text.MakeUpper().Left(4), L"OONE");
  EXPECT_EQ(text.MakeLower().Left(4), L"oone");
  EXPECT_EQ(CString(L"   ").TrimLeft(), L"");
  EXPECT_EQ(CString(L"   ").TrimRight(), L"");
  EXPECT_EQ(CString(L'=', 3), L"===");
  EXPECT_EQ(CString(L'=', -3), L"");
  EXPECT_EQ(CString(L"abc", 2), L"ab");
}

TEST(FrameworkString, LendsABuffer) {
  CString text(L"abc");
  std::wcscpy(text.GetBuffer(8), L"01234");
  text.ReleaseBuffer();
  EXPECT_EQ(text, L"01234");
  text.GetBuffer(3);
  text.ReleaseBuffer(2);
  EXPECT_EQ(text, L"01");
  text.GetBuffer(0);
  text.ReleaseBuffer(99);
  EXPECT_EQ(text, L"01") << "no longer than the buffer";
  text.GetBuffer(5);
  text.ReleaseBuffer(0);
  EXPECT_EQ(text, L"");
}

TEST(FrameworkString, FormatsLikePrintf) {
  EXPECT_EQ(formatted(L"%d°", 90), L"90°");
  EXPECT_EQ(formatted(L"%s\\%s", L"Z:", CString(L"图片")), L"Z:\\图片");
  EXPECT_EQ(formatted(L"%04d|%-4d|%+d", 7, 7, 7), L"0007|7   |+7");
  EXPECT_EQ(formatted(L"%x %X %#x %u", 255u, 255u, 255u, 4000000000u), L"ff FF 0xff 4000000000");
  EXPECT_EQ(formatted(L"%.2f %5.1f", 1.239, 2.25f), L"1.24   2.2");
  EXPECT_EQ(formatted(L"%c%c", L'中', 'x'), L"中x");
  EXPECT_EQ(formatted(L"%5s|%-5s|%.2s", L"ab", L"ab", L"abc"), L"   ab|ab   |ab");
  EXPECT_EQ(formatted(L"%.0s|%.700d", L"ab", 1).GetLength(), 701);
  EXPECT_EQ(formatted(L"%*d|%*d|%-*d", 4, 1, -4, 1, 4, 1), L"   1|1   |1   ");
  EXPECT_EQ(formatted(L"%lld %I64d %ld %hd", 1LL << 40, -(1LL << 40), 3L, short{4}),
            L"1099511627776 -1099511627776 3 4");
  EXPECT_EQ(formatted(L"100%% %i", -2), L"100% -2");
  EXPECT_EQ(formatted(L"%p", reinterpret_cast<const void*>(0xABC)).Right(4), L"0ABC");
}

// Every one of these would be undefined behaviour with the C library's function.
TEST(FrameworkString, FormatsSafelyWhatDoesNotFit) {
  EXPECT_EQ(formatted(L"%s", 42), L"42");
  EXPECT_EQ(formatted(L"%d", L"text"), L"0");
  EXPECT_EQ(formatted(L"%d", 2.9), L"2");
  EXPECT_EQ(formatted(L"%d", 1e300), L"0");
  EXPECT_EQ(formatted(L"%.1f", 3), L"3.0");
  EXPECT_EQ(formatted(L"%d %d", 1), L"1 %d");
  EXPECT_EQ(formatted(L"%s"), L"%s");
  EXPECT_EQ(formatted(L"50%"), L"50%");
  EXPECT_EQ(formatted(L"%-", 1), L"%-");
  EXPECT_EQ(formatted(L"%n %d", 5), L"%n 5");
  EXPECT_EQ(formatted(L"%s", static_cast<const wchar_t*>(nullptr)), L"");
  EXPECT_EQ(formatted(nullptr, 1), L"");
  EXPECT_EQ(formatted(L"%99999999999d", 1).GetLength(), 4096);
  EXPECT_GT(formatted(L"%f", 1e308).GetLength(), 308);
  CString own(L"ab");
  own.Format(L"%s-%s", own, own.GetString());
  EXPECT_EQ(own, L"ab-ab");
  own.AppendFormat(L"/%d", 5);
  EXPECT_EQ(own, L"ab-ab/5");
}

}  // namespace
}  // namespace corvane
