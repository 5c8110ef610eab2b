// A file that the program reads whole and replaces whole: an emulator's .cfg, .set and .scn,
// layouts.dat and zarvo.ini.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/platform/dos_files.h"

namespace zarvo {

// Remembers what the last Load saw, for what could not be read is not overwritten: a store that was
// there and couldn't be read, and one that was missing and is there at the save, stays as it is
// until a Load has read it. All errors name the file and the reason. Every access makes the file's
// folder current.
class Store {
 public:
  // `folder` is a full path; the temporary file stands beside the store.
  Store(DosFiles& files, DosPath folder, FileName name, FileName temporary)
      : files_(files),
        folder_(std::move(folder)),
        name_(std::move(name)),
        temporary_(std::move(temporary)) {}

  // The text for controls that will hold it; the error tells if there is no such file. A temporary
  // file that a run left behind, cut off before its rename, is removed.
  Result<std::string> Load();
  // The same for a reader that saves nothing.
  [[nodiscard]] Result<std::string> Read() const;

  // These three replace the file as a whole or leave it as it was.

  // With a text made from controls.
  Status Replace(std::string_view text);
  // With what `change` makes of the present text, empty without a file.
  Status Change(const std::function<std::string(std::string)>& change);
  // Whatever the last Load saw, because the player said so; a file that can't be read stays.
  Status Overwrite(std::string_view text);

  // From now on this store stays as it is, because of an error elsewhere.
  void Refuse(const Error& reason);
  // An error while the store stays as it is.
  [[nodiscard]] const Status& Usable() const { return usable_; }

 private:
  [[nodiscard]] Error Named(const Error& error) const;
  Status Write(std::string_view text);
  // Whether the last Load allows a change.
  Status MayChange();

  DosFiles& files_;
  DosPath folder_;
  FileName name_;
  FileName temporary_;
  Status usable_ = Success();
  bool missed_ = false;  // by the last Load
};

}  // namespace zarvo
