#pragma once
// Wide text with value semantics. Positions and lengths count wide characters; positions outside
// the text are clamped or give the documented result.
#include <array>
#include <compare>
#include <string>

#include "corvane/platform/framework/format_text.h"
#include "corvane/platform/platform.h"

namespace corvane {

class CString {
 public:
  CString() = default;
  CString(const wchar_t* text) : text_(text != nullptr ? text : L"") {}  // null: empty
  CString(const wchar_t* text, int length);
  explicit CString(wchar_t character, int count = 1);
  CString(std::wstring text) : text_(std::move(text)) {}

  operator LPCWSTR() const { return text_.c_str(); }
  LPCWSTR GetString() const { return text_.c_str(); }
  const std::wstring& AsStdString() const { return text_; }
  int GetLength() const { return static_cast<int>(text_.size()); }
  bool IsEmpty() const { return text_.empty(); }
  void Empty() { text_.clear(); }
  wchar_t GetAt(int position) const;  // 0 outside the text
  wchar_t operator[](int position) const { return GetAt(position); }
  void SetAt(int position, wchar_t character);  // nothing outside the text

  CString& operator=(const wchar_t* text);
  CString& operator+=(const CString& text);
  CString& operator+=(const wchar_t* text);
  CString& operator+=(wchar_t character);
  void AppendChar(wchar_t character) { *this += character; }

  CString Left(int count) const;
  CString Right(int count) const;
  CString Mid(int first) const;
  CString Mid(int first, int count) const;

  // The position, or -1. Searching starts at `start`.
  int Find(const wchar_t* text, int start = 0) const;
  int Find(wchar_t character, int start = 0) const;
  int FindOneOf(const wchar_t* characters) const;
  int ReverseFind(wchar_t character) const;

  // Negative, 0 or positive; by character values. Case is folded with the simple Unicode mappings
  // that the C library knows.
  int Compare(const wchar_t* other) const;
  int CompareNoCase(const wchar_t* other) const;

  CString& TrimLeft(const wchar_t* characters = L" \t\r\n\v\f");
  CString& TrimRight(const wchar_t* characters = L" \t\r\n\v\f");
  CString& Trim(const wchar_t* characters = L" \t\r\n\v\f");
  CString& TrimRight(wchar_t character);
  CString& MakeLower();
  CString& MakeUpper();
  int Replace(const wchar_t* old_text, const wchar_t* new_text);  // the number of places replaced
  int Insert(int position, const wchar_t* text);                  // the new length
  int Delete(int position, int count = 1);                        // the new length

  // As format_text says; the old text may be an argument.
  template <class... Arguments>
  void Format(const wchar_t* format, const Arguments&... arguments) {
    text_ = formatted(format, arguments...);
  }
  template <class... Arguments>
  void AppendFormat(const wchar_t* format, const Arguments&... arguments) {
    text_ += formatted(format, arguments...);
  }

  // A buffer for at least `length` characters and the final 0, valid until the next call of another
  // member. ReleaseBuffer must follow; -1 takes the text up to the first 0.
  wchar_t* GetBuffer(int length = 0);
  void ReleaseBuffer(int length = -1);

  friend bool operator==(const CString& a, const CString& b) { return a.text_ == b.text_; }
  friend bool operator==(const CString& a, const wchar_t* b) { return a.Compare(b) == 0; }
  friend std::strong_ordering operator<=>(const CString& a, const CString& b) {
    return a.text_.compare(b.text_) <=> 0;
  }
  friend std::strong_ordering operator<=>(const CString& a, const wchar_t* b) {
    return a.Compare(b) <=> 0;
  }
  friend CString operator+(CString a, const CString& b) { return std::move(a += b); }
  friend CString operator+(CString a, const wchar_t* b) { return std::move(a += b); }
  friend CString operator+(CString a, wchar_t b) { return std::move(a += b); }
  friend CString operator+(const wchar_t* a, const CString& b) { return CString(a) += b; }
  friend CString operator+(wchar_t a, const CString& b) { return CString(a) += b; }

 private:
  template <class... Arguments>
  static std::wstring formatted(const wchar_t* format, const Arguments&... arguments) {
    const std::array<FormatArgument, sizeof...(Arguments)> list{format_argument(arguments)...};
    return format_text(format, list);
  }

  std::wstring text_;
};

}  // namespace corvane
