#include "toolkit/desktop_boxes.h"

#include <QMessageBox>

#include "toolkit/control.h"
#include "toolkit/window.h"

namespace zarvo {

BoxAnswer DesktopBoxes::Show(BoxIcon icon, BoxButtons buttons, std::string_view title,
                             std::string_view text) {
  CountModal();
  QMessageBox box(DialogOwner());
  box.setObjectName(QStringLiteral("msgBox"));
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle(ToQt(title));
  box.setText(ToQt(text));
  box.setIcon(icon == BoxIcon::kInformation ? QMessageBox::Information : QMessageBox::Warning);
  if (buttons == BoxButtons::kOk) {
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
    return BoxAnswer::kOk;
  }
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  box.setDefaultButton(QMessageBox::Yes);
  box.setEscapeButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes ? BoxAnswer::kYes : BoxAnswer::kNo;
}

}  // namespace zarvo
