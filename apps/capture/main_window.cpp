#include "apps/capture/main_window.h"

#include <cerrno>

#include "apps/capture/capture_messages.h"
#include "apps/capture/picture_folder.h"
#include "apps/capture/texts.h"
#include "apps/capture/window_layout.h"
#include "corvane/platform/base_services/system_paths.h"

namespace capture {
namespace {

using namespace corvane;

constexpr SIZE kMinReadableSize{8, 8};  // pixels of the picture

CString name_for_user(const std::wstring& path) { return CString(name_of(path).c_str()); }

}  // namespace

const MessageMap* CMainWindow::GetMessageMap() const {
  static constexpr auto kMessages =
      MessageTable(On<WM_ERASEBKGND>(&CMainWindow::OnEraseBkgnd), On<WM_SIZE>(&CMainWindow::OnSize),
                   On<WM_DESTROY>(&CMainWindow::OnDestroy),
                   OnMessage<WM_LAYER_BTN_CLICK>(&CMainWindow::OnToolbarButton),
                   OnMessage<WM_CUT_CMD>(&CMainWindow::OnCropCommand),
                   OnMessage<WM_PICTURE_CHOSEN>(&CMainWindow::OnPictureChosen),
                   OnMessage<WM_FOLDER_CHOSEN>(&CMainWindow::OnFolderChosen),
                   OnMessage<WM_PICTURE_CLICKED>(&CMainWindow::OnPictureClicked),
                   OnMessage<WM_WORK_DONE>(&CMainWindow::OnWorkDone),
                   OnMessage<WM_LIBRARY_DRAGGED>(&CMainWindow::OnLibraryDragged));
  static const MessageMap map = kMessages.extending(CWnd::GetMessageMap());
  return &map;
}

bool CMainWindow::Open(Beginning beginning) {
  look_.Load();
  HCURSOR arrow = LoadCursorW(nullptr, IDC_ARROW);
  const wchar_t* window_class = AfxRegisterWndClass(CS_DBLCLKS, arrow);
  RECT screen{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
  if (!CreateEx(0, window_class, L"Corvane", WS_POPUP | WS_CLIPCHILDREN, screen, nullptr, 0)) {
    return false;
  }
  icon_.Give(m_hWnd);
  if (!create_parts()) return false;
  layout();
  CWnd::ShowWindow(SW_SHOW);
  browser_.Load(beginning.library, beginning.folder);
  show_picture(std::move(beginning.picture));
  load_library(beginning.library);
  return true;
}

void CMainWindow::load_library(const std::wstring& library) {
  if (picture_ == nullptr) {
    view_.SetEmptyText(look_.text(Text::looking_for_pictures), {});
    library_work_->Begin([this, library](const std::stop_token& stop) {
      return [this, first = find_first_picture(library, stop)] { show_first(first); };
    });
  }
  library_work_->Begin([this, root = browser_.pane().RootInTree()](const std::stop_token& stop) {
    return [this, folders = read_folders(root, stop)] { browser_.pane().ShowFolders(folders); };
  });
}

void CMainWindow::show_first(const FirstPicture& first) {
  view_.SetEmptyText(look_.text(Text::no_pictures), look_.text(Text::how_to_begin));
  const bool user_was_first = picture_ != nullptr || browser_.Folder() != browser_.pane().root();
  if (user_was_first || first.folder.empty()) return;
  browser_.SelectFolder(first.folder);
  if (first.picture != nullptr) show_picture(first.picture);
}

bool CMainWindow::create_parts() {
  const auto work_done = [window = m_hWnd] { ::PostMessageW(window, WM_WORK_DONE, 0, 0); };
  library_work_ = std::make_unique<CBackgroundWork>(work_done);
  work_ = std::make_unique<CBackgroundWork>(work_done);
  view_.SetEmptyText(look_.text(Text::no_pictures), look_.text(Text::how_to_begin));
  return toolbar_.Open(this) && browser_.Create(this) &&
         view_.CreateEx(0, nullptr, L"picture", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS,
                        CRect(0, 0, 0, 0), this, 0) &&
         create_crop_layer() && recognition_.Open(this, look_.text(Text::recognition)) &&
         open_panel_.Open(this, look_.text(Text::open));
}

bool CMainWindow::create_crop_layer() {
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

void CMainWindow::OnDestroy() {
  icon_.TakeBack(m_hWnd);
  CWnd::OnDestroy();
}

BOOL CMainWindow::OnEraseBkgnd(CDC*) { return TRUE; }

void CMainWindow::OnSize(UINT kind, int width, int height) {
  CWnd::OnSize(kind, width, height);
  if (full_screen_.TakenFrom(m_hWnd)) show_parts({true, true, true});
  if (crop_.GetSafeHwnd() != nullptr) layout();
}

void CMainWindow::layout() {
  const CRect framed = crop_.GetCutRect();
  const RECT shown = view_.ShownRect();
  CRect client;
  GetClientRect(client);
  WindowLayout layout = whole_layout();
  if (full_screen()) layout.stage = client;
  toolbar_.Place(client.Width());
  browser_.Place(layout.library, layout.strip);
  view_.MoveWindow(&layout.stage);
  view_.Invalidate(FALSE);
  place_crop_layer();
  if (crop_.IsWindowVisible()) keep_framed(framed, shown);
}

WindowLayout CMainWindow::whole_layout() const {
  CRect client;
  GetClientRect(client);
  return lay_out({client.right, client.bottom}, toolbar_.height(), library_width_);
}

// The picture was scaled anew: the same part of it stays framed.
void CMainWindow::keep_framed(const CRect& framed, const RECT& shown) {
  if (framed != kept_.now) kept_ = {framed, shown, framed};
  kept_.now = CRect(framed_at(kept_.framed, kept_.shown, view_.ShownRect()));
  crop_.SetCutRect(kept_.now);
}

LRESULT CMainWindow::OnLibraryDragged(WPARAM width, LPARAM) {
  library_width_ = static_cast<int>(width);
  layout();
  return 0;
}

RECT CMainWindow::stage_on_screen() const {
  CRect stage;
  view_.GetWindowRect(stage);
  return stage;
}

void CMainWindow::place_crop_layer() {
  const CRect stage(stage_on_screen());
  crop_.MoveWindow(stage);
}

CRect CMainWindow::CropButtonOnScreen(CropCommand command) const {
  const HWND bar = crop_.GetBarHwnd();
  CRect rect;
  if (bar != nullptr) ::GetWindowRect(::GetDlgItem(bar, static_cast<int>(command)), &rect);
  return rect;
}

void CMainWindow::show_picture(std::shared_ptr<const CPicture> picture) {
  if (crop_.IsWindowVisible() && picture_ != nullptr) {
    view_.ShowNotice(look_.text(Text::crop_given_up));
  }
  end_crop();
  recognition_.Close();
  view_.SetPicture(picture.get());
  picture_ = std::move(picture);
  if (picture_ == nullptr) {
    CWnd::SetWindowTextW(L"Corvane");
    return;
  }
  const SIZE size = picture_->size();
  CString title;
  title.Format(L" — %d × %d — Corvane", size.cx, size.cy);
  CWnd::SetWindowTextW(name_for_user(wide_path_of(picture_->path())) + title);
  browser_.MarkOpened(wide_path_of(picture_->path()));
}

void CMainWindow::open_path(const std::wstring& path) {
  const int count = ++opened_last_;
  work_->Begin([this, path, count](const std::stop_token& stop) -> CBackgroundWork::Finish {
    if (stop.stop_requested() || count != opened_last_) return {};
    std::shared_ptr<const CPicture> picture = CPicture::Open(native_path(path).string());
    return [this, path, count, picture = std::move(picture)] {
      if (count != opened_last_) return;
      if (told_opening_) view_.ShowNotice({});
      told_opening_ = false;
      show_opened(path, picture);
    };
  });
  work_->FinishWithin(kFrame);  // most pictures are: no notice flickers
  if (work_->Busy()) tell_opening(path);
}

void CMainWindow::tell_opening(const std::wstring& path) {
  told_opening_ = true;
  view_.ShowBusy(look_.text(Text::opening));
  browser_.MarkReached(path);
}

void CMainWindow::show_opened(const std::wstring& path, std::shared_ptr<const CPicture> picture) {
  if (picture == nullptr) {
    browser_.MarkReached(path);
    view_.ShowNotice(look_.text(Text::cannot_open, {name_for_user(path)}));
    return;
  }
  show_picture(std::move(picture));
}

void CMainWindow::open_neighbour(int step) {
  std::wstring path = browser_.Neighbour(step);
  if (!PathFileExistsW(path.c_str())) {
    const CString notice = browser_.Refresh();
    view_.ShowNotice(notice.IsEmpty() ? look_.text(Text::no_other_picture) : notice);
    path = browser_.Neighbour(step);
  }
  if (!path.empty()) open_path(path);
}

void CMainWindow::refresh_library() {
  const CString notice = browser_.Refresh();
  if (!notice.IsEmpty()) view_.ShowNotice(notice);
}

LRESULT CMainWindow::OnFolderChosen(WPARAM, LPARAM) {
  refresh_library();
  return 0;
}

LRESULT CMainWindow::OnPictureClicked(WPARAM, LPARAM) {
  open_path(browser_.ClickedPicture());
  return 0;
}

LRESULT CMainWindow::OnToolbarButton(WPARAM id, LPARAM) {
  if (!keyboard_led_) SetFocus();  // the keys stay the picture's
  switch (static_cast<ToolbarButton>(id)) {
    case ToolbarButton::crop:
      start_crop(CropMode::picture);
      break;
    case ToolbarButton::text:
      start_crop(CropMode::text);
      break;
    case ToolbarButton::open:
      show_open_panel();
      break;
    case ToolbarButton::previous:
    case ToolbarButton::next:
      open_neighbour(static_cast<ToolbarButton>(id) == ToolbarButton::next ? 1 : -1);
      break;
    case ToolbarButton::quit:
      PostMessageW(WM_CLOSE);
      break;
  }
  return 0;
}

void CMainWindow::start_crop(CropMode mode) {
  if (picture_ == nullptr) return;
  recognition_.Close();
  open_panel_.Close();
  if (full_screen()) show_parts({false, false, false});
  crop_mode_ = mode;
  crop_.SetOCRMode(mode == CropMode::text ? 1 : 0);
  crop_.ShowWindow(SW_SHOW);
  crop_.Invalidate(FALSE);
}

void CMainWindow::end_crop() {
  if (crop_.GetSafeHwnd() != nullptr && crop_.IsWindowVisible()) crop_.ShowWindow(SW_HIDE);
}

RECT CMainWindow::framed_pixels() const {
  if (picture_ == nullptr) return {};
  return picture_pixels(picture_->size(), view_.ShownRect(), crop_.GetCutRect());
}

LRESULT CMainWindow::OnCropCommand(WPARAM command, LPARAM) {
  switch (static_cast<CropCommand>(command)) {
    case CropCommand::save:
      save_framed();
      break;
    case CropCommand::recognise:
    case CropCommand::read:
      recognise_framed();
      break;
    case CropCommand::again:
      start_crop(crop_mode_);
      break;
    case CropCommand::cancel:
    case CropCommand::close:
      end_crop();
      break;
  }
  return 0;
}

void CMainWindow::save_framed() {
  const RECT part = framed_pixels();
  end_crop();
  if (::IsRectEmpty(&part)) {
    view_.ShowNotice(look_.text(Text::nothing_framed));
    return;
  }
  const CString notice = browser_.LeaveVanishedFolder();
  const std::wstring folder = browser_.Folder();
  if (folder.empty()) return show_saved({{}, ENOENT}, folder, notice);
  save_part(part, folder, notice);
}

void CMainWindow::save_part(const RECT& part, const std::wstring& folder, const CString& notice) {
  view_.ShowBusy(look_.text(Text::saving));
  work_->Begin([this, part, folder, notice, picture = picture_](const std::stop_token&) {
    SavedPart saved{{}, ENOMEM};
    const std::vector<std::uint8_t> png = picture->EncodePart(part);
    if (!png.empty()) saved = save_numbered(folder, name_of(wide_path_of(picture->path())), png);
    return [this, folder, notice, saved] { show_saved(saved, folder, notice); };
  });
}

void CMainWindow::show_saved(const SavedPart& saved, const std::wstring& folder,
                             const CString& notice) {
  if (saved.name.empty()) {
    show_notices(notice, look_.text(Text::cannot_save, {save_error_text(saved.error, look_)}));
    return;
  }
  last_saved_ = path_in(folder, saved.name);
  browser_.Refresh();
  if (browser_.Folder() == folder) browser_.ScrollToNew(saved.name);
  show_notices(notice, look_.text(Text::saved, {name_for_user(folder), saved.name.c_str()}));
}

void CMainWindow::show_notices(const CString& first, const CString& second) {
  view_.ShowNotice(first.IsEmpty() ? second : look_.text(Text::two_sentences, {first, second}));
}

void CMainWindow::recognise_framed() {
  const RECT part = framed_pixels();
  end_crop();
  if (part.right - part.left < kMinReadableSize.cx ||
      part.bottom - part.top < kMinReadableSize.cy) {
    view_.ShowNotice(look_.text(Text::too_small_to_read));
    return;
  }
  view_.ShowBusy(look_.text(Text::preparing_to_read));
  work_->Begin([this, part, picture = picture_](const std::stop_token&) {
    return [this, png = picture->EncodePart(part)] {
      view_.ShowNotice(png.empty() ? look_.text(Text::memory_short) : CString());
      if (!png.empty()) recognition_.Read(png, stage_on_screen());
    };
  });
}

LRESULT CMainWindow::OnWorkDone(WPARAM, LPARAM) {
  library_work_->FinishDone();
  work_->FinishDone();
  return 0;
}

void CMainWindow::show_open_panel() {
  end_crop();
  recognition_.Close();
  const std::wstring current =
      picture_ == nullptr ? std::wstring() : wide_path_of(picture_->path());
  open_panel_.ShowIn(stage_on_screen(), look_.size(Measure::open_box));
  open_panel_.ListFolder(current.empty() ? browser_.Folder() : folder_of(current), current);
}

LRESULT CMainWindow::OnPictureChosen(WPARAM, LPARAM) {
  open_path(open_panel_.ChosenPath());
  return 0;
}

}  // namespace capture
