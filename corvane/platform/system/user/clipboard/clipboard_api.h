#pragma once
// The clipboard of the calling thread's window system. Its text is the desktop's: what another
// program copied is CF_UNICODETEXT here, and what is text when the clipboard is closed goes to the
// desktop, up to 8 MB of UTF-8 (more stays within the program). The desktop's clipboard ends with
// the program; on Wayland it takes text only shortly after a key or button. From X11 text arrives
// up to about 1 MB, and a program that owns the clipboard and does not answer costs a second. Other
// formats stay within the window system.
//
// Line ends are "\r\n" here, whatever the desktop's are. CF_TEXT and CF_OEMTEXT are UTF-8 (CP_ACP).
// Each text format, and CF_LOCALE, is made from the one that was set when the clipboard is closed.
#include "corvane/platform/system/types.h"

namespace corvane_system {

#define CF_TEXT 1u
#define CF_BITMAP 2u
#define CF_OEMTEXT 7u
#define CF_DIB 8u
#define CF_UNICODETEXT 13u
#define CF_HDROP 15u
#define CF_LOCALE 16u
#define CF_DIBV5 17u
#define CF_PRIVATEFIRST 0x0200u
#define CF_PRIVATELAST 0x02FFu
#define CF_GDIOBJFIRST 0x0300u
#define CF_GDIOBJLAST 0x03FFu

#define ERROR_CLIPBOARD_NOT_OPEN 1418u

// FALSE with ERROR_ACCESS_DENIED while another window, or none, has it open; the same window may
// open it again, and one CloseClipboard closes it.
BOOL OpenClipboard(HWND window);
// FALSE with ERROR_CLIPBOARD_NOT_OPEN, like all that needs it open.
BOOL CloseClipboard();
// Makes the window that opened it its owner; the former one gets WM_DESTROYCLIPBOARD.
BOOL EmptyClipboard();
// Hands the memory (GlobalAlloc with GMEM_MOVEABLE; a bitmap for CF_BITMAP) over to the clipboard,
// or, when it is null, promises it: the owner gets WM_RENDERFORMAT when someone wants it, and
// WM_RENDERALLFORMATS when it is destroyed. Promised text is wanted when the clipboard is closed:
// the desktop takes it then. Returns the memory; null with ERROR_INVALID_HANDLE for what is none,
// ERROR_INVALID_PARAMETER for the format 0 and for a promise without an owner.
HANDLE SetClipboardData(UINT format, HANDLE memory);
// The memory stays the clipboard's and must not be freed; valid until it is closed. Null when there
// is no such format.
HANDLE GetClipboardData(UINT format);
BOOL IsClipboardFormatAvailable(UINT format);  // also while it is not open
int CountClipboardFormats();
// The format behind this one, the first for 0; 0 with ERROR_SUCCESS behind the last.
UINT EnumClipboardFormats(UINT format);
// The first of the list that is there; 0: the clipboard is empty, -1: it holds others.
int GetPriorityClipboardFormat(UINT* formats, int count);
HWND GetClipboardOwner();
HWND GetOpenClipboardWindow();
DWORD GetClipboardSequenceNumber();  // changes whenever the clipboard does
// A number from 0xC000 for a name, whatever its letter case; 0 for an empty one.
UINT RegisterClipboardFormatW(LPCWSTR name);
// A listener gets WM_CLIPBOARDUPDATE after each change. FALSE with ERROR_INVALID_PARAMETER for one
// that is a listener already, and for the removal of one that is none.
BOOL AddClipboardFormatListener(HWND window);
BOOL RemoveClipboardFormatListener(HWND window);

}  // namespace corvane_system
