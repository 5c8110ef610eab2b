#include "ui/pickers/folder_browser.h"

#include <string>

#include "core/platform/dos_path.h"

namespace zarvo {
namespace {

constexpr int kMargin = ToTwips(8);
constexpr int kBoxHeight = ToTwips(21);
constexpr int kLineHeight = ToTwips(15);
constexpr int kButtonWidth = ToTwips(81);
constexpr int kButtonHeight = ToTwips(24);

void ShowPath(Label& label, const DosPath& path) {
  label.SetCaption(path.Text());
  label.SetAccessibleName("Open folder: " + path.Text());
}

}  // namespace

PickerPlaces::PickerPlaces(int window_width, int window_height, int files_width) {
  const int right_end = window_width - kMargin;
  const int right = right_end - files_width;
  const int left_width = right - 2 * kMargin;
  const int buttons_top = window_height - ToTwips(10) - kButtonHeight;
  const int path_top = buttons_top - ToTwips(9) - kLineHeight;
  const int lists_top = kMargin + kBoxHeight + ToTwips(6);
  const int lists_height = path_top - ToTwips(5) - lists_top;
  drive = {kMargin, kMargin, left_width, kBoxHeight};
  pattern = {right, kMargin, files_width, kBoxHeight};
  folders = {kMargin, lists_top, left_width, lists_height};
  files = {right, lists_top, files_width, lists_height};
  path = {kMargin, path_top, right_end - kMargin, kLineHeight};
  cancel = {right_end - kButtonWidth, buttons_top, kButtonWidth, kButtonHeight};
  accept = {cancel.left - kMargin - kButtonWidth, buttons_top, kButtonWidth, kButtonHeight};
}

FolderBrowser::FolderBrowser(DriveList& drives, FolderList& folders, FileList& files, Label& path)
    : drives_(drives), folders_(folders), files_(files), path_(path) {
  drives_.Change.Connect([this] { OpenDrive(); });
  folders_.Change.Connect([this] { FollowFolder(); });
  Ignore(folders_.SetPath(""));
  FollowFolder();
}

bool FolderBrowser::OpenAt(char drive, const DosPath& folder) {
  const bool drive_is_there = drive == 0 || drives_.SetDrive(drive).ok();
  if (drive_is_there && folders_.SetPath(folder).ok()) return true;
  Ignore(folders_.SetPath(""));
  return false;
}

// The drive list moves on its own only where the player or a caller turns it; when it follows the
// folder, there is nothing left to open.
void FolderBrowser::OpenDrive() {
  const char letter = drives_.Drive();
  if (letter == folders_.Path().Drive()) return;
  if (folders_.SetPath(DosPath(std::string{letter, ':'})).ok()) return;
  Ignore(drives_.SetDrive(folders_.Path().Drive()));
  files_.Refresh();
  Changed.Raise();
}

void FolderBrowser::FollowFolder() {
  const DosPath folder = folders_.Path();
  files_.SetPath(folder);
  Ignore(drives_.SetDrive(folder.Drive()));
  ShowPath(path_, folder);
  Changed.Raise();
}

}  // namespace zarvo
