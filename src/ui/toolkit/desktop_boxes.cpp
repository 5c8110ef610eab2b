#include "ui/toolkit/desktop_boxes.h"

#include <QMessageBox>
#include <QPushButton>

#include "ui/toolkit/control.h"
#include "ui/toolkit/input_gate.h"
#include "ui/toolkit/window.h"

namespace zarvo {

namespace {

// A text that fits a screen, whatever came into it from a file: long words may break, and what is
// far beyond any message of the program's own is cut.
QString Fitting(std::string_view text) {
  constexpr qsizetype kLongestWord = 80;
  constexpr qsizetype kLongestLine = 800;
  constexpr qsizetype kMostLines = 30;
  QStringList lines = ToQt(text).split(QLatin1Char('\n'));
  if (lines.size() > kMostLines) lines = lines.first(kMostLines) << QStringLiteral("\u2026");
  for (QString& line : lines) {
    if (line.size() > kLongestLine) line = line.first(kLongestLine) + QChar(0x2026);
    qsizetype word = 0;
    for (qsizetype i = 0; i < line.size(); ++i) {
      word = line[i].isSpace() ? 0 : word + 1;
      if (word <= kLongestWord) continue;
      line.insert(i, QChar(0x200B));  // a place to break, not seen
      word = 0;
    }
  }
  return lines.join(QLatin1Char('\n'));
}

}  // namespace

BoxAnswer DesktopBoxes::Show(BoxIcon icon, BoxButtons buttons, std::string_view title,
                             std::string_view text) {
  CountModal();
  QMessageBox box(DialogOwner());
  box.setObjectName(QStringLiteral("msgBox"));
  box.setTextFormat(Qt::PlainText);
  box.setWindowTitle(ToQt(title));
  box.setText(Fitting(text));
  box.setIcon(icon == BoxIcon::kInformation ? QMessageBox::Information : QMessageBox::Warning);
  if (buttons == BoxButtons::kOk) {
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
    return BoxAnswer::kOk;
  }
  if (buttons == BoxButtons::kRetryStayLeave) {
    const auto* const retry = box.addButton(QStringLiteral("&Try again"), QMessageBox::AcceptRole);
    QPushButton* const stay = box.addButton(QStringLiteral("&Stay"), QMessageBox::RejectRole);
    const auto* const leave =
        box.addButton(QStringLiteral("&Leave it"), QMessageBox::DestructiveRole);
    box.setEscapeButton(stay);
    box.exec();
    if (box.clickedButton() == retry) return BoxAnswer::kRetry;
    return box.clickedButton() == leave ? BoxAnswer::kLeave : BoxAnswer::kStay;
  }
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  box.setDefaultButton(QMessageBox::Yes);
  box.setEscapeButton(QMessageBox::No);
  return box.exec() == QMessageBox::Yes ? BoxAnswer::kYes : BoxAnswer::kNo;
}

}  // namespace zarvo
