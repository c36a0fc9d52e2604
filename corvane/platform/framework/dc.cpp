#include "corvane/platform/framework/dc.h"

#include <utility>

#include "corvane/platform/framework/c_string.h"
#include "corvane/platform/framework/thread_state.h"

namespace corvane {

CDC::~CDC() { DeleteDC(); }

CDC* CDC::FromHandle(HDC dc) { return ThreadState::current().handles.temporary_dc(dc); }

bool CDC::Attach(HDC dc) {
  if (m_hDC != nullptr || dc == nullptr) return false;
  m_hDC = dc;
  return true;
}

HDC CDC::Detach() {
  owned_ = false;
  return std::exchange(m_hDC, nullptr);
}

bool CDC::CreateCompatibleDC(CDC* like) {
  if (m_hDC != nullptr) return false;
  m_hDC = ::CreateCompatibleDC(like != nullptr ? like->m_hDC : nullptr);
  owned_ = m_hDC != nullptr;
  return owned_;
}

bool CDC::DeleteDC() {
  const bool owned = owned_;
  const HDC dc = Detach();
  return owned && (::DeleteDC(dc) != 0);
}

bool CDC::FillSolidRect(LPCRECT rect, COLORREF color) {
  const CBrush brush(color);
  return rect != nullptr && FillRect(rect, brush);
}

bool CDC::BitBlt(int x, int y, int width, int height, const CDC* source, int source_x, int source_y,
                 DWORD operation) {
  return ::BitBlt(m_hDC, x, y, width, height, source != nullptr ? source->m_hDC : nullptr, source_x,
                  source_y, operation) != 0;
}

int CDC::DrawTextW(const wchar_t* text, int length, LPRECT rect, UINT format) {
  return ::DrawTextW(m_hDC, text, length, rect, format);
}

int CDC::DrawTextW(const CString& text, LPRECT rect, UINT format) {
  return DrawTextW(text, text.GetLength(), rect, format);
}

CSize CDC::GetTextExtent(const CString& text) const {
  CSize size;
  ::GetTextExtentPoint32W(m_hDC, text, text.GetLength(), &size);
  return size;
}

}  // namespace corvane
