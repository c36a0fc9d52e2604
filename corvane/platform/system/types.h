#pragma once
// The platform's basic types with the platform's sizes: LONG, DWORD, BOOL and COLORREF are 32 bits,
// WPARAM, LPARAM, LRESULT and handles are as wide as a pointer, WCHAR is wchar_t.
#include <cstddef>
#include <cstdint>

#ifndef TRUE
#define TRUE 1
#endif
#ifndef FALSE
#define FALSE 0
#endif
#define CALLBACK
#define WINAPI
#define APIENTRY

namespace corvane_system {

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using SHORT = std::int16_t;
using INT = int;
using UINT = unsigned int;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using DWORD = std::uint32_t;
using WCHAR = wchar_t;
using ATOM = WORD;
using COLORREF = DWORD;  // 0x00BBGGRR
using LPVOID = void*;
using LPCSTR = const char*;
using LPSTR = char*;
using LPCWSTR = const wchar_t*;
using LPWSTR = wchar_t*;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using LONG_PTR = std::intptr_t;
using ULONG_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using WPARAM = UINT_PTR;
using LPARAM = LONG_PTR;
using LRESULT = LONG_PTR;
using SIZE_T = std::size_t;
using HANDLE = void*;
using HGDIOBJ = void*;

// Handles name objects of one window system. They are never dereferenced: a stale or made-up
// handle makes a call fail.
struct HWND__;
struct HDC__;
struct HPEN__;
struct HBRUSH__;
struct HFONT__;
struct HBITMAP__;
struct HRGN__;
struct HICON__;
struct HMENU__;
struct HINSTANCE__;
struct HHOOK__;
struct HMONITOR__;
using HWND = HWND__*;
using HDC = HDC__*;
using HPEN = HPEN__*;
using HBRUSH = HBRUSH__*;
using HFONT = HFONT__*;
using HBITMAP = HBITMAP__*;
using HRGN = HRGN__*;
using HICON = HICON__*;
using HCURSOR = HICON;
using HMENU = HMENU__*;
using HINSTANCE = HINSTANCE__*;
using HMODULE = HINSTANCE;
using HHOOK = HHOOK__*;
using HMONITOR = HMONITOR__*;

struct POINT {
  LONG x;
  LONG y;
};
struct SIZE {
  LONG cx;
  LONG cy;
};
// Left and top are inside, right and bottom outside.
struct RECT {
  LONG left;
  LONG top;
  LONG right;
  LONG bottom;
};
using LPRECT = RECT*;
using LPCRECT = const RECT*;
using LPPOINT = POINT*;
using LPSIZE = SIZE*;

using WNDPROC = LRESULT (*)(HWND, UINT, WPARAM, LPARAM);
using TIMERPROC = void (*)(HWND, UINT, UINT_PTR, DWORD);
using HOOKPROC = LRESULT (*)(int, WPARAM, LPARAM);
using WNDENUMPROC = BOOL (*)(HWND, LPARAM);

// What the macros below do.
constexpr WORD low_word(DWORD_PTR value) { return static_cast<WORD>(value & 0xFFFF); }
constexpr WORD high_word(DWORD_PTR value) { return static_cast<WORD>((value >> 16) & 0xFFFF); }
constexpr DWORD make_long(DWORD_PTR low, DWORD_PTR high) {
  return static_cast<DWORD>(low_word(low)) | (static_cast<DWORD>(low_word(high)) << 16);
}
constexpr COLORREF make_color(int red, int green, int blue) {
  return static_cast<COLORREF>((red & 0xFF) | ((green & 0xFF) << 8) | ((blue & 0xFF) << 16));
}
inline LPWSTR resource_name(int id) {
  return reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(static_cast<WORD>(id)));
}
inline bool is_resource_name(LPCWSTR name) {
  return (reinterpret_cast<ULONG_PTR>(name) >> 16) == 0;
}

#define LOWORD(value) (::corvane_system::low_word(static_cast<::corvane_system::DWORD_PTR>(value)))
#define HIWORD(value) (::corvane_system::high_word(static_cast<::corvane_system::DWORD_PTR>(value)))
#define LOBYTE(value) (static_cast<::corvane_system::BYTE>((value)&0xFF))
#define HIBYTE(value) (static_cast<::corvane_system::BYTE>((value) >> 8 & 0xFF))
#define MAKELONG(low, high)                                                   \
  (::corvane_system::make_long(static_cast<::corvane_system::DWORD_PTR>(low), \
                               static_cast<::corvane_system::DWORD_PTR>(high)))
#define MAKEWPARAM(low, high) (static_cast<::corvane_system::WPARAM>(MAKELONG(low, high)))
#define MAKELPARAM(low, high) (static_cast<::corvane_system::LPARAM>(MAKELONG(low, high)))
#define GET_X_LPARAM(value) (static_cast<int>(static_cast<::corvane_system::SHORT>(LOWORD(value))))
#define GET_Y_LPARAM(value) (static_cast<int>(static_cast<::corvane_system::SHORT>(HIWORD(value))))
#define GET_WHEEL_DELTA_WPARAM(value) (static_cast<::corvane_system::SHORT>(HIWORD(value)))
#define RGB(red, green, blue) (::corvane_system::make_color((red), (green), (blue)))
#define GetRValue(color) LOBYTE(color)
#define GetGValue(color) LOBYTE((color) >> 8)
#define GetBValue(color) LOBYTE((color) >> 16)

// A resource identifier in place of a name.
#define MAKEINTRESOURCEW(id) (::corvane_system::resource_name(id))
#define IS_INTRESOURCE(name) (::corvane_system::is_resource_name(name))

// Rectangle arithmetic. The functions that return BOOL say whether the result is not empty.
BOOL SetRect(LPRECT rect, int left, int top, int right, int bottom);
BOOL SetRectEmpty(LPRECT rect);
BOOL CopyRect(LPRECT target, const RECT* source);
BOOL IsRectEmpty(const RECT* rect);  // width or height <= 0
BOOL EqualRect(const RECT* first, const RECT* second);
BOOL PtInRect(const RECT* rect, POINT point);
BOOL InflateRect(LPRECT rect, int dx, int dy);
BOOL OffsetRect(LPRECT rect, int dx, int dy);
BOOL IntersectRect(LPRECT target, const RECT* first, const RECT* second);  // touching: empty
BOOL UnionRect(LPRECT target, const RECT* first, const RECT* second);      // ignores an empty one

// The calling thread's last error code.
DWORD GetLastError();
void SetLastError(DWORD code);

#define ERROR_SUCCESS 0u
#define ERROR_ACCESS_DENIED 5u
#define ERROR_INVALID_HANDLE 6u
#define ERROR_NOT_ENOUGH_MEMORY 8u
#define ERROR_INVALID_DATA 13u
#define ERROR_INVALID_PARAMETER 87u
#define ERROR_INVALID_WINDOW_HANDLE 1400u
#define ERROR_INVALID_CURSOR_HANDLE 1402u
#define ERROR_TLW_WITH_WSCHILD 1406u
#define ERROR_CANNOT_FIND_WND_CLASS 1407u
#define ERROR_CLASS_ALREADY_EXISTS 1410u
#define ERROR_CLASS_DOES_NOT_EXIST 1411u
#define ERROR_CONTROL_ID_NOT_FOUND 1421u
#define ERROR_NO_SCROLLBARS 1447u
#define ERROR_NOT_ENOUGH_QUOTA 1816u

}  // namespace corvane_system
using namespace corvane_system;  // NOLINT: the platform's names are global, as on Windows
