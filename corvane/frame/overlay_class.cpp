#include "corvane/frame/overlay_class.h"

#include "corvane/platform/framework/win_app.h"
#include "corvane/platform/platform.h"

namespace corvane {
namespace {

constexpr const wchar_t* kName = L"CorvaneOverlay";
constexpr COLORREF kNearlyWhite = RGB(254, 254, 254);

}  // namespace

const wchar_t* overlay_class() {
  WNDCLASSW overlay{};
  overlay.hInstance = AfxGetInstanceHandle();
  if (::GetClassInfoW(overlay.hInstance, kName, &overlay)) return kName;
  overlay = {};
  overlay.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
  overlay.lpfnWndProc = ::DefWindowProcW;
  overlay.hInstance = AfxGetInstanceHandle();
  overlay.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
  overlay.hbrBackground = ::CreateSolidBrush(kNearlyWhite);
  overlay.lpszClassName = kName;
  if (::RegisterClassW(&overlay)) return kName;
  ::DeleteObject(overlay.hbrBackground);
  return nullptr;
}

}  // namespace corvane
