#include "corvane/platform/framework/c_string.h"

#include <algorithm>
#include <cwchar>
#include <cwctype>

namespace corvane {
namespace {

const wchar_t* or_empty(const wchar_t* text) { return text != nullptr ? text : L""; }

int position_or_minus_one(std::size_t position) {
  return position == std::wstring::npos ? -1 : static_cast<int>(position);
}

wchar_t lower(wchar_t character) {
  return static_cast<wchar_t>(std::towlower(static_cast<wint_t>(character)));
}

wchar_t upper(wchar_t character) {
  return static_cast<wchar_t>(std::towupper(static_cast<wint_t>(character)));
}

}  // namespace

CString::CString(const wchar_t* text, int length) {
  if (text != nullptr && length > 0) text_.assign(text, static_cast<std::size_t>(length));
}

CString::CString(wchar_t character, int count)
    : text_(static_cast<std::size_t>(std::max(count, 0)), character) {}

wchar_t CString::GetAt(int position) const {
  if (position < 0 || position >= GetLength()) return 0;
  return text_[static_cast<std::size_t>(position)];
}

void CString::SetAt(int position, wchar_t character) {
  if (position < 0 || position >= GetLength()) return;
  text_[static_cast<std::size_t>(position)] = character;
}

CString& CString::operator=(const wchar_t* text) {
  text_ = or_empty(text);
  return *this;
}

CString& CString::operator+=(const CString& text) {
  text_ += text.text_;
  return *this;
}

CString& CString::operator+=(const wchar_t* text) {
  text_ += or_empty(text);
  return *this;
}

CString& CString::operator+=(wchar_t character) {
  text_ += character;
  return *this;
}

CString CString::Left(int count) const { return Mid(0, count); }

CString CString::Right(int count) const {
  const int taken = std::clamp(count, 0, GetLength());
  return Mid(GetLength() - taken, taken);
}

CString CString::Mid(int first) const { return Mid(first, GetLength()); }

CString CString::Mid(int first, int count) const {
  const int start = std::clamp(first, 0, GetLength());
  const int taken = std::clamp(count, 0, GetLength() - start);
  return text_.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(taken));
}

int CString::Find(const wchar_t* text, int start) const {
  if (start < 0 || start > GetLength()) return -1;
  return position_or_minus_one(text_.find(or_empty(text), static_cast<std::size_t>(start)));
}

int CString::Find(wchar_t character, int start) const {
  if (start < 0 || start > GetLength()) return -1;
  return position_or_minus_one(text_.find(character, static_cast<std::size_t>(start)));
}

int CString::FindOneOf(const wchar_t* characters) const {
  return position_or_minus_one(text_.find_first_of(or_empty(characters)));
}

int CString::ReverseFind(wchar_t character) const {
  return position_or_minus_one(text_.rfind(character));
}

int CString::Compare(const wchar_t* other) const { return text_.compare(or_empty(other)); }

int CString::CompareNoCase(const wchar_t* other) const {
  return CString(*this).MakeLower().Compare(CString(other).MakeLower());
}

CString& CString::TrimLeft(const wchar_t* characters) {
  text_.erase(0, std::min(text_.find_first_not_of(or_empty(characters)), text_.size()));
  return *this;
}

CString& CString::TrimRight(const wchar_t* characters) {
  text_.erase(text_.find_last_not_of(or_empty(characters)) + 1);
  return *this;
}

CString& CString::Trim(const wchar_t* characters) {
  return TrimRight(characters).TrimLeft(characters);
}

CString& CString::TrimRight(wchar_t character) {
  const wchar_t characters[] = {character, 0};
  return TrimRight(characters);
}

CString& CString::MakeLower() {
  std::transform(text_.begin(), text_.end(), text_.begin(), lower);
  return *this;
}

CString& CString::MakeUpper() {
  std::transform(text_.begin(), text_.end(), text_.begin(), upper);
  return *this;
}

int CString::Replace(const wchar_t* old_text, const wchar_t* new_text) {
  // The texts may be this string's own characters.
  const std::wstring from = or_empty(old_text), to = or_empty(new_text);
  if (from.empty()) return 0;
  int replaced = 0;
  for (std::size_t at = text_.find(from); at != std::wstring::npos;
       at = text_.find(from, at + to.size())) {
    text_.replace(at, from.size(), to);
    ++replaced;
  }
  return replaced;
}

int CString::Insert(int position, const wchar_t* text) {
  const int at = std::clamp(position, 0, GetLength());
  text_.insert(static_cast<std::size_t>(at), std::wstring(or_empty(text)));
  return GetLength();
}

int CString::Delete(int position, int count) {
  if (position >= 0 && position < GetLength() && count > 0) {
    text_.erase(static_cast<std::size_t>(position), static_cast<std::size_t>(count));
  }
  return GetLength();
}

wchar_t* CString::GetBuffer(int length) {
  if (length > GetLength()) text_.resize(static_cast<std::size_t>(length));
  return text_.data();
}

void CString::ReleaseBuffer(int length) {
  const std::size_t wanted =
      length < 0 ? std::wcslen(text_.c_str()) : static_cast<std::size_t>(length);
  text_.resize(std::min(wanted, text_.size()));
}

}  // namespace corvane
