#include <cwchar>
#include <string>
#include <vector>

#include "corvane/platform/images/image_saving.h"

namespace corvane {
namespace {

bool find_encoder(const wchar_t* mime_type, CLSID& encoder) {
  UINT count = 0;
  UINT size = 0;
  if (Gdiplus::GetImageEncodersSize(&count, &size) != Gdiplus::Ok || size == 0) return false;
  std::vector<BYTE> bytes(size);
  auto* const codecs = reinterpret_cast<Gdiplus::ImageCodecInfo*>(bytes.data());
  if (Gdiplus::GetImageEncoders(count, size, codecs) != Gdiplus::Ok) return false;
  for (UINT i = 0; i < count; ++i) {
    if (std::wcscmp(codecs[i].MimeType, mime_type) != 0) continue;
    encoder = codecs[i].Clsid;
    return true;
  }
  return false;
}

// The pixels as they are, those that are clear on white when the format knows no opacity.
bool draw_part(Gdiplus::Bitmap& copy, Gdiplus::Image& image, const RECT& part, ImageFormat format) {
  Gdiplus::Graphics graphics(&copy);
  if (format == ImageFormat::jpeg) graphics.Clear(Gdiplus::Color(255, 255, 255));
  if (format == ImageFormat::png) graphics.SetCompositingMode(Gdiplus::CompositingModeSourceCopy);
  graphics.SetInterpolationMode(Gdiplus::InterpolationModeNearestNeighbor);
  graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
  const int width = part.right - part.left;
  const int height = part.bottom - part.top;
  return graphics.DrawImage(&image, Gdiplus::Rect(0, 0, width, height), part.left, part.top, width,
                            height, Gdiplus::UnitPixel) == Gdiplus::Ok;
}

}  // namespace

std::vector<std::uint8_t> encode_image_part(Gdiplus::Image& image, const RECT& part) {
  const RECT whole{0, 0, static_cast<LONG>(image.GetWidth()), static_cast<LONG>(image.GetHeight())};
  RECT inside{};
  CLSID encoder{};
  if (!::IntersectRect(&inside, &part, &whole) || !find_encoder(L"image/png", encoder)) return {};
  Gdiplus::Bitmap copy(inside.right - inside.left, inside.bottom - inside.top,
                       PixelFormat32bppARGB);
  IStream* stream = nullptr;
  if (copy.GetLastStatus() != Gdiplus::Ok || !draw_part(copy, image, inside, ImageFormat::png) ||
      ::CreateStreamOnHGlobal(nullptr, TRUE, &stream) != S_OK) {
    return {};
  }
  std::vector<std::uint8_t> bytes;
  HGLOBAL memory = nullptr;
  STATSTG facts{};
  if (copy.Save(stream, &encoder, nullptr) == Gdiplus::Ok &&
      stream->Stat(&facts, STATFLAG_NONAME) == S_OK &&
      ::GetHGlobalFromStream(stream, &memory) == S_OK) {
    const auto* const first = static_cast<const std::uint8_t*>(::GlobalLock(memory));
    bytes.assign(first, first + facts.cbSize.QuadPart);
    ::GlobalUnlock(memory);
  }
  stream->Release();
  return bytes;
}

bool save_image_part(Gdiplus::Image& image, const RECT& part, const wchar_t* path,
                     ImageFormat format) {
  const bool is_jpeg = format == ImageFormat::jpeg;
  CLSID encoder{};
  if (!find_encoder(is_jpeg ? L"image/jpeg" : L"image/png", encoder)) return false;
  Gdiplus::Bitmap copy(part.right - part.left, part.bottom - part.top, PixelFormat32bppARGB);
  if (copy.GetLastStatus() != Gdiplus::Ok || !draw_part(copy, image, part, format)) return false;
  ULONG quality = 90;
  Gdiplus::EncoderParameters parameters{};
  parameters.Count = 1;
  parameters.Parameter[0].Guid = Gdiplus::EncoderQuality;
  parameters.Parameter[0].Type = Gdiplus::EncoderParameterValueTypeLong;
  parameters.Parameter[0].NumberOfValues = 1;
  parameters.Parameter[0].Value = &quality;
  const std::wstring unfinished = std::wstring(path) + L".corvane-new";
  constexpr DWORD kInOneStep = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  if (copy.Save(unfinished.c_str(), &encoder, is_jpeg ? &parameters : nullptr) == Gdiplus::Ok &&
      ::MoveFileExW(unfinished.c_str(), path, kInOneStep)) {
    return true;
  }
  ::DeleteFileW(unfinished.c_str());
  return false;
}

}  // namespace corvane
