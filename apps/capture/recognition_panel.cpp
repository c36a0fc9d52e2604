#include "apps/capture/recognition_panel.h"

#include "apps/capture/texts.h"

namespace capture {
namespace {

using namespace corvane;

constexpr UINT_PTR kTimer = 1;
constexpr UINT kInterval = 100;  // milliseconds
constexpr SIZE kSize{720, 480};

constexpr wchar_t kHowToInstall[] =
    L"文字识别需要 tesseract 程序，现在没有安装。\n\n"
    L"请安装软件包 tesseract-ocr 和 tesseract-ocr-chi-sim：\n"
    L"sudo apt install tesseract-ocr tesseract-ocr-chi-sim";

}  // namespace

const MessageMap* CRecognitionPanel::GetMessageMap() const {
  static constexpr auto kMessages = MessageTable(On<WM_TIMER>(&CRecognitionPanel::OnTimer));
  static const MessageMap map = kMessages.extending(CTextPanel::GetMessageMap());
  return &map;
}

void CRecognitionPanel::Read(const std::vector<std::uint8_t>& png, const RECT& screen_area) {
  if (!CTextRecognition::Installed()) {
    say(L"文字识别", kHowToInstall);
  } else if (recognition_.Start(png)) {
    say(L"文字识别", L"正在识别……");
    SetTimer(kTimer, kInterval);
  } else {
    say(L"文字识别", L"无法启动文字识别程序。");
  }
  ShowIn(screen_area, kSize);
}

void CRecognitionPanel::say(const wchar_t* title, const CString& text) {
  SetTitle(title);
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
    say(L"文字识别", L"没有识别出文字。");
  } else {
    say(L"识别结果", wide(*text));
  }
}

}  // namespace capture
