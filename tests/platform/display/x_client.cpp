#include "tests/platform/display/x_client.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/Xfixes.h>

namespace corvane::system {

struct XClient::Connection {
  ::Display* display;
};

XClient::XClient() : connection_(nullptr) {
  if (::Display* const display = XOpenDisplay(nullptr)) connection_ = new Connection{display};
}

XClient::~XClient() {
  if (!connection_) return;
  XCloseDisplay(connection_->display);
  delete connection_;
}

unsigned long XClient::window_named(const std::string& title) const {
  ::Display* const display = connection_->display;
  ::Window root = 0;
  ::Window parent = 0;
  ::Window* children = nullptr;
  unsigned count = 0;
  if (!XQueryTree(display, DefaultRootWindow(display), &root, &parent, &children, &count)) return 0;
  ::Window found = 0;
  for (unsigned i = 0; i < count; ++i)
    if (title_of(children[i]) == title) found = children[i];
  if (children) XFree(children);
  return found;
}

std::string XClient::title_of(unsigned long window) const {
  ::Display* const display = connection_->display;
  Atom type = 0;
  int format = 0;
  unsigned long length = 0;
  unsigned long rest = 0;
  unsigned char* data = nullptr;
  XGetWindowProperty(display, window, XInternAtom(display, "_NET_WM_NAME", False), 0, 99, False,
                     AnyPropertyType, &type, &format, &length, &rest, &data);
  const std::string title = data ? reinterpret_cast<const char*>(data) : "";
  if (data) XFree(data);
  return title;
}

XClient::Place XClient::place(unsigned long window) const {
  XWindowAttributes found{};
  XGetWindowAttributes(connection_->display, window, &found);
  return {found.x, found.y, found.width, found.height, found.map_state == IsViewable};
}

std::uint32_t XClient::pixel(unsigned long window, int x, int y) const {
  XImage* const image = XGetImage(connection_->display, window, x, y, 1, 1, AllPlanes, ZPixmap);
  if (!image) return 0;
  const auto pixel = static_cast<std::uint32_t>(XGetPixel(image, 0, 0)) & 0x00FFFFFF;
  XDestroyImage(image);
  return pixel;
}

std::vector<unsigned long> XClient::cursor() const {
  XFixesCursorImage* const image = XFixesGetCursorImage(connection_->display);
  if (!image) return {};
  const std::vector<unsigned long> pixels(image->pixels,
                                          image->pixels + image->width * image->height);
  XFree(image);
  return pixels;
}

void XClient::damage(unsigned long window, std::uint32_t color) const {
  const Place area = place(window);
  XSetWindowBackground(connection_->display, window, color);
  XClearArea(connection_->display, window, area.width / 4, area.height / 4,
             static_cast<unsigned>(area.width / 2), static_cast<unsigned>(area.height / 2), True);
  XSync(connection_->display, False);
}

void XClient::ask_to_close(unsigned long window) const {
  ::Display* const display = connection_->display;
  XEvent event{};
  event.xclient.type = ClientMessage;
  event.xclient.window = window;
  event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", False);
  event.xclient.format = 32;
  event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", False));
  XSendEvent(display, window, False, NoEventMask, &event);
  XSync(display, False);
}

void XClient::take_focus_away() const {
  XSetInputFocus(connection_->display, None, RevertToNone, CurrentTime);
  XSync(connection_->display, False);
}

void XClient::map_key(int key, unsigned long symbol) const {
  KeySym symbols[] = {symbol, symbol};
  XChangeKeyboardMapping(connection_->display, key, 2, symbols, 1);
  XSync(connection_->display, False);
}

}  // namespace corvane::system
