#pragma once
// What the program's windows post to each other; wParam and lParam are 0 unless told.
#include "corvane/platform/platform.h"

namespace capture {

// Open box -> main window: a picture was chosen; COpenPanel::ChosenPath() names it.
constexpr UINT WM_PICTURE_CHOSEN = WM_APP + 1;
// Library pane -> main window: another folder became the current one.
constexpr UINT WM_FOLDER_CHOSEN = WM_APP + 2;
// Strip -> main window: a picture was clicked; CPictureStrip::ClickedName() names it.
constexpr UINT WM_PICTURE_CLICKED = WM_APP + 3;
// Thumbnail thread -> strip: thumbnails can be taken.
constexpr UINT WM_THUMBNAILS_LOADED = WM_APP + 4;
// Working thread -> main window, open box: a piece of work can be finished.
constexpr UINT WM_WORK_DONE = WM_APP + 5;
// Library pane -> main window, sent: the user drags its edge. wParam: the width asked for, pixels.
constexpr UINT WM_LIBRARY_DRAGGED = WM_APP + 6;

}  // namespace capture
