#pragma once
// Files that were dropped onto a window: what comes with WM_DROPFILES, in memory that goes by
// handle (also CF_HDROP).
#include "corvane/platform/system/types.h"

namespace corvane_system {

struct HDROP__;
using HDROP = HDROP__*;

// The head of that memory. Behind it stand the wide paths, each with its 0, and another 0.
struct DROPFILES {
  DWORD pFiles;  // where they begin, bytes from here
  POINT pt;      // client coordinates; with fNC screen coordinates
  BOOL fNC;      // outside of the client area
  BOOL fWide;    // TRUE; other lists are not read
};

// The path of file `index`, cut to `capacity` characters with the 0; returns its length as it was
// copied, without a buffer the whole one. 0xFFFFFFFF asks for the number of files. 0 when there is
// no such file, or for what is no list.
UINT DragQueryFileW(HDROP drop, UINT index, LPWSTR buffer, UINT capacity);
// Where it was dropped; FALSE outside of the client area.
BOOL DragQueryPoint(HDROP drop, LPPOINT point);
void DragFinish(HDROP drop);  // frees it; the receiver of WM_DROPFILES has to

}  // namespace corvane_system
