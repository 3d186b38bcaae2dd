// The built command as another program calls it.
#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "tests/support/folder.h"

namespace brunvik::host {

inline std::string content_of(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// A running command with its three streams, any of which may be a descriptor of the caller's.
class Process {
 public:
  Process(const std::vector<std::string>& arguments, int in, int out, int error) {
    std::vector<char*> words{const_cast<char*>(BRUNVIK_COMMAND)};
    for (const std::string& argument : arguments) words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    id_ = fork();
    if (id_ != 0) return;
    dup2(in, STDIN_FILENO);
    dup2(out, STDOUT_FILENO);
    dup2(error, STDERR_FILENO);
    execv(words.front(), words.data());
    _exit(127);
  }

  // The exit status; that of a command killed by a signal is -1.
  int wait() {
    int status = 0;
    waitpid(id_, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  double resident_megabytes() const {
    double pages = 0;
    std::ifstream("/proc/" + std::to_string(id_) + "/statm") >> pages >> pages;
    return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1 << 20);
  }

 private:
  pid_t id_;
};

struct Ended {
  int status;
  std::string out;
  std::string error;
};

// Runs the command to its end on these lines.
inline Ended brunvik(const std::vector<std::string>& arguments, const std::string& lines = {}) {
  const Folder folder;
  std::ofstream(folder.file("in"), std::ios::binary) << lines;
  const int in = open(folder.file("in").c_str(), O_RDONLY | O_CLOEXEC);
  const int out = open(folder.file("out").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  const int error = open(folder.file("error").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
  const int status = Process(arguments, in, out, error).wait();
  for (const int descriptor : {in, out, error}) close(descriptor);
  return {status, content_of(folder.file("out")), content_of(folder.file("error"))};
}

}  // namespace brunvik::host
