#include "apps/capture/recognition_panel.h"

#include "apps/capture/texts.h"

namespace capture {
namespace {

using namespace corvane;

constexpr UINT_PTR kTimer = 1;
constexpr UINT kInterval = 100;  // milliseconds

constexpr wchar_t kInstallCommand[] = L"sudo apt install tesseract-ocr tesseract-ocr-chi-sim";

}  // namespace

const MessageMap* CRecognitionPanel::GetMessageMap() const {
  static constexpr auto kMessages = MessageTable(On<WM_TIMER>(&CRecognitionPanel::OnTimer));
  static const MessageMap map = kMessages.extending(CTextPanel::GetMessageMap());
  return &map;
}

void CRecognitionPanel::Read(const std::vector<std::uint8_t>& png, const RECT& screen_area) {
  if (!CTextRecognition::Installed()) {
    say(Text::recognition, look().text(Text::recognition_missing) + L"\n\n" +
                               look().text(Text::how_to_install) + L"\n" + kInstallCommand);
  } else if (recognition_.Start(png)) {
    say(Text::recognition, look().text(Text::recognising));
    SetTimer(kTimer, kInterval);
  } else {
    say(Text::recognition, look().text(Text::cannot_recognise));
  }
  ShowIn(screen_area, look().size(Measure::recognition_box));
}

void CRecognitionPanel::say(Text title, const CString& text) {
  SetTitle(look().text(title));
  SetText(text);
}

void CRecognitionPanel::OnTimer(UINT_PTR id) {
  if (id != kTimer) {
    Default();
    return;
  }
  std::optional<std::string> text = recognition_.TakeResult();
  if (!text && recognition_.Running()) return;
  KillTimer(kTimer);
  if (!text) return;
  if (text->empty()) {
    say(Text::recognition, look().text(Text::nothing_recognised));
  } else {
    say(Text::recognised, wide(*text));
  }
}

}  // namespace capture
