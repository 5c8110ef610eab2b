#include "ui/toolkit/style.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QTimer>
#include <chrono>
#include <utility>

#include "ui/toolkit/cabinet_style.h"
#include "ui/toolkit/colour.h"
#include "ui/toolkit/control_access.h"
#include "ui/toolkit/drawing.h"
#include "ui/toolkit/list_access.h"
#include "ui/toolkit/picture.h"

// The drawings lie in a library, which the linker would leave out; this call stands outside of
// every namespace, as the resource system asks.
static void LinkPictures() { Q_INIT_RESOURCE(pictures); }

namespace zarvo {
namespace {

constexpr std::chrono::milliseconds kIconDelay{100};  // the first window is drawn before

QPalette CabinetPalette() {
  QPalette palette;
  palette.setColor(QPalette::Window, kNight.ToQt());
  palette.setColor(QPalette::WindowText, kMoon.ToQt());
  palette.setColor(QPalette::Base, QColor(0xF4, 0xF6, 0xFB));
  palette.setColor(QPalette::AlternateBase, QColor(0xE4, 0xE8, 0xF2));
  palette.setColor(QPalette::Text, kInk.ToQt());
  palette.setColor(QPalette::Button, kSlate.ToQt());
  palette.setColor(QPalette::ButtonText, Qt::white);
  palette.setColor(QPalette::Highlight, kSlate.ToQt());
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, QColor(0xF6, 0xF0, 0xDC));
  palette.setColor(QPalette::ToolTipText, kInk.ToQt());
  palette.setColor(QPalette::Link, kPeriwinkle.ToQt());
  palette.setColor(QPalette::PlaceholderText, kSlate.ToQt());
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, Faded(palette.color(QPalette::Active, role)));
  }
  return palette;
}

// Drawn here, so that the desktop needs no plug-in for drawings.
void SetAppIcon() {
  const Picture drawing = Picture::FromResource("app_icon");
  QIcon icon;
  for (const int size : {16, 32, 48, 128}) icon.addPixmap(drawing.ToPixmap(QSize(size, size), 1));
  QGuiApplication::setWindowIcon(icon);
}

}  // namespace

void PrepareApplication() {
  QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
      Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

void DressUp(QApplication& /*application*/) {
  LinkPictures();
  QFont font(QStringLiteral("Liberation Sans"));
  font.setPixelSize(11);
  font.setStyleHint(QFont::SansSerif);
  QApplication::setStyle(MakeCabinetStyle());
  QApplication::setPalette(CabinetPalette());
  QApplication::setFont(font);
  QApplication::setApplicationName(QStringLiteral("zarvo"));
  InstallListAccess();
  InstallControlAccess();
  QTimer::singleShot(kIconDelay, qApp, SetAppIcon);
}

std::future<void> LoadFont(std::function<void()> done) {
  return std::async(std::launch::async, [font = QApplication::font(), done = std::move(done)] {
    QFontMetrics(font).boundingRect(u'M');
    QMetaObject::invokeMethod(qApp, done);
  });
}

}  // namespace zarvo
