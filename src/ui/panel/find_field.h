// The field in which a game is found by a part of its name.
#pragma once

#include <QWidget>
#include <vector>

#include "core/catalogue/catalogue.h"
#include "ui/toolkit/image_box.h"
#include "ui/toolkit/label.h"
#include "ui/toolkit/list_box.h"
#include "ui/toolkit/text_box.h"

namespace zarvo {

// Stands over the top of the list that it looks through. While the player types, the selection goes
// to the first game that is found; Down or F3 and Up or Shift+F3 go on, Enter starts the game,
// Escape closes the field and leaves the selection. The list may be filtered meanwhile: every step
// looks anew.
class FindField : public QWidget {
 public:
  // Hidden, until it is opened in a list.
  FindField(QWidget* panel, const Catalogue& games);
  ~FindField() override;

  // Opens it in a list, which may be another one than before, with its text selected.
  void Open(ListBox* list);
  void Close();
  // The list that it was opened in last; nullptr at first.
  [[nodiscard]] ListBox* List() const { return list_; }

  TextBox* txtFind;
  Label* lblFound;  // "3 of 41"
  ImageBox* cmdNext;
  ImageBox* cmdPrevious;
  Label* cmdCloseFind;

 protected:
  // Follows its list, and hands Enter on to it.
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Wire();
  void Fit();
  void OnKey(const KeyArgs& key);
  // To the first game that is found, or by so many of them on from the selected one, round the
  // ends.
  void GoToFirst();
  void Step(int steps);
  void Tell(const std::vector<int>& found);

  const Catalogue& games_;
  ListBox* list_ = nullptr;
};

}  // namespace zarvo
