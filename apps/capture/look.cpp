#include "apps/capture/look.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <string_view>

namespace capture {
namespace {

using namespace corvane;

constexpr int kList = 102;
constexpr int kFontHeight = 17;  // pixels
constexpr LONG kHighestRow = 200;
constexpr LONG kLargestBox = 10000;

constexpr std::array<COLORREF, 9> kOwnShades = {
    RGB(0x14, 0x1A, 0x20), RGB(0x1E, 0x26, 0x30), RGB(0x3A, 0x46, 0x54),
    RGB(0x2C, 0x37, 0x44), RGB(0xE8, 0xEE, 0xF4), RGB(0x93, 0xA1, 0xB0),
    RGB(0x21, 0xC4, 0x6B), RGB(0x5B, 0x69, 0x79), RGB(0x1F, 0x5F, 0x8B)};

constexpr std::array<SIZE, 5> kOwnSizes = {{{0, 40}, {0, 52}, {0, 40}, {640, 560}, {720, 480}}};

constexpr std::array<const wchar_t*, 39> kOwnTexts = {
    L"Library",
    L"Library (reading…)",
    L"{1}",
    L"There are no pictures in the library yet",
    L"Put pictures into its folders, or press Open to choose one",
    L"Reading the library…",
    L"Another picture: the crop was given up",
    L"Cannot open {1}",
    L"There is no other picture in this folder",
    L"There is no picture in the frame",
    L"Saving…",
    L"Cannot save: {1}",
    L"Saved in “{1}”: {2}",
    L"The frame is too small to hold text",
    L"Preparing to read…",
    L"Not enough memory",
    L"Press Crop first and frame the part to save",
    L"The folder “{1}” is gone",
    L"The folder “{1}” is gone, this is “{2}”",
    L"{1}. {2}",
    L"The library is gone",
    L"There are no pictures in this folder",
    L"This folder cannot be read",
    L"the disk is full",
    L"no permission to write there",
    L"the folder does not exist",
    L"Text recognition",
    L"Recognised text",
    L"Reading…",
    L"The program that recognises text could not be started.",
    L"No text was recognised.",
    L"Recognising text needs the program tesseract, which is not installed.",
    L"Install the packages tesseract-ocr and tesseract-ocr-chi-sim:",
    L"cannot be shown",
    L"Open",
    L"..",
    L"Copied",
    L"Opening…",
    L"the system reports error {1}"};

template <class Id>
std::size_t index_of(Id id, Id first) {
  return static_cast<std::size_t>(static_cast<int>(id) - static_cast<int>(first));
}

// The number of the mark {N} that begins there; 0: none does.
std::size_t mark_at(std::wstring_view text, std::size_t at) {
  const bool marked = at + 2 < text.size() && text[at] == L'{' && text[at + 2] == L'}' &&
                      text[at + 1] >= L'1' && text[at + 1] <= L'9';
  return marked ? static_cast<std::size_t>(text[at + 1] - L'0') : 0;
}

LOGFONTW own_font() {
  LOGFONTW font{};
  font.lfHeight = kFontHeight;
  font.lfWeight = FW_NORMAL;
  font.lfCharSet = DEFAULT_CHARSET;
  font.lfQuality = CLEARTYPE_NATURAL_QUALITY;
  constexpr wchar_t kFace[] = L"黑体";
  std::copy(std::begin(kFace), std::end(kFace), font.lfFaceName);
  return font;
}

}  // namespace

void CLook::Load() { skin_.Load({kList}); }

COLORREF CLook::color(Shade shade) const {
  const _MYCONTROL* const control = skin_.GetCtrl(static_cast<int>(shade));
  return control != nullptr ? control->text_color : kOwnShades[index_of(shade, Shade::stage)];
}

DWORD CLook::argb(Shade shade) const {
  const COLORREF value = color(shade);
  return 0xFF000000 | (value & 0xFF) << 16 | (value & 0xFF00) | (value >> 16 & 0xFF);
}

SIZE CLook::size(Measure measure) const {
  const CRect rect = skin_.GetBgRect(static_cast<int>(measure));
  const SIZE own = kOwnSizes[index_of(measure, Measure::library_title)];
  const LONG highest = own.cx > 0 ? kLargestBox : kHighestRow;
  const bool usable = rect.Height() > 0 && rect.Height() <= highest && rect.Width() <= kLargestBox;
  return usable && (own.cx == 0 || rect.Width() > 0) ? SIZE{rect.Width(), rect.Height()} : own;
}

CString CLook::text(Text text) const {
  const _MYLANGUAGE* const caption = skin_.GetLanguage(static_cast<int>(text));
  return caption != nullptr ? caption->text : CString(kOwnTexts[index_of(text, Text::library)]);
}

CString CLook::text(Text text, std::initializer_list<CString> insertions) const {
  const std::wstring given = this->text(text).AsStdString();
  std::wstring filled;
  for (std::size_t at = 0; at < given.size(); ++at) {
    const std::size_t number = mark_at(given, at);
    if (number == 0 || number > insertions.size()) {
      filled += given[at];
    } else {
      filled += (insertions.begin() + number - 1)->AsStdString();
      at += 2;
    }
  }
  return filled.c_str();
}

LOGFONTW CLook::font(Text text) const {
  const _MYLANGUAGE* const caption = skin_.GetLanguage(static_cast<int>(text));
  const _MYFONT* const font = caption != nullptr ? skin_.GetMyFont(caption->font_id) : nullptr;
  return font != nullptr && font->description ? *font->description : own_font();
}

}  // namespace capture
