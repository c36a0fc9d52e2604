#pragma once
// Wide formatting in the manner of printf that knows its arguments' types: a conversion that does
// not fit its argument, or has none, never reads foreign memory.
#include <concepts>
#include <span>
#include <string>
#include <type_traits>
#include <variant>

namespace corvane {

using FormatArgument =
    std::variant<long long, unsigned long long, double, const wchar_t*, const void*>;

template <class T>
FormatArgument format_argument(const T& value) {
  if constexpr (std::is_enum_v<T>) {
    return static_cast<long long>(value);
  } else if constexpr (std::is_floating_point_v<T>) {
    return static_cast<double>(value);
  } else if constexpr (std::signed_integral<T>) {
    return static_cast<long long>(value);
  } else if constexpr (std::unsigned_integral<T>) {
    return static_cast<unsigned long long>(value);
  } else if constexpr (std::is_same_v<T, std::wstring>) {
    return value.c_str();
  } else if constexpr (std::is_convertible_v<const T&, const wchar_t*>) {
    return static_cast<const wchar_t*>(value);
  } else {
    static_assert(std::is_pointer_v<T>, "format arguments are numbers, wide texts or pointers");
    return static_cast<const void*>(value);
  }
}

// Conversions: d i u x X o c s f e g p and %%, with the flags "-+ 0#", a width and a precision
// (also
// "*") and the length marks h l ll z I64, which change nothing. s and S take wide text (null:
// empty). What does not fit: a number for s is written in decimal, a text for a number as 0; a
// conversion without an argument, or an unknown one, is copied as it stands.
std::wstring format_text(const wchar_t* format, std::span<const FormatArgument> arguments);

}  // namespace corvane
