#include "InstrumentProcess.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <charconv>
#include <stdexcept>
#include <utility>

namespace kvtd::test {

namespace {

struct Pipe {
  Descriptor read;
  Descriptor write;
};

Pipe MakePipe() {
  int ends[2];
  if (::pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe to the virtual instrument");
  return {Descriptor(ends[0]), Descriptor(ends[1])};
}

// Reads one line of the program, byte by byte: nothing behind it may be taken away. Empty at the end or in silence.
std::string ReadLine(const Descriptor& output, Clock::time_point deadline) {
  std::string line;
  for (char c = 0;;) {
    const auto left = std::chrono::ceil<Milliseconds>(deadline - Clock::now());
    if (left.count() <= 0 || !WaitReadable(output.get(), nullptr, left)) return {};
    if (::read(output.get(), &c, 1) != 1) return {};
    if (c == '\n') return line;
    line += c;
  }
}

}  // namespace

InstrumentProcess::InstrumentProcess(const std::string& program, const std::vector<std::string>& arguments,
                                     const std::vector<std::string>& listeners) {
  Start(program, arguments);
  try {
    ReadPorts(listeners);
  } catch (...) {
    End();
    throw;
  }
}

InstrumentProcess::~InstrumentProcess() { End(); }

void InstrumentProcess::Start(const std::string& program, const std::vector<std::string>& arguments) {
  std::vector<std::string> words{program, "--exit-with-stdin"};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::vector<char*> argv;
  for (std::string& word : words) argv.push_back(word.data());
  argv.push_back(nullptr);

  Pipe input = MakePipe();
  Pipe output = MakePipe();
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, input.read.get(), STDIN_FILENO);
  posix_spawn_file_actions_adddup2(&actions, output.write.get(), STDOUT_FILENO);
  const int error = ::posix_spawn(&process_, program.c_str(), &actions, nullptr, argv.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) {
    process_ = -1;
    throw std::runtime_error("cannot start " + program);
  }
  input_ = std::move(input.write);
  output_ = std::move(output.read);
}

void InstrumentProcess::ReadPorts(const std::vector<std::string>& listeners) {
  const Clock::time_point deadline = Clock::now() + kPatience;
  while (ports_.size() < listeners.size()) {
    const std::string line = ReadLine(output_, deadline);
    if (line.empty()) throw std::runtime_error("the virtual instrument did not tell its listeners");
    for (const std::string& listener : listeners) {
      if (!line.starts_with(listener + ' ')) continue;
      const char* digits = line.data() + (line.rfind(':') + 1);
      std::uint16_t port = 0;
      if (std::from_chars(digits, line.data() + line.size(), port).ec != std::errc() || port == 0) {
        throw std::runtime_error("the virtual instrument told no port: " + line);
      }
      ports_[listener] = port;
    }
  }
}

std::optional<int> InstrumentProcess::End() {
  if (process_ < 0) return std::nullopt;
  const pid_t process = std::exchange(process_, -1);
  input_.Close();
  // The program's end closes its output, which is what can be waited for with a limit.
  const Clock::time_point deadline = Clock::now() + kPatience;
  bool ended = false;
  char sink[4096];
  while (!ended) {
    const auto left = std::chrono::ceil<Milliseconds>(deadline - Clock::now());
    if (left.count() <= 0 || !WaitReadable(output_.get(), nullptr, left)) break;
    ended = ::read(output_.get(), sink, sizeof(sink)) <= 0;
  }
  if (!ended) ::kill(process, SIGKILL);
  output_.Close();
  int status = 0;
  ::waitpid(process, &status, 0);
  return ended ? std::optional<int>(status) : std::nullopt;
}

}  // namespace kvtd::test
