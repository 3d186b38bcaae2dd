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

// A command that waits for the next line, with nowhere to tell of errors.
class Conversation {
 public:
  explicit Conversation(const std::vector<std::string>& arguments = {"run"})
      : Conversation(arguments, new_pipe(), new_pipe(), open("/dev/null", O_WRONLY | O_CLOEXEC)) {}

  // The line is written whole before the answer is read, so only one of the two may be longer than a pipe holds.
  std::string answer_to(const std::string& line) {
    for (std::size_t done = 0; done < line.size();) {
      const ssize_t written = write(to_, line.data() + done, line.size() - done);
      if (written < 0) return {};
      done += static_cast<std::size_t>(written);
    }
    std::string answer;
    for (char c = 0; c != '\n' && read(from_, &c, 1) == 1;) answer += c;
    return answer;
  }

  // The exit status.
  int end() {
    close(to_);
    close(from_);
    return process_.wait();
  }

  double resident_megabytes() const { return process_.resident_megabytes(); }

 private:
  using Pipe = std::array<int, 2>;

  static Pipe new_pipe() {
    Pipe ends{};
    EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    return ends;
  }

  Conversation(const std::vector<std::string>& arguments, Pipe to, Pipe from, int nowhere)
      : to_(to[1]), from_(from[0]), process_(arguments, to[0], from[1], nowhere) {
    for (const int descriptor : {to[0], from[1], nowhere}) close(descriptor);
  }

  int to_;
  int from_;
  Process process_;
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
