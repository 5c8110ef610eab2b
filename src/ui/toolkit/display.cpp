#include "ui/toolkit/display.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <QDir>
#include <QLibraryInfo>
#include <algorithm>

namespace zarvo {
namespace {

bool XAnswers() {
  if (qEnvironmentVariableIsEmpty("DISPLAY")) return false;
  xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
  const bool answers = xcb_connection_has_error(connection) == 0;
  xcb_disconnect(connection);
  return answers;
}

bool WaylandAnswers() {
  const QByteArray name = qgetenv("WAYLAND_DISPLAY");
  if (name.isEmpty()) return false;
  const QByteArray path = name.startsWith('/') ? name : qgetenv("XDG_RUNTIME_DIR") + '/' + name;
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.size() >= static_cast<qsizetype>(sizeof address.sun_path)) return false;
  std::copy(path.begin(), path.end(), static_cast<char*>(address.sun_path));
  const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const bool answers =
      ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
  ::close(socket);
  return answers;
}

bool QtSpeaksWayland() {
  const QDir plugins(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms"));
  return !plugins.entryList({QStringLiteral("libqwayland-*.so")}).isEmpty();
}

}  // namespace

std::string ChooseDisplay() {
  const QByteArray chosen = qgetenv("QT_QPA_PLATFORM");
  const bool is_chosen = !chosen.isEmpty();
  if (is_chosen && !chosen.startsWith("xcb") && !chosen.startsWith("wayland")) return {};
  if (!chosen.startsWith("wayland") && XAnswers()) {
    if (!is_chosen) qputenv("QT_QPA_PLATFORM", "xcb");
    return {};
  }
  const bool wayland = !chosen.startsWith("xcb") && WaylandAnswers();
  if (wayland && QtSpeaksWayland()) {
    if (!is_chosen) qputenv("QT_QPA_PLATFORM", "wayland");
    return {};
  }
  return wayland ? "this desktop is Wayland without X11; please install the package qt6-wayland"
                 : "there is no display to open a window on";
}

}  // namespace zarvo
