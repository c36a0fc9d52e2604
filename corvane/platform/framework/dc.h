#pragma once
// A device context. Coordinates are logical pixels of the context; colours are 0x00BBGGRR.
// Without a context every operation does nothing and returns the platform's failure result.
#include "corvane/platform/framework/brush.h"
#include "corvane/platform/framework/font.h"
#include "corvane/platform/framework/pen.h"
#include "corvane/platform/framework/rect.h"
#include "corvane/platform/platform.h"

namespace corvane {

class CString;

class CDC {
 public:
  CDC() = default;
  virtual ~CDC();  // deletes a context made by CreateCompatibleDC; never an attached one
  CDC(const CDC&) = delete;
  CDC& operator=(const CDC&) = delete;

  // A wrapper that lives until the message loop's next turn, at least for the current handler;
  // null for a null handle. The handle stays its owner's.
  static CDC* FromHandle(HDC dc);

  HDC GetSafeHdc() const { return m_hDC; }
  operator HDC() const { return m_hDC; }
  // Wraps the handle without owning it; false when there is one already or it is null.
  bool Attach(HDC dc);
  HDC Detach();  // the caller owns a context made by CreateCompatibleDC

  bool CreateCompatibleDC(CDC* like);  // null: like the screen
  bool DeleteDC();

  HGDIOBJ SelectObject(HGDIOBJ object) { return ::SelectObject(m_hDC, object); }
  HGDIOBJ SelectObject(const CGdiObject& object) { return ::SelectObject(m_hDC, object.m_hObject); }
  int SaveDC() { return ::SaveDC(m_hDC); }
  bool RestoreDC(int saved) { return ::RestoreDC(m_hDC, saved) != 0; }
  COLORREF SetTextColor(COLORREF color) { return ::SetTextColor(m_hDC, color); }
  COLORREF SetBkColor(COLORREF color) { return ::SetBkColor(m_hDC, color); }
  int SetBkMode(int mode) { return ::SetBkMode(m_hDC, mode); }

  bool MoveTo(int x, int y) { return ::MoveToEx(m_hDC, x, y, nullptr) != 0; }
  bool MoveTo(POINT point) { return MoveTo(point.x, point.y); }
  bool LineTo(int x, int y) { return ::LineTo(m_hDC, x, y) != 0; }
  bool LineTo(POINT point) { return LineTo(point.x, point.y); }
  bool FillRect(LPCRECT rect, HBRUSH brush) { return ::FillRect(m_hDC, rect, brush) != 0; }
  bool FillSolidRect(LPCRECT rect, COLORREF color);  // leaves the background colour as it was
  bool BitBlt(int x, int y, int width, int height, const CDC* source, int source_x, int source_y,
              DWORD operation);
  // The text's height; with DT_CALCRECT the rectangle is adjusted instead of drawing.
  int DrawTextW(const wchar_t* text, int length, LPRECT rect, UINT format);
  int DrawTextW(const CString& text, LPRECT rect, UINT format);
  CSize GetTextExtent(const CString& text) const;

  HDC m_hDC = nullptr;

 private:
  bool owned_ = false;
};

}  // namespace corvane
