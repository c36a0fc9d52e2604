#pragma once
// The program's window: a toolbar, below it the picture library at the left and its pictures at the
// bottom, the opened picture between them, a crop over it, and the boxes for recognised text and
// for opening another picture.
#include <atomic>
#include <functional>
#include <memory>
#include <string>

#include "apps/capture/background_work.h"
#include "apps/capture/first_picture.h"
#include "apps/capture/full_screen.h"
#include "apps/capture/key_commands.h"
#include "apps/capture/library_browser.h"
#include "apps/capture/look.h"
#include "apps/capture/open_panel.h"
#include "apps/capture/picture.h"
#include "apps/capture/picture_saving.h"
#include "apps/capture/picture_view.h"
#include "apps/capture/recognition_panel.h"
#include "apps/capture/toolbar.h"
#include "apps/capture/window_icon.h"
#include "corvane/corvane.h"

namespace capture {

// What the program begins with. Full wide paths.
struct Beginning {
  std::wstring library;                     // the root folder
  std::wstring folder;                      // selected when it lies in the library, else the root
  std::shared_ptr<const CPicture> picture;  // null: the library's first
};

// The crop bar's commands.
enum class CropCommand { again = 1, cancel = 2, save = 3, recognise = 4, read = 5, close = 6 };

class CMainWindow : public corvane::CWnd {
 public:
  // Fills the screen with the window; what it shows comes while it can be used.
  bool Open(Beginning beginning);

  // For the scripted session and tests.
  const CToolbar& toolbar() const { return toolbar_; }
  const CPictureView& view() const { return view_; }
  CLibraryBrowser& browser() { return browser_; }
  const corvane::CCutBgLayer& crop() const { return crop_; }
  corvane::CRect CropButtonOnScreen(CropCommand command) const;  // empty while there is no bar
  const CPicture* picture() const { return picture_.get(); }
  const std::wstring& last_saved() const { return last_saved_; }  // full wide path
  bool recognising() const { return saving() || recognition_.Running(); }
  bool loading() const { return library_work_ != nullptr && library_work_->Busy(); }
  bool opening() const { return saving() || open_panel_.Listing(); }
  const CRecognitionPanel& recognition() const { return recognition_; }
  bool full_screen() const { return full_screen_.active(); }
  bool saving() const { return work_ != nullptr && work_->Busy(); }

  bool ClickFocusedButton();  // false: no button has the focus

 protected:
  const corvane::MessageMap* GetMessageMap() const override;
  BOOL OnEraseBkgnd(corvane::CDC* dc);
  void OnSize(UINT kind, int width, int height);
  void OnDestroy();
  BOOL PreTranslateMessage(MSG* message) override;
  LRESULT OnToolbarButton(WPARAM id, LPARAM);
  LRESULT OnCropCommand(WPARAM command, LPARAM);
  LRESULT OnPictureChosen(WPARAM, LPARAM);
  LRESULT OnFolderChosen(WPARAM, LPARAM);
  LRESULT OnPictureClicked(WPARAM, LPARAM);
  LRESULT OnWorkDone(WPARAM, LPARAM);
  LRESULT OnLibraryDragged(WPARAM width, LPARAM);

 private:
  enum class CropMode { picture, text };

  bool take_key(UINT key);
  bool take_wheel(const MSG& message);
  void perform(KeyCommand command);
  void zoom(KeyCommand command);
  void change_zoom(const std::function<void()>& change);
  void copy_recognised();
  void toggle_full_screen();
  void show_parts(const ShownParts& parts);
  void reveal_at(POINT screen_point);
  WindowLayout whole_layout() const;
  void move_focus(int step);
  std::vector<HWND> parts_for_keys() const;
  void cancel();

  bool create_parts();
  bool create_crop_layer();
  void load_library(const std::wstring& library);
  void show_first(const FirstPicture& first);
  void layout();
  void place_crop_layer();
  void keep_framed(const corvane::CRect& framed, const RECT& shown);
  RECT stage_on_screen() const;

  void show_picture(std::shared_ptr<const CPicture> picture);
  void open_path(const std::wstring& path);
  void tell_opening(const std::wstring& path);
  void show_opened(const std::wstring& path, std::shared_ptr<const CPicture> picture);
  void open_neighbour(int step);
  void refresh_library();
  void start_crop(CropMode mode);
  void end_crop();
  RECT framed_pixels() const;  // of the picture
  void save_framed();
  void save_part(const RECT& part, const std::wstring& folder, const corvane::CString& notice);
  void show_saved(const SavedPart& saved, const std::wstring& folder,
                  const corvane::CString& notice);
  void show_notices(const corvane::CString& first, const corvane::CString& second);
  void recognise_framed();
  void show_open_panel();

  CLook look_;  // the parts borrow it
  std::shared_ptr<const CPicture> picture_;
  std::wstring last_saved_;
  CToolbar toolbar_;
  CLibraryBrowser browser_{look_};
  CPictureView view_{look_};
  corvane::CCutBgLayer crop_;
  CropMode crop_mode_ = CropMode::picture;
  // What the user framed last and where the picture stood then, so that many changes of the
  // window's size do not add up; and what that has become.
  struct {
    corvane::CRect framed;
    RECT shown{};
    corvane::CRect now;
  } kept_;
  CWindowIcon icon_;
  CFullScreen full_screen_;
  ShownParts parts_;       // all of them outside full screen
  int library_width_ = 0;  // as the user dragged it; 0: as the window gives it
  CRecognitionPanel recognition_{look_};
  COpenPanel open_panel_{look_};
  int wheel_rest_ = 0;                // of a notch, turned with Control
  std::atomic<int> opened_last_ = 0;  // counts: only the last one that was asked for is shown
  bool told_opening_ = false;         // the notice says so
  bool keyboard_led_ = false;         // the keyboard, not the mouse, chose what has the focus
  // Made with the window; saving does not wait for a library to be read.
  std::unique_ptr<CBackgroundWork> library_work_;
  std::unique_ptr<CBackgroundWork> work_;
};

}  // namespace capture
