#include "desktop/platform/window_titles.h"

#include <QGuiApplication>

#ifdef TALVOR_XCB
#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <utility>
#endif

namespace talvor {

#if defined(TALVOR_XCB) && QT_CONFIG(xcb)
namespace {

struct FreeReply {
  void operator()(void* reply) const { std::free(reply); }
};
using Property = std::unique_ptr<xcb_get_property_reply_t, FreeReply>;

xcb_atom_t Atom(xcb_connection_t* server, const std::string& name) {
  const auto cookie = xcb_intern_atom(server, 1, static_cast<std::uint16_t>(name.size()), name.data());
  const std::unique_ptr<xcb_intern_atom_reply_t, FreeReply> reply(
      xcb_intern_atom_reply(server, cookie, nullptr));
  return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

Property Read(xcb_connection_t* server, xcb_window_t window, xcb_atom_t atom) {
  constexpr std::uint32_t MostWords = 16384;
  const auto cookie = xcb_get_property(server, 0, window, atom, XCB_GET_PROPERTY_TYPE_ANY, 0, MostWords);
  return Property(xcb_get_property_reply(server, cookie, nullptr));
}

std::string BytesOf(const Property& property) {
  if (!property) return {};
  return {static_cast<const char*>(xcb_get_property_value(property.get())),
          static_cast<std::size_t>(xcb_get_property_value_length(property.get()))};
}

}  // namespace

std::vector<Text> ReadWindowTitles() {
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return ReadWindowTitles(x11 == nullptr ? nullptr : x11->connection());
}

std::vector<Text> ReadWindowTitles(xcb_connection_t* server) {
  if (server == nullptr) return {};
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(server)).data->root;
  const std::string list = BytesOf(Read(server, root, Atom(server, "_NET_CLIENT_LIST_STACKING")));
  const xcb_atom_t titleAtom = Atom(server, "_NET_WM_NAME");

  std::vector<Text> titles;
  // The list names the window at the back first.
  for (std::size_t end = list.size() / sizeof(xcb_window_t); end > 0; --end) {
    xcb_window_t window = 0;
    std::memcpy(&window, list.data() + (end - 1) * sizeof window, sizeof window);
    std::string title = BytesOf(Read(server, window, titleAtom));
    if (title.empty()) title = BytesOf(Read(server, window, XCB_ATOM_WM_NAME));
    if (auto text = FromUtf8(title); text && !text->empty()) titles.push_back(std::move(*text));
  }
  return titles;
}
#else
std::vector<Text> ReadWindowTitles() { return {}; }
std::vector<Text> ReadWindowTitles(xcb_connection_t*) { return {}; }
#endif

}  // namespace talvor
