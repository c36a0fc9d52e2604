#pragma once
// The input method of a window. Here it is off until the window says where its text appears
// (ImmSetCompositionWindow, ImmSetCandidateWindow), which it does again whenever its caret moves;
// on Windows it is on from the start. Without it keys make WM_CHAR by the keyboard's layout alone.
// What an input method commits comes as WM_CHAR; there are no messages of the composition.
#include "corvane/platform/system/types.h"

namespace corvane_system {

struct HIMC__;
using HIMC = HIMC__*;

#define CFS_DEFAULT 0x0000u
#define CFS_RECT 0x0001u
#define CFS_POINT 0x0002u
#define CFS_FORCE_POSITION 0x0020u
#define CFS_CANDIDATEPOS 0x0040u
#define CFS_EXCLUDE 0x0080u

struct COMPOSITIONFORM {
  DWORD dwStyle;
  POINT ptCurrentPos;  // client coordinates: the caret's upper left corner
  RECT rcArea;
};
struct CANDIDATEFORM {
  DWORD dwIndex;
  DWORD dwStyle;
  POINT ptCurrentPos;
  RECT rcArea;  // with CFS_EXCLUDE the caret, which the list of candidates leaves free
};

// Null for a window whose input method was switched off by ImmAssociateContext. To be released.
HIMC ImmGetContext(HWND window);
BOOL ImmReleaseContext(HWND window, HIMC context);
// Null switches the window's input method off, its own context (as returned by that) on again.
// Returns the previous one.
HIMC ImmAssociateContext(HWND window, HIMC context);
BOOL ImmSetCompositionWindow(HIMC context, COMPOSITIONFORM* form);
BOOL ImmSetCandidateWindow(HIMC context, CANDIDATEFORM* form);

}  // namespace corvane_system
