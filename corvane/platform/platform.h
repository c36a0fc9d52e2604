#pragma once
// The platform's names for every file of the library, its hosts and its tests. On Windows they come
// from the system's headers; elsewhere platform/system implements them.
#ifdef _WIN32
#ifndef UNICODE
#define UNICODE
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#include <windowsx.h>

#include <algorithm>
namespace Gdiplus {
using std::max;
using std::min;
}  // namespace Gdiplus
#include <gdiplus.h>
#include <imm.h>
#include <objidl.h>
#include <shellapi.h>
#include <shlwapi.h>
#else
#include "corvane/platform/system/gdi/gdi_api.h"
#include "corvane/platform/system/gdi/gdiplus.h"
#include "corvane/platform/system/shell/drop_api.h"
#include "corvane/platform/system/shell/memory_api.h"
#include "corvane/platform/system/shell/shell_api.h"
#include "corvane/platform/system/types.h"
#include "corvane/platform/system/user/clipboard/clipboard_api.h"
#include "corvane/platform/system/user/constants.h"
#include "corvane/platform/system/user/input/ime_api.h"
#include "corvane/platform/system/user/user_api.h"
#endif
