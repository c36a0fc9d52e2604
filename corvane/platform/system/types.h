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

constexpr WORD LOWORD(DWORD_PTR value) { return static_cast<WORD>(value & 0xFFFF); }
constexpr WORD HIWORD(DWORD_PTR value) { return static_cast<WORD>((value >> 16) & 0xFFFF); }
constexpr BYTE LOBYTE(DWORD_PTR value) { return static_cast<BYTE>(value & 0xFF); }
constexpr BYTE HIBYTE(DWORD_PTR value) { return static_cast<BYTE>((value >> 8) & 0xFF); }
constexpr DWORD MAKELONG(DWORD_PTR low, DWORD_PTR high) {
  return static_cast<DWORD>(LOWORD(low)) | (static_cast<DWORD>(LOWORD(high)) << 16);
}
constexpr WPARAM MAKEWPARAM(DWORD_PTR low, DWORD_PTR high) { return MAKELONG(low, high); }
constexpr LPARAM MAKELPARAM(DWORD_PTR low, DWORD_PTR high) {
  return static_cast<LPARAM>(MAKELONG(low, high));
}
constexpr int GET_X_LPARAM(LPARAM value) {
  return static_cast<SHORT>(LOWORD(static_cast<DWORD_PTR>(value)));
}
constexpr int GET_Y_LPARAM(LPARAM value) {
  return static_cast<SHORT>(HIWORD(static_cast<DWORD_PTR>(value)));
}
constexpr SHORT GET_WHEEL_DELTA_WPARAM(WPARAM value) { return static_cast<SHORT>(HIWORD(value)); }
constexpr COLORREF RGB(int red, int green, int blue) {
  return static_cast<COLORREF>((red & 0xFF) | ((green & 0xFF) << 8) | ((blue & 0xFF) << 16));
}
constexpr BYTE GetRValue(COLORREF color) { return LOBYTE(color); }
constexpr BYTE GetGValue(COLORREF color) { return LOBYTE(color >> 8); }
constexpr BYTE GetBValue(COLORREF color) { return LOBYTE(color >> 16); }

// A resource identifier in place of a name.
inline LPWSTR MAKEINTRESOURCEW(int id) {
  return reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(static_cast<WORD>(id)));
}
inline bool IS_INTRESOURCE(LPCWSTR name) { return (reinterpret_cast<ULONG_PTR>(name) >> 16) == 0; }

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

constexpr DWORD ERROR_SUCCESS = 0;
constexpr DWORD ERROR_ACCESS_DENIED = 5;
constexpr DWORD ERROR_INVALID_HANDLE = 6;
constexpr DWORD ERROR_INVALID_PARAMETER = 87;
constexpr DWORD ERROR_INVALID_WINDOW_HANDLE = 1400;
constexpr DWORD ERROR_TLW_WITH_WSCHILD = 1406;
constexpr DWORD ERROR_CANNOT_FIND_WND_CLASS = 1407;
constexpr DWORD ERROR_CLASS_ALREADY_EXISTS = 1410;
constexpr DWORD ERROR_CLASS_DOES_NOT_EXIST = 1411;
constexpr DWORD ERROR_CONTROL_ID_NOT_FOUND = 1421;
constexpr DWORD ERROR_NO_SCROLLBARS = 1447;

}  // namespace corvane_system
using namespace corvane_system;  // NOLINT: the platform's names are global, as on Windows
