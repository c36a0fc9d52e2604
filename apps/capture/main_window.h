#pragma once
// The program's window: a toolbar, the picture below it, a crop over the picture, and the boxes
// for recognised text and for opening another picture.
#include <memory>
#include <string>

#include "apps/capture/open_panel.h"
#include "apps/capture/picture.h"
#include "apps/capture/picture_view.h"
#include "apps/capture/text_panel.h"
#include "apps/capture/text_recognition.h"
#include "corvane/corvane.h"

namespace capture {

class CMainWindow : public corvane::CWnd {
 public:
  // Fills the screen with the window; takes the picture.
  bool Open(std::unique_ptr<CPicture> picture);

  // For the scripted session.
  const corvane::CWindowLayer& toolbar() const { return toolbar_; }
  const CPictureView& view() const { return view_; }
  const corvane::CCutBgLayer& crop() const { return crop_; }
  const std::string& last_saved() const { return last_saved_; }
  bool recognising() const { return recognition_.Running(); }

 protected:
  const corvane::MessageMap* GetMessageMap() const override;
  BOOL OnEraseBkgnd(corvane::CDC* dc);
  void OnSize(UINT kind, int width, int height);
  void OnKeyDown(UINT key, UINT repeats, UINT flags);
  void OnTimer(UINT_PTR id);
  LRESULT OnToolbarButton(WPARAM id, LPARAM);
  LRESULT OnCropCommand(WPARAM command, LPARAM);
  LRESULT OnPictureChosen(WPARAM, LPARAM);

 private:
  enum class CropMode { picture, text };

  bool CreateParts();
  bool CreateCropLayer();
  void CreateToolbar();
  void Layout();
  void PlaceCropLayer();
  RECT StageOnScreen() const;

  void ShowPicture(std::unique_ptr<CPicture> picture);
  void OpenPath(const std::string& path);
  void StartCrop(CropMode mode);
  void EndCrop();
  RECT FramedPixels() const;  // of the picture
  void SaveFramed();
  void RecogniseFramed();
  void ShowRecognised(const std::string& text);
  void ShowText(const wchar_t* title, const corvane::CString& text);
  void ShowOpenPanel();

  std::unique_ptr<CPicture> picture_;
  std::string last_saved_;
  corvane::CXmlListMgr skin_;  // outlives the toolbar, which borrows it
  corvane::CGdiImage toolbar_background_;
  corvane::CWindowLayer toolbar_;
  CPictureView view_;
  corvane::CCutBgLayer crop_;
  CropMode crop_mode_ = CropMode::picture;
  CTextPanel text_panel_;
  COpenPanel open_panel_;
  CTextRecognition recognition_;
};

// The toolbar's control ids in the default skin.
enum class ToolbarButton { crop = 1, text = 2, open = 3, previous = 4, next = 5, quit = 6 };
// The crop bar's commands.
enum class CropCommand { again = 1, cancel = 2, save = 3, recognise = 4, read = 5, close = 6 };

}  // namespace capture
