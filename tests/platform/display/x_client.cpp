#include "tests/platform/display/x_client.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/Xfixes.h>

namespace corvane::system {

XClient::XClient() : display_(XOpenDisplay(nullptr)) {}

XClient::~XClient() {
  if (display_ != nullptr) XCloseDisplay(display_);
}

unsigned long XClient::window_named(const std::string& title) const {
  ::Window root = 0, parent = 0, found = 0;
  ::Window* children = nullptr;
  unsigned count = 0;
  if (!XQueryTree(display_, DefaultRootWindow(display_), &root, &parent, &children, &count))
    return 0;
  for (unsigned i = 0; i < count; ++i)
    if (title_of(children[i]) == title) found = children[i];
  if (children) XFree(children);
  return found;
}

std::string XClient::title_of(unsigned long window) const {
  Atom type = 0;
  int format = 0;
  unsigned long length = 0, rest = 0;
  unsigned char* data = nullptr;
  XGetWindowProperty(display_, window, XInternAtom(display_, "_NET_WM_NAME", False), 0, 99, False,
                     AnyPropertyType, &type, &format, &length, &rest, &data);
  const std::string title = data ? reinterpret_cast<const char*>(data) : "";
  if (data) XFree(data);
  return title;
}

std::vector<unsigned long> XClient::icon(unsigned long window) const {
  Atom type = 0;
  int format = 0;
  unsigned long length = 0, rest = 0;
  unsigned char* data = nullptr;
  XGetWindowProperty(display_, window, XInternAtom(display_, "_NET_WM_ICON", False), 0, 99999,
                     False, AnyPropertyType, &type, &format, &length, &rest, &data);
  const auto* const words = reinterpret_cast<const unsigned long*>(data);
  std::vector<unsigned long> icon(words, words + length);
  if (data) XFree(data);
  return icon;
}

XClient::Place XClient::place(unsigned long window) const {
  XWindowAttributes found{};
  XGetWindowAttributes(display_, window, &found);
  return {found.x, found.y, found.width, found.height, found.map_state == IsViewable};
}

std::uint32_t XClient::pixel(unsigned long window, int x, int y) const {
  XImage* const image = XGetImage(display_, window, x, y, 1, 1, AllPlanes, ZPixmap);
  if (!image) return 0;
  const auto pixel = static_cast<std::uint32_t>(XGetPixel(image, 0, 0)) & 0x00FFFFFF;
  XDestroyImage(image);
  return pixel;
}

std::vector<unsigned long> XClient::cursor() const {
  XFixesCursorImage* const image = XFixesGetCursorImage(display_);
  if (!image) return {};
  const std::vector<unsigned long> pixels(image->pixels,
                                          image->pixels + image->width * image->height);
  XFree(image);
  return pixels;
}

void XClient::damage(unsigned long window, std::uint32_t color) const {
  const Place area = place(window);
  XSetWindowBackground(display_, window, color);
  XClearArea(display_, window, area.width / 4, area.height / 4,
             static_cast<unsigned>(area.width / 2), static_cast<unsigned>(area.height / 2), True);
  XSync(display_, False);
}

void XClient::ask_to_close(unsigned long window) const {
  XEvent event{};
  event.xclient.type = ClientMessage;
  event.xclient.window = window;
  event.xclient.message_type = XInternAtom(display_, "WM_PROTOCOLS", False);
  event.xclient.format = 32;
  event.xclient.data.l[0] = static_cast<long>(XInternAtom(display_, "WM_DELETE_WINDOW", False));
  XSendEvent(display_, window, False, NoEventMask, &event);
  XSync(display_, False);
}

void XClient::take_focus_away() const {
  XSetInputFocus(display_, None, RevertToNone, CurrentTime);
  XSync(display_, False);
}

void XClient::map_key(int key, unsigned long symbol) const {
  KeySym symbols[] = {symbol, symbol};
  XChangeKeyboardMapping(display_, key, 2, symbols, 1);
  XSync(display_, False);
}

}  // namespace corvane::system
