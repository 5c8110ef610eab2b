#include "core/platform/store.h"

#include "core/platform/enter_folder.h"

namespace zarvo {

Result<std::string> Store::Load() {
  auto text = Read();
  missed_ = !text && text.error().missing;
  usable_ = Success();
  if (!text && !missed_) Refuse(text.error());
  return text;
}

Result<std::string> Store::Read() const {
  const Status entered = EnterFolder(files_, folder_);
  if (!entered) return Named(entered.error());
  if (files_.FileExists(temporary_)) Ignore(files_.DeleteFile(temporary_));
  auto text = ReadAll(files_, name_);
  if (!text) return Named(text.error());
  return text;
}

Status Store::Replace(std::string_view text) {
  Status allowed = MayChange();
  return allowed ? Write(text) : allowed;
}

Status Store::Change(const std::function<std::string(std::string)>& change) {
  Status allowed = MayChange();
  if (!allowed) return allowed;
  auto text = Read();
  if (!text && !text.error().missing) return text.error();
  return Write(change(text ? *std::move(text) : std::string()));
}

Status Store::Overwrite(std::string_view text) {
  const auto present = Read();
  if (!present && !present.error().missing) return present.error();
  return Write(text);
}

void Store::Refuse(const Error& reason) {
  usable_ = Error{reason.message + "\r" + name_.Text() +
                  " stays as it is, and what you change isn't saved in it until it can be read."};
}

Error Store::Named(const Error& error) const {
  return Error{name_.Text() + ": " + error.message, error.missing};
}

Status Store::Write(std::string_view text) {
  Status done = EnterFolder(files_, folder_);
  if (done) done = files_.ReplaceFile(name_, temporary_, text);
  if (!done) return Named(done.error());
  missed_ = false;
  usable_ = Success();
  return done;
}

Status Store::MayChange() {
  const Status entered = EnterFolder(files_, folder_);
  if (usable_ && entered && missed_ && files_.FileExists(name_)) {
    Refuse(Named(Error{"It was missing when it was looked for, and is there now"}));
  }
  return usable_;
}

}  // namespace zarvo
