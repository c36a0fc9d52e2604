#pragma once
// Device contexts, pens, brushes, fonts, bitmaps and what is drawn with them, under the platform's
// names. Solid drawing writes an alpha byte of 0, as the platform does; copies keep all 32 bits.
// Coordinates are logical pixels relative to the device context's origin.
#include "corvane/platform/system/types.h"

namespace corvane_system {

#define LF_FACESIZE 32
struct LOGFONTW {
  LONG lfHeight;  // positive: cell height; negative: character height; pixels
  LONG lfWidth;
  LONG lfEscapement;
  LONG lfOrientation;
  LONG lfWeight;  // 400 normal, 700 bold
  BYTE lfItalic;
  BYTE lfUnderline;
  BYTE lfStrikeOut;
  BYTE lfCharSet;
  BYTE lfOutPrecision;
  BYTE lfClipPrecision;
  BYTE lfQuality;
  BYTE lfPitchAndFamily;
  WCHAR lfFaceName[LF_FACESIZE];
};
struct TEXTMETRICW {
  LONG tmHeight;
  LONG tmAscent;
  LONG tmDescent;
  LONG tmInternalLeading;
  LONG tmExternalLeading;
  LONG tmAveCharWidth;
  LONG tmMaxCharWidth;
  LONG tmWeight;
};
struct BITMAP {
  LONG bmType;
  LONG bmWidth;
  LONG bmHeight;
  LONG bmWidthBytes;
  WORD bmPlanes;
  WORD bmBitsPixel;
  LPVOID bmBits;
};
struct BLENDFUNCTION {
  BYTE BlendOp;
  BYTE BlendFlags;
  BYTE SourceConstantAlpha;
  BYTE AlphaFormat;
};
struct BITMAPINFOHEADER {
  DWORD biSize;
  LONG biWidth;
  LONG biHeight;  // negative: the first row is the top one
  WORD biPlanes;
  WORD biBitCount;
  DWORD biCompression;
  DWORD biSizeImage;
  LONG biXPelsPerMeter;
  LONG biYPelsPerMeter;
  DWORD biClrUsed;
  DWORD biClrImportant;
};
struct RGBQUAD {
  BYTE rgbBlue;
  BYTE rgbGreen;
  BYTE rgbRed;
  BYTE rgbReserved;
};
struct BITMAPINFO {
  BITMAPINFOHEADER bmiHeader;
  RGBQUAD bmiColors[1];
};

#define PS_SOLID 0
#define PS_DASH 1
#define PS_DOT 2
#define PS_NULL 5
#define TRANSPARENT 1
#define OPAQUE 2
#define WHITE_BRUSH 0
#define LTGRAY_BRUSH 1
#define GRAY_BRUSH 2
#define DKGRAY_BRUSH 3
#define BLACK_BRUSH 4
#define NULL_BRUSH 5
#define WHITE_PEN 6
#define BLACK_PEN 7
#define NULL_PEN 8
#define SYSTEM_FONT 13
#define DEFAULT_GUI_FONT 17
#define DT_TOP 0x0u
#define DT_LEFT 0x0u
#define DT_CENTER 0x1u
#define DT_RIGHT 0x2u
#define DT_VCENTER 0x4u
#define DT_BOTTOM 0x8u
#define DT_WORDBREAK 0x10u
#define DT_SINGLELINE 0x20u
#define DT_NOCLIP 0x100u
#define DT_CALCRECT 0x400u
#define DT_NOPREFIX 0x800u
#define DT_END_ELLIPSIS 0x8000u
#define SRCCOPY 0x00CC0020u
#define PATCOPY 0x00F00021u
#define BLACKNESS 0x00000042u
#define WHITENESS 0x00FF0062u
#define BLACKONWHITE 1
#define WHITEONBLACK 2
#define COLORONCOLOR 3
#define HALFTONE 4
#define ETO_OPAQUE 0x0002u
#define ETO_CLIPPED 0x0004u
#define FW_NORMAL 400
#define FW_BOLD 700
#define DEFAULT_CHARSET 1
#define GB2312_CHARSET 134
#define DEFAULT_QUALITY 0
#define ANTIALIASED_QUALITY 4
#define CLEARTYPE_QUALITY 5
#define CLEARTYPE_NATURAL_QUALITY 6
#define AC_SRC_OVER 0
#define AC_SRC_ALPHA 1
#define CLR_INVALID 0xFFFFFFFFu
#define DIB_RGB_COLORS 0u
#define BI_RGB 0u
#define NULLREGION 1
#define SIMPLEREGION 2
#define COMPLEXREGION 3
#define OBJ_PEN 1u
#define OBJ_BRUSH 2u
#define OBJ_FONT 6u
#define OBJ_BITMAP 7u
#define COLOR_ACTIVECAPTION 2
#define COLOR_INACTIVECAPTION 3
#define COLOR_WINDOW 5
#define COLOR_WINDOWFRAME 6
#define COLOR_WINDOWTEXT 8
#define COLOR_CAPTIONTEXT 9
#define COLOR_ACTIVEBORDER 10
#define COLOR_INACTIVEBORDER 11
#define COLOR_HIGHLIGHT 13
#define COLOR_HIGHLIGHTTEXT 14
#define COLOR_BTNFACE 15
#define COLOR_BTNSHADOW 16
#define COLOR_GRAYTEXT 17
#define COLOR_BTNTEXT 18
#define COLOR_INACTIVECAPTIONTEXT 19

// --- Objects. The caller owns what a Create function returns and frees it with DeleteObject.
// DeleteObject of an object that is selected into a device context returns 0: the object lives on
// and is freed with the context if it is still selected then. Only 32-bit DIB sections are made;
// bitmaps above 2^28 pixels are refused.
HPEN CreatePen(int style, int width, COLORREF color);
HBRUSH CreateSolidBrush(COLORREF color);
HFONT CreateFontIndirectW(const LOGFONTW* description);
HFONT CreateFontW(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                  DWORD underline, DWORD strikeout, DWORD charset, DWORD out_precision,
                  DWORD clip_precision, DWORD quality, DWORD pitch_and_family, LPCWSTR face);
HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height);
HBITMAP CreateDIBSection(HDC dc, const BITMAPINFO* info, UINT usage, void** bits, HANDLE section,
                         DWORD offset);
HGDIOBJ GetStockObject(int which);
HBRUSH GetSysColorBrush(int index);
COLORREF GetSysColor(int index);
BOOL DeleteObject(HGDIOBJ object);
BOOL DestroyIcon(HICON icon);                  // made by Bitmap::GetHICON
HGDIOBJ SelectObject(HDC dc, HGDIOBJ object);  // returns the previously selected one
HGDIOBJ GetCurrentObject(HDC dc, UINT type);
int GetObjectW(HANDLE object, int size, LPVOID out);

// --- Device contexts
HDC CreateCompatibleDC(HDC dc);
BOOL DeleteDC(HDC dc);
int SaveDC(HDC dc);
BOOL RestoreDC(HDC dc, int saved);
COLORREF SetTextColor(HDC dc, COLORREF color);
COLORREF GetTextColor(HDC dc);
COLORREF SetBkColor(HDC dc, COLORREF color);
COLORREF GetBkColor(HDC dc);
int SetBkMode(HDC dc, int mode);
int GetBkMode(HDC dc);
int SetStretchBltMode(HDC dc, int mode);
BOOL SetViewportOrgEx(HDC dc, int x, int y, LPPOINT previous);
int IntersectClipRect(HDC dc, int left, int top, int right, int bottom);
int ExcludeClipRect(HDC dc, int left, int top, int right, int bottom);
int GetClipBox(HDC dc, LPRECT rect);
BOOL RectVisible(HDC dc, const RECT* rect);

// --- Drawing
BOOL MoveToEx(HDC dc, int x, int y, LPPOINT previous);
BOOL LineTo(HDC dc, int x, int y);
int FillRect(HDC dc, const RECT* rect, HBRUSH brush);
int FrameRect(HDC dc, const RECT* rect, HBRUSH brush);
BOOL Rectangle(HDC dc, int left, int top, int right, int bottom);
BOOL PatBlt(HDC dc, int x, int y, int width, int height, DWORD operation);
BOOL BitBlt(HDC target, int x, int y, int width, int height, HDC source, int source_x, int source_y,
            DWORD operation);
BOOL StretchBlt(HDC target, int x, int y, int width, int height, HDC source, int source_x,
                int source_y, int source_width, int source_height, DWORD operation);
COLORREF GetPixel(HDC dc, int x, int y);
COLORREF SetPixel(HDC dc, int x, int y, COLORREF color);
int DrawTextW(HDC dc, LPCWSTR text, int length, LPRECT rect, UINT format);
BOOL ExtTextOutW(HDC dc, int x, int y, UINT options, const RECT* rect, LPCWSTR text, UINT length,
                 const INT* spacing);
BOOL TextOutW(HDC dc, int x, int y, LPCWSTR text, int length);
BOOL GetTextExtentPoint32W(HDC dc, LPCWSTR text, int length, LPSIZE size);
BOOL GetTextMetricsW(HDC dc, TEXTMETRICW* metrics);
BOOL GdiFlush();

}  // namespace corvane_system
