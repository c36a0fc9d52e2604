#include "tests/platform/display/x_client.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/Xfixes.h>

#include <array>
#include <chrono>
#include <thread>

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
  std::vector<unsigned long> pixels(image->pixels, image->pixels + image->width * image->height);
  for (unsigned long& pixel : pixels) pixel &= 0xFFFFFFFF;  // of what is wider nothing is said
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

unsigned long XClient::atom(const char* name) const { return XInternAtom(display_, name, False); }

// Gives out the list until the target sends this message.
bool XClient::drop_answered(unsigned long answer, const std::string& uri_list) const {
  for (int left = 1000; left > 0; --left) {
    std::this_thread::sleep_for(std::chrono::milliseconds(XPending(display_) > 0 ? 0 : 5));
    if (XPending(display_) == 0) continue;
    XEvent event;
    XNextEvent(display_, &event);
    if (event.type == ClientMessage && event.xclient.message_type == answer) return true;
    if (event.type != SelectionRequest) continue;
    const XSelectionRequestEvent& asked = event.xselectionrequest;
    XChangeProperty(display_, asked.requestor, asked.property, asked.target, 8, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(uri_list.data()),
                    static_cast<int>(uri_list.size()));
    XEvent given{};
    given.xselection = {
        SelectionNotify, 0,         True, display_, asked.requestor, asked.selection, asked.target,
        asked.property,  asked.time};
    XSendEvent(display_, asked.requestor, False, NoEventMask, &given);
  }
  return false;
}

bool XClient::drop_files(unsigned long window, const std::string& uri_list) const {
  const ::Window root = DefaultRootWindow(display_);
  const ::Window source = XCreateSimpleWindow(display_, root, 0, 0, 1, 1, 0, 0, 0);
  XSetSelectionOwner(display_, atom("XdndSelection"), source, CurrentTime);
  ::Window unused = 0;
  int x = 0, y = 0, inner = 0;
  unsigned keys = 0;
  XQueryPointer(display_, root, &unused, &unused, &x, &y, &inner, &inner, &keys);
  const auto tell = [&](const char* message, std::array<unsigned long, 4> data) {
    XEvent event{};
    event.xclient = {ClientMessage, 0, True, display_, window, atom(message), 32, {}};
    event.xclient.data.l[0] = static_cast<long>(source);
    for (std::size_t at = 0; at < data.size(); ++at)
      event.xclient.data.l[at + 1] = static_cast<long>(data[at]);
    XSendEvent(display_, window, False, NoEventMask, &event);
  };
  const auto place = static_cast<unsigned long>(x) << 16 | static_cast<unsigned long>(y);
  tell("XdndEnter", {5ul << 24, atom("text/uri-list"), 0, 0});
  tell("XdndPosition", {0, place, CurrentTime, atom("XdndActionCopy")});
  const bool entered = drop_answered(atom("XdndStatus"), uri_list);
  tell("XdndDrop", {0, CurrentTime, 0, 0});
  const bool finished = entered && drop_answered(atom("XdndFinished"), uri_list);
  XDestroyWindow(display_, source);
  return finished;
}

void XClient::map_key(int key, unsigned long symbol) const {
  KeySym symbols[] = {symbol, symbol};
  XChangeKeyboardMapping(display_, key, 2, symbols, 1);
  XSync(display_, False);
}

}  // namespace corvane::system
