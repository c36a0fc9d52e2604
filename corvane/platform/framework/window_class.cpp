#include "corvane/platform/framework/window_class.h"

#include "corvane/platform/framework/c_string.h"
#include "corvane/platform/framework/platform_session.h"
#include "corvane/platform/framework/thread_state.h"
#include "corvane/platform/framework/win_app.h"

namespace corvane {

const wchar_t* AfxRegisterWndClass(UINT class_style, HCURSOR cursor, HBRUSH background,
                                   HICON icon) {
  open_platform_session();
  CString name;
  name.Format(L"Corvane:%x:%p:%p:%p", class_style, static_cast<const void*>(cursor),
              static_cast<const void*>(background), static_cast<const void*>(icon));
  const wchar_t* kept =
      ThreadState::current().class_names.insert(name.AsStdString()).first->c_str();
  // The window system may be another one than when the name was first made.
  WNDCLASSW known{};
  if (::GetClassInfoW(AfxGetInstanceHandle(), kept, &known)) return kept;
  WNDCLASSW window_class{};
  window_class.style = class_style;
  window_class.lpfnWndProc = ::DefWindowProcW;
  window_class.hInstance = AfxGetInstanceHandle();
  window_class.hIcon = icon;
  window_class.hCursor = cursor;
  window_class.hbrBackground = background;
  window_class.lpszClassName = kept;
  return ::RegisterClassW(&window_class) ? kept : nullptr;
}

}  // namespace corvane
