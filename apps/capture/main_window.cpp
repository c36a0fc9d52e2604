#include "apps/capture/main_window.h"

#include <cerrno>
#include <cstring>
#include <filesystem>

#include "apps/capture/texts.h"

namespace capture {
namespace {

using namespace corvane;

constexpr int kToolbarList = 100;
constexpr int kToolbarBackground = 7;
constexpr int kToolbarHeight = 76;
constexpr int kQuitMargin = 12;
constexpr UINT_PTR kRecognitionTimer = 1;
constexpr UINT kRecognitionInterval = 100;  // milliseconds
constexpr SIZE kTextPanelSize{720, 480};
constexpr SIZE kOpenPanelSize{640, 560};
constexpr SIZE kSmallestReadable{8, 8};  // pixels of the picture

constexpr wchar_t kHowToInstall[] =
    L"文字识别需要 tesseract 程序，现在没有安装。\n\n"
    L"请安装软件包 tesseract-ocr 和 tesseract-ocr-chi-sim：\n"
    L"sudo apt install tesseract-ocr tesseract-ocr-chi-sim";

// The usual reasons in the user's language, others in the system's.
CString SaveError(int error) {
  switch (error) {
    case ENOSPC:
    case EDQUOT:
      return L"磁盘空间不足";
    case EACCES:
    case EPERM:
    case EROFS:
      return L"没有写入权限";
    case ENOENT:
    case ENOTDIR:
      return L"图片所在的文件夹不存在";
    default:
      return Wide(std::strerror(error));
  }
}

}  // namespace

const MessageMap* CMainWindow::GetMessageMap() const {
  static constexpr auto kMessages =
      MessageTable(On<WM_ERASEBKGND>(&CMainWindow::OnEraseBkgnd), On<WM_SIZE>(&CMainWindow::OnSize),
                   On<WM_KEYDOWN>(&CMainWindow::OnKeyDown), On<WM_TIMER>(&CMainWindow::OnTimer),
                   OnMessage<WM_LAYER_BTN_CLICK>(&CMainWindow::OnToolbarButton),
                   OnMessage<WM_CUT_CMD>(&CMainWindow::OnCropCommand),
                   OnMessage<WM_PICTURE_CHOSEN>(&CMainWindow::OnPictureChosen));
  static const MessageMap map = kMessages.Extending(CWnd::GetMessageMap());
  return &map;
}

bool CMainWindow::Open(std::unique_ptr<CPicture> picture) {
  HCURSOR arrow = LoadCursorW(nullptr, IDC_ARROW);
  const wchar_t* window_class = AfxRegisterWndClass(CS_DBLCLKS, arrow);
  RECT screen{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
  if (!CreateEx(0, window_class, L"Corvane", WS_POPUP | WS_CLIPCHILDREN, screen, nullptr, 0)) {
    return false;
  }
  if (!CreateParts()) return false;
  ShowPicture(std::move(picture));
  Layout();
  CWnd::ShowWindow(SW_SHOW);
  return true;
}

bool CMainWindow::CreateParts() {
  CreateToolbar();
  return view_.CreateEx(0, nullptr, L"picture", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this,
                        0) &&
         CreateCropLayer() && text_panel_.Open(this, L"文字识别") &&
         open_panel_.Open(this, L"打开");
}

void CMainWindow::CreateToolbar() {
  skin_.LoadCtrlList(L"ui_control.xml", kToolbarList);
  skin_.LoadLanguageList(L"ui_language.xml", kToolbarList);
  skin_.LoadLogfontList(L"ui_logfont.xml");
  CRect unused;
  skin_.LoadGdiImage(toolbar_background_, unused, kToolbarBackground);
  toolbar_.SetXmlListMgr(&skin_);
  toolbar_.SetBgImage(toolbar_background_.GetImage(), CRect());
  for (ToolbarButton button : {ToolbarButton::crop, ToolbarButton::text, ToolbarButton::open,
                               ToolbarButton::previous, ToolbarButton::next, ToolbarButton::quit}) {
    toolbar_.AddBtn(static_cast<int>(button));
  }
  toolbar_.CreateEx(0, nullptr, L"toolbar", WS_CHILD | WS_CLIPCHILDREN, CRect(0, 0, 0, 0), this, 0);
  toolbar_.ShowWindow(SW_SHOW);
}

bool CMainWindow::CreateCropLayer() {
  // Mid-grey changes the picture least where the almost invisible background lies over it.
  auto grey = static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH));
  HCURSOR cross = LoadCursorW(nullptr, IDC_CROSS);
  const wchar_t* window_class =
      AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, cross, grey);
  crop_.SetParentHwnd(m_hWnd);
  crop_.ShowBtn(1);
  return crop_.CreateEx(WS_EX_TOOLWINDOW, window_class, L"crop", WS_POPUP, 0, 0, 0, 0, m_hWnd,
                        nullptr);
}

BOOL CMainWindow::OnEraseBkgnd(CDC*) { return TRUE; }

void CMainWindow::OnSize(UINT kind, int width, int height) {
  CWnd::OnSize(kind, width, height);
  if (crop_.GetSafeHwnd() != nullptr) Layout();
}

void CMainWindow::Layout() {
  CRect client;
  GetClientRect(client);
  toolbar_.MoveWindow(0, 0, client.Width(), kToolbarHeight);
  int quit = static_cast<int>(ToolbarButton::quit);
  CRect place = toolbar_.GetBtnRect(quit);
  place.OffsetRect(client.right - kQuitMargin - place.right, 0);
  toolbar_.SetBtnRect(quit, place);
  view_.MoveWindow(0, kToolbarHeight, client.Width(),
                   std::max(client.Height() - kToolbarHeight, 0));
  view_.Invalidate(FALSE);
  PlaceCropLayer();
}

RECT CMainWindow::StageOnScreen() const {
  CRect stage;
  view_.GetWindowRect(stage);
  return stage;
}

void CMainWindow::PlaceCropLayer() {
  CRect stage(StageOnScreen());
  crop_.MoveWindow(stage);
  // The picture was scaled anew, so what was framed is somewhere else now.
  if (crop_.IsWindowVisible()) StartCrop(crop_mode_);
}

void CMainWindow::ShowPicture(std::unique_ptr<CPicture> picture) {
  EndCrop();
  view_.SetPicture(picture.get());
  picture_ = std::move(picture);
  if (picture_ == nullptr) return;
  SIZE size = picture_->size();
  CString title;
  title.Format(L" — %d × %d — Corvane", size.cx, size.cy);
  CWnd::SetWindowTextW(Wide(picture_->name()) + title);
}

void CMainWindow::OpenPath(const std::string& path) {
  if (path.empty()) {
    view_.ShowNotice(L"这个文件夹里没有别的图片");
    return;
  }
  std::unique_ptr<CPicture> picture = CPicture::Open(path);
  if (picture == nullptr) {
    view_.ShowNotice(CString(L"无法打开：") +
                     Wide(std::filesystem::path(path).filename().string()));
    return;
  }
  ShowPicture(std::move(picture));
}

LRESULT CMainWindow::OnToolbarButton(WPARAM id, LPARAM) {
  switch (static_cast<ToolbarButton>(id)) {
    case ToolbarButton::crop:
      StartCrop(CropMode::picture);
      break;
    case ToolbarButton::text:
      StartCrop(CropMode::text);
      break;
    case ToolbarButton::open:
      ShowOpenPanel();
      break;
    case ToolbarButton::previous:
    case ToolbarButton::next:
      if (picture_ != nullptr) {
        OpenPath(
            picture_->Neighbour(static_cast<ToolbarButton>(id) == ToolbarButton::next ? 1 : -1));
      }
      break;
    case ToolbarButton::quit:
      PostMessageW(WM_CLOSE);
      break;
  }
  return 0;
}

void CMainWindow::StartCrop(CropMode mode) {
  if (picture_ == nullptr) return;
  text_panel_.Close();
  open_panel_.Close();
  crop_mode_ = mode;
  crop_.SetOCRMode(mode == CropMode::text ? 1 : 0);
  crop_.ShowWindow(SW_SHOW);
  crop_.Invalidate(FALSE);
}

void CMainWindow::EndCrop() {
  if (crop_.GetSafeHwnd() != nullptr && crop_.IsWindowVisible()) crop_.ShowWindow(SW_HIDE);
}

RECT CMainWindow::FramedPixels() const {
  if (picture_ == nullptr) return {};
  return picture_pixels(picture_->size(), view_.ShownRect(), crop_.GetCutRect());
}

LRESULT CMainWindow::OnCropCommand(WPARAM command, LPARAM) {
  switch (static_cast<CropCommand>(command)) {
    case CropCommand::save:
      SaveFramed();
      break;
    case CropCommand::recognise:
    case CropCommand::read:
      RecogniseFramed();
      break;
    case CropCommand::again:
      StartCrop(crop_mode_);
      break;
    case CropCommand::cancel:
    case CropCommand::close:
      EndCrop();
      break;
  }
  return 0;
}

void CMainWindow::SaveFramed() {
  RECT part = FramedPixels();
  std::vector<std::uint8_t> png;
  if (!::IsRectEmpty(&part)) png = picture_->EncodePart(part);
  EndCrop();
  if (png.empty()) {
    view_.ShowNotice(L"所选区域里没有图片");
    return;
  }
  SavedPart saved = SaveBeside(picture_->path(), png);
  if (saved.path.empty()) {
    view_.ShowNotice(CString(L"无法保存：") + SaveError(saved.error));
    return;
  }
  last_saved_ = saved.path;
  view_.ShowNotice(CString(L"已保存 ") +
                   Wide(std::filesystem::path(saved.path).filename().string()));
}

void CMainWindow::RecogniseFramed() {
  RECT part = FramedPixels();
  EndCrop();
  if (part.right - part.left < kSmallestReadable.cx ||
      part.bottom - part.top < kSmallestReadable.cy) {
    view_.ShowNotice(L"所选区域太小，没有可识别的文字");
    return;
  }
  if (!CTextRecognition::Installed()) {
    ShowText(L"文字识别", kHowToInstall);
  } else if (recognition_.Start(picture_->EncodePart(part))) {
    ShowText(L"文字识别", L"正在识别……");
    SetTimer(kRecognitionTimer, kRecognitionInterval);
  } else {
    ShowText(L"文字识别", L"无法启动文字识别程序。");
  }
}

void CMainWindow::OnTimer(UINT_PTR id) {
  if (id != kRecognitionTimer) {
    Default();
    return;
  }
  std::optional<std::string> text = recognition_.TakeResult();
  if (!text && recognition_.Running()) return;
  KillTimer(kRecognitionTimer);
  if (text) ShowRecognised(*text);
}

void CMainWindow::ShowRecognised(const std::string& text) {
  if (text.empty()) {
    ShowText(L"文字识别", L"没有识别出文字。");
    return;
  }
  ShowText(L"识别结果", Wide(text));
}

void CMainWindow::ShowText(const wchar_t* title, const CString& text) {
  text_panel_.SetTitle(title);
  text_panel_.SetText(text);
  text_panel_.ShowIn(StageOnScreen(), kTextPanelSize);
}

void CMainWindow::ShowOpenPanel() {
  EndCrop();
  text_panel_.Close();
  std::error_code error;
  std::filesystem::path folder = picture_ == nullptr
                                     ? std::filesystem::current_path(error)
                                     : std::filesystem::path(picture_->path()).parent_path();
  open_panel_.ShowIn(StageOnScreen(), kOpenPanelSize);
  open_panel_.ListFolder(folder, picture_ == nullptr ? std::string() : picture_->path());
}

LRESULT CMainWindow::OnPictureChosen(WPARAM, LPARAM) {
  OpenPath(open_panel_.ChosenPath());
  return 0;
}

void CMainWindow::OnKeyDown(UINT key, UINT, UINT) {
  switch (key) {
    case VK_ESCAPE:
      EndCrop();
      break;
    case VK_LEFT:
    case VK_RIGHT:
      if (picture_ != nullptr) OpenPath(picture_->Neighbour(key == VK_RIGHT ? 1 : -1));
      break;
    default:
      Default();
  }
}

}  // namespace capture
