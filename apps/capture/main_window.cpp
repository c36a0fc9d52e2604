#include "apps/capture/main_window.h"

#include <cerrno>

#include "apps/capture/capture_messages.h"
#include "apps/capture/picture_folder.h"
#include "apps/capture/picture_saving.h"
#include "apps/capture/texts.h"
#include "apps/capture/window_layout.h"
#include "corvane/platform/base_services/system_paths.h"

namespace capture {
namespace {

using namespace corvane;

constexpr SIZE kOpenPanelSize{640, 560};
constexpr SIZE kMinReadableSize{8, 8};  // pixels of the picture

CString NameForUser(const std::wstring& path) { return CString(NameOf(path).c_str()); }

}  // namespace

const MessageMap* CMainWindow::GetMessageMap() const {
  static constexpr auto kMessages =
      MessageTable(On<WM_ERASEBKGND>(&CMainWindow::OnEraseBkgnd), On<WM_SIZE>(&CMainWindow::OnSize),
                   On<WM_KEYDOWN>(&CMainWindow::OnKeyDown),
                   OnMessage<WM_LAYER_BTN_CLICK>(&CMainWindow::OnToolbarButton),
                   OnMessage<WM_CUT_CMD>(&CMainWindow::OnCropCommand),
                   OnMessage<WM_PICTURE_CHOSEN>(&CMainWindow::OnPictureChosen),
                   OnMessage<WM_FOLDER_CHOSEN>(&CMainWindow::OnFolderChosen),
                   OnMessage<WM_PICTURE_CLICKED>(&CMainWindow::OnPictureClicked));
  static const MessageMap map = kMessages.Extending(CWnd::GetMessageMap());
  return &map;
}

bool CMainWindow::Open(Beginning beginning) {
  HCURSOR arrow = LoadCursorW(nullptr, IDC_ARROW);
  const wchar_t* window_class = AfxRegisterWndClass(CS_DBLCLKS, arrow);
  RECT screen{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
  if (!CreateEx(0, window_class, L"Corvane", WS_POPUP | WS_CLIPCHILDREN, screen, nullptr, 0)) {
    return false;
  }
  if (!CreateParts()) return false;
  Layout();
  CWnd::ShowWindow(SW_SHOW);
  browser_.Load(beginning.library, beginning.folder);
  ShowPicture(std::move(beginning.picture));
  return true;
}

bool CMainWindow::CreateParts() {
  view_.SetEmptyText(L"图库里还没有图片\n把图片放进图库的文件夹，或按“打开”选择一张图片");
  return toolbar_.Open(this) && browser_.Create(this) &&
         view_.CreateEx(0, nullptr, L"picture", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this,
                        0) &&
         CreateCropLayer() && recognition_.Open(this, L"文字识别") &&
         open_panel_.Open(this, L"打开");
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
  WindowLayout layout = LayOut({client.right, client.bottom}, CToolbar::kHeight);
  toolbar_.Place(client.Width());
  browser_.Place(layout.library, layout.strip);
  view_.MoveWindow(&layout.stage);
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

CRect CMainWindow::CropButtonOnScreen(CropCommand command) const {
  const HWND bar = crop_.GetBarHwnd();
  CRect rect;
  if (bar != nullptr) ::GetWindowRect(::GetDlgItem(bar, static_cast<int>(command)), &rect);
  return rect;
}

void CMainWindow::ShowPicture(std::unique_ptr<CPicture> picture) {
  EndCrop();
  view_.SetPicture(picture.get());
  picture_ = std::move(picture);
  if (picture_ == nullptr) {
    CWnd::SetWindowTextW(L"Corvane");
    return;
  }
  SIZE size = picture_->size();
  CString title;
  title.Format(L" — %d × %d — Corvane", size.cx, size.cy);
  CWnd::SetWindowTextW(Wide(picture_->name()) + title);
  browser_.MarkOpened(wide_path_of(picture_->path()));
}

void CMainWindow::OpenPath(const std::wstring& path) {
  std::unique_ptr<CPicture> picture = CPicture::Open(native_path(path).string());
  if (picture == nullptr) {
    browser_.MarkUnreadable(path);
    view_.ShowNotice(CString(L"无法打开：") + NameForUser(path));
    return;
  }
  ShowPicture(std::move(picture));
}

void CMainWindow::OpenNeighbour(int step) {
  std::wstring path = browser_.Neighbour(step);
  if (!PathFileExistsW(path.c_str())) {
    CString notice = browser_.Refresh();
    view_.ShowNotice(notice.IsEmpty() ? CString(L"这个文件夹里没有别的图片") : notice);
    path = browser_.Neighbour(step);
  }
  if (!path.empty()) OpenPath(path);
}

void CMainWindow::RefreshLibrary() {
  CString notice = browser_.Refresh();
  if (!notice.IsEmpty()) view_.ShowNotice(notice);
}

LRESULT CMainWindow::OnFolderChosen(WPARAM, LPARAM) {
  RefreshLibrary();
  return 0;
}

LRESULT CMainWindow::OnPictureClicked(WPARAM, LPARAM) {
  OpenPath(browser_.ClickedPicture());
  return 0;
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
      OpenNeighbour(static_cast<ToolbarButton>(id) == ToolbarButton::next ? 1 : -1);
      break;
    case ToolbarButton::quit:
      PostMessageW(WM_CLOSE);
      break;
  }
  return 0;
}

void CMainWindow::StartCrop(CropMode mode) {
  if (picture_ == nullptr) return;
  recognition_.Close();
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
  SaveInCurrentFolder(png);
}

void CMainWindow::SaveInCurrentFolder(const std::vector<std::uint8_t>& png) {
  CString notice = browser_.LeaveVanishedFolder();
  if (!notice.IsEmpty()) notice += L"。";
  std::wstring folder = browser_.Folder();
  SavedPart saved{{}, ENOENT};
  if (!folder.empty()) {
    saved = SaveNumbered(folder, NameOf(wide_path_of(picture_->path())), png);
  }
  if (saved.name.empty()) {
    view_.ShowNotice(notice + L"无法保存：" + SaveErrorText(saved.error));
    return;
  }
  last_saved_ = folder + L'\\' + saved.name;
  browser_.Refresh();
  browser_.ScrollToNew(saved.name);
  view_.ShowNotice(notice + L"已保存到“" + NameForUser(folder) + L"”：" + saved.name.c_str());
}

void CMainWindow::RecogniseFramed() {
  RECT part = FramedPixels();
  EndCrop();
  if (part.right - part.left < kMinReadableSize.cx ||
      part.bottom - part.top < kMinReadableSize.cy) {
    view_.ShowNotice(L"所选区域太小，没有可识别的文字");
    return;
  }
  recognition_.Read(picture_->EncodePart(part), StageOnScreen());
}

void CMainWindow::ShowOpenPanel() {
  EndCrop();
  recognition_.Close();
  const std::wstring current =
      picture_ == nullptr ? std::wstring() : wide_path_of(picture_->path());
  open_panel_.ShowIn(StageOnScreen(), kOpenPanelSize);
  open_panel_.ListFolder(current.empty() ? browser_.Folder() : FolderOf(current), current);
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
      OpenNeighbour(key == VK_RIGHT ? 1 : -1);
      break;
    default:
      Default();
  }
}

}  // namespace capture
