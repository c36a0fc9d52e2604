#include "corvane/frame/overlay_class.h"

#include "corvane/platform/framework/win_app.h"
#include "corvane/platform/platform.h"

namespace corvane {
namespace {

constexpr const wchar_t* name = L"CorvaneCropOverlay";
constexpr COLORREF nearly_white = RGB(254, 254, 254);

}  // namespace

const wchar_t* overlay_class() {
  WNDCLASSW overlay{};
  overlay.hInstance = AfxGetInstanceHandle();
  if (::GetClassInfoW(overlay.hInstance, name, &overlay)) return name;
  overlay = {};
  overlay.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
  overlay.lpfnWndProc = ::DefWindowProcW;
  overlay.hInstance = AfxGetInstanceHandle();
  overlay.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
  overlay.hbrBackground = ::CreateSolidBrush(nearly_white);
  overlay.lpszClassName = name;
  if (::RegisterClassW(&overlay)) return name;
  ::DeleteObject(overlay.hbrBackground);
  return nullptr;
}

}  // namespace corvane
