#pragma once
// Memory that is passed on by handle (the clipboard takes and gives it), and text between its
// encodings. All functions may be called from any thread.
#include "corvane/platform/system/types.h"

namespace corvane_system {

using HGLOBAL = HANDLE;

#define GMEM_FIXED 0x0000u
#define GMEM_MOVEABLE 0x0002u
#define GMEM_ZEROINIT 0x0040u
#define GMEM_MODIFY 0x0080u
#define GMEM_LOCKCOUNT 0x00FFu
#define GMEM_INVALID_HANDLE 0x8000u
#define GHND (GMEM_MOVEABLE | GMEM_ZEROINIT)
#define GPTR (GMEM_FIXED | GMEM_ZEROINIT)

#define ERROR_INSUFFICIENT_BUFFER 122u
#define ERROR_NOT_LOCKED 158u
#define ERROR_INVALID_FLAGS 1004u
#define ERROR_NO_UNICODE_TRANSLATION 1113u

// `size` in bytes. With GMEM_MOVEABLE the result is a handle for GlobalLock, otherwise the memory's
// address, which is its own handle. Null with ERROR_NOT_ENOUGH_MEMORY. The caller frees it, or
// hands it to the clipboard.
HGLOBAL GlobalAlloc(UINT flags, SIZE_T size);
// Another size; what is in both stays. With GMEM_ZEROINIT new bytes are 0. Locked or fixed memory
// moves only with GMEM_MOVEABLE; it grows otherwise not at all (ERROR_NOT_ENOUGH_MEMORY).
// GMEM_MODIFY is refused (ERROR_INVALID_PARAMETER). On failure the old memory stays.
HGLOBAL GlobalReAlloc(HGLOBAL memory, SIZE_T size, UINT flags);
HGLOBAL GlobalFree(HGLOBAL memory);  // null; `memory` itself with ERROR_INVALID_HANDLE
// The address, valid until as many GlobalUnlock (up to 255; further locks are not counted). Null
// for memory of 0 bytes, and with ERROR_INVALID_HANDLE.
LPVOID GlobalLock(HGLOBAL memory);
// Whether it is still locked (always, for fixed memory). FALSE with ERROR_SUCCESS: no longer; with
// ERROR_NOT_LOCKED: it was not.
BOOL GlobalUnlock(HGLOBAL memory);
SIZE_T GlobalSize(HGLOBAL memory);  // bytes; 0 with ERROR_INVALID_HANDLE
UINT GlobalFlags(HGLOBAL memory);   // how often it is locked; or GMEM_INVALID_HANDLE

#define CP_ACP 0u
#define CP_OEMCP 1u
#define CP_THREAD_ACP 3u
#define CP_UTF8 65001u
#define MB_PRECOMPOSED 0x0001u
#define MB_ERR_INVALID_CHARS 0x0008u
#define WC_ERR_INVALID_CHARS 0x0080u
#define WC_NO_BEST_FIT_CHARS 0x0400u

// The code pages here are UTF-8 under the four names above. A negative length reads up to and with
// the terminating 0, a capacity of 0 asks for the length that is needed. Each returns what was
// written, in characters or bytes, or 0 with ERROR_INSUFFICIENT_BUFFER, ERROR_INVALID_FLAGS,
// ERROR_INVALID_PARAMETER (no text, a length of 0, the same memory twice, another code page) or,
// where the flags forbid what is no text, ERROR_NO_UNICODE_TRANSLATION; it is U+FFFD otherwise.
int MultiByteToWideChar(UINT code_page, DWORD flags, LPCSTR bytes, int length, LPWSTR wide,
                        int capacity);
// `substitute` and `substituted` must be null for CP_UTF8; for the others `*substituted` becomes
// whether something was no text.
int WideCharToMultiByte(UINT code_page, DWORD flags, LPCWSTR wide, int length, LPSTR bytes,
                        int capacity, LPCSTR substitute, BOOL* substituted);
UINT GetACP();  // CP_UTF8

}  // namespace corvane_system
