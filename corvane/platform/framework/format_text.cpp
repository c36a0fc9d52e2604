#include "corvane/platform/framework/format_text.h"

#include <algorithm>
#include <cstdint>
#include <cwchar>
#include <vector>

namespace corvane {
namespace {

constexpr int kMaxField = 4096;  // characters; a wider field is cut to this width

struct Conversion {
  std::wstring flags;
  int width = 0;
  int precision = -1;  // none given
  wchar_t letter = 0;  // 0: the format ended too early
};

class Formatter {
 public:
  Formatter(const wchar_t* format, std::span<const FormatArgument> arguments)
      : at_(format), arguments_(arguments) {}

  std::wstring run() {
    while (*at_) {
      if (*at_ == L'%') {
        convert();
      } else {
        out_ += *at_++;
      }
    }
    return std::move(out_);
  }

 private:
  const FormatArgument* next_argument() {
    if (used_ == arguments_.size()) return nullptr;
    return &arguments_[used_++];
  }

  int read_number() {
    int value = 0;
    if (*at_ == L'*') {
      ++at_;
      const FormatArgument* argument = next_argument();
      const auto* number = argument != nullptr ? std::get_if<long long>(argument) : nullptr;
      return (number != nullptr)
                 ? static_cast<int>(std::clamp<long long>(*number, -kMaxField, kMaxField))
                 : 0;
    }
    for (; *at_ >= L'0' && *at_ <= L'9'; ++at_) {
      value = std::min(value * 10 + static_cast<int>(*at_ - L'0'), kMaxField);
    }
    return value;
  }

  Conversion read_conversion() {
    Conversion conversion;
    while (*at_ && (std::wcschr(L"-+ 0#", *at_) != nullptr)) conversion.flags += *at_++;
    conversion.width = read_number();
    if (conversion.width < 0) {
      conversion.flags += L'-';
      conversion.width = -conversion.width;
    }
    if (*at_ == L'.') {
      ++at_;
      conversion.precision = read_number();
    }
    if (std::wcsncmp(at_, L"I64", 3) == 0) at_ += 3;
    while (*at_ && (std::wcschr(L"hlzw", *at_) != nullptr)) ++at_;
    conversion.letter = *at_;
    if (*at_) ++at_;
    return conversion;
  }

  void convert() {
    const wchar_t* start = at_++;
    const Conversion conversion = read_conversion();
    if (conversion.letter == L'%') {
      out_ += L'%';
      return;
    }
    const bool known =
        (conversion.letter != 0) && (std::wcschr(L"diuxXocCsSfegp", conversion.letter) != nullptr);
    const FormatArgument* argument = known ? next_argument() : nullptr;
    if (argument != nullptr) {
      append(conversion, *argument);
    } else {
      out_.append(start, at_);
    }
  }

  void append(const Conversion& conversion, const FormatArgument& argument) {
    switch (conversion.letter) {
      case L's':
      case L'S':
        return append_text(conversion, text_of(argument));
      case L'c':
      case L'C':
        return append_text(conversion, std::wstring(1, static_cast<wchar_t>(integer_of(argument))));
      case L'f':
      case L'e':
      case L'g':
        return append_number(conversion, L"", conversion.letter, real_of(argument));
      case L'p':
        return append_number({L"0", 2 * sizeof(void*), -1, L'p'}, L"ll", L'X',
                             integer_of(argument));
      case L'i':
        return append_number(conversion, L"ll", L'd', integer_of(argument));
      default:
        return append_number(conversion, L"ll", conversion.letter, integer_of(argument));
    }
  }

  template <class Number>
  void append_number(const Conversion& conversion, const wchar_t* length, wchar_t letter,
                     Number number) {
    const std::wstring single = L"%" + conversion.flags + L"*.*" + length + letter;
    // The largest double has 309 digits before its point.
    std::vector<wchar_t> buffer(
        static_cast<std::size_t>(conversion.width + std::max(conversion.precision, 0) + 512));
    const int written = std::swprintf(buffer.data(), buffer.size(), single.c_str(),
                                      conversion.width, conversion.precision, number);
    if (written > 0) out_.append(buffer.data(), static_cast<std::size_t>(written));
  }

  void append_text(const Conversion& conversion, std::wstring text) {
    if (conversion.precision >= 0 && text.size() > static_cast<std::size_t>(conversion.precision)) {
      text.resize(static_cast<std::size_t>(conversion.precision));
    }
    const auto width = static_cast<std::size_t>(conversion.width);
    const std::wstring padding(width > text.size() ? width - text.size() : 0, L' ');
    const bool left = conversion.flags.find(L'-') != std::wstring::npos;
    out_ += left ? text + padding : padding + text;
  }

  static long long integer_of(const FormatArgument& argument) {
    if (const auto* value = std::get_if<long long>(&argument)) return *value;
    if (const auto* value = std::get_if<unsigned long long>(&argument)) {
      return static_cast<long long>(*value);
    }
    if (const auto* value = std::get_if<double>(&argument)) {
      const bool fits = *value > -9e18 && *value < 9e18;
      return fits ? static_cast<long long>(*value) : 0;
    }
    if (const auto* value = std::get_if<const void*>(&argument)) {
      return static_cast<long long>(reinterpret_cast<std::uintptr_t>(*value));
    }
    return 0;
  }

  static double real_of(const FormatArgument& argument) {
    if (const auto* value = std::get_if<double>(&argument)) return *value;
    if (const auto* value = std::get_if<unsigned long long>(&argument)) {
      return static_cast<double>(*value);
    }
    return static_cast<double>(integer_of(argument));
  }

  static std::wstring text_of(const FormatArgument& argument) {
    if (const auto* text = std::get_if<const wchar_t*>(&argument)) {
      return *text != nullptr ? *text : L"";
    }
    if (const auto* value = std::get_if<double>(&argument)) return std::to_wstring(*value);
    if (const auto* value = std::get_if<unsigned long long>(&argument)) {
      return std::to_wstring(*value);
    }
    return std::to_wstring(integer_of(argument));
  }

  const wchar_t* at_;
  std::span<const FormatArgument> arguments_;
  std::size_t used_ = 0;
  std::wstring out_;
};

}  // namespace

std::wstring format_text(const wchar_t* format, std::span<const FormatArgument> arguments) {
  return format != nullptr ? Formatter(format, arguments).run() : std::wstring();
}

}  // namespace corvane
