#pragma once
// What the windows look for in a skin: lists of ui_control.xml and the controls in them.
#include <span>

#include "corvane/frame/window_lists.h"

namespace check_skin {

struct ExpectedControl {
  int id;
  const char* purpose;
};

struct ExpectedList {
  int id;
  const char* window;
  std::span<const ExpectedControl> controls;
  int background;  // the control over the whole height of the window; 0: none
};

inline constexpr ExpectedControl kTree[] = {{1, "the sign beside a folder that holds others"},
                                            {2, "the symbol of a folder"}};
inline constexpr ExpectedControl kCropBar[] = {{3, "save"},          {4, "recognise"},
                                               {1, "draw again"},    {2, "cancel"},
                                               {5, "read the text"}, {6, "cancel reading"}};
inline constexpr ExpectedControl kToolbar[] = {{1, "crop"},          {2, "read text"}, {3, "open"},
                                               {4, "previous"},      {5, "next"},      {6, "quit"},
                                               {7, "the background"}};
inline constexpr ExpectedControl kPanel[] = {{1, "the close button"}};

inline constexpr ExpectedControl kLook[] = {{1, "the colour behind the picture"},
                                            {2, "the colour of panels"},
                                            {3, "the colour of edges"},
                                            {4, "the colour of the row under the pointer"},
                                            {5, "the colour of text"},
                                            {6, "the colour of text of less weight"},
                                            {7, "the colour of what is chosen"},
                                            {8, "the colour of scroll marks"},
                                            {9, "the colour behind selected text"},
                                            {20, "the height of a title"},
                                            {21, "the height of a box's title"},
                                            {22, "the height of a row in a box"},
                                            {23, "the size of the box for opening"},
                                            {24, "the size of the box for text"}};

inline constexpr ExpectedList kLibraryLists[] = {
    {corvane::kFolderTreeList.id, "the folder tree", kTree, 0},
    {corvane::kCropBarList.id, "the bar under the crop rectangle", kCropBar, 0}};
inline constexpr ExpectedList kCaptureLists[] = {
    {100, "the toolbar of the capture program", kToolbar, 7},
    {101, "the panels of the capture program", kPanel, 0},
    {102, "what the capture program draws itself", kLook, 0}};

}  // namespace check_skin
