// Really runs a command, without a window toolkit.
#pragma once

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

#include "core/platform/child_process.h"

namespace zarvo {

class PosixRunner : public ChildRunner {
 public:
  RunOutcome Run(const HostCommand& command) override {
    std::vector<char*> words = {const_cast<char*>(command.program.c_str())};
    for (const std::string& argument : command.arguments) {
      words.push_back(const_cast<char*>(argument.c_str()));
    }
    words.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, command.folder.c_str());
    pid_t child = 0;
    RunOutcome outcome;
    outcome.started =
        posix_spawn(&child, command.program.c_str(), &actions, nullptr, words.data(), environ) == 0;
    posix_spawn_file_actions_destroy(&actions);
    if (!outcome.started) return outcome;

    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    outcome.crashed = WIFSIGNALED(status);
    outcome.exit_code = WIFEXITED(status) ? WEXITSTATUS(status) : 0;
    return outcome;
  }
};

}  // namespace zarvo
