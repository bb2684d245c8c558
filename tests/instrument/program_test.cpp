// The program itself: what it prints, and that it ends when it should.
#include <sys/wait.h>
#include <csignal>
#include <cstdio>

#include "client.h"

namespace siggen {
namespace {

// What is typed at the bench takes effect a moment later.
constexpr int kTries = 10'000;

class Program {
 public:
  explicit Program(std::vector<std::string> arguments) {
    int in[2];
    int out[2];
    if (::pipe(in) != 0 || ::pipe(out) != 0) std::abort();
    process_ = ::fork();
    if (process_ == 0) {
      ::dup2(in[0], STDIN_FILENO);
      ::dup2(out[1], STDOUT_FILENO);
      for (const int end : {in[0], in[1], out[0], out[1]}) ::close(end);
      std::vector<char*> argv{const_cast<char*>(KVTD_INSTRUMENT)};
      for (std::string& argument : arguments) argv.push_back(argument.data());
      argv.push_back(nullptr);
      ::execv(KVTD_INSTRUMENT, argv.data());
      std::_Exit(127);
    }
    ::close(in[0]);
    ::close(out[1]);
    stdin_ = in[1];
    stdout_ = ::fdopen(out[0], "r");
  }
  ~Program() {
    CloseStdin();
    if (process_ > 0) {
      ::kill(process_, SIGKILL);
      Wait();
    }
    std::fclose(stdout_);
  }

  std::string Line() {
    char line[256];
    return std::fgets(line, sizeof line, stdout_) != nullptr ? line : "";
  }
  void Type(std::string_view line) {
    ASSERT_EQ(static_cast<ssize_t>(line.size()), ::write(stdin_, line.data(), line.size()));
  }
  void CloseStdin() {
    if (stdin_ >= 0) ::close(stdin_);
    stdin_ = -1;
  }
  void Signal(int signal) { ::kill(process_, signal); }
  int Wait() {
    int status = 0;
    ::waitpid(process_, &status, 0);
    process_ = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

 private:
  pid_t process_ = -1;
  int stdin_ = -1;
  std::FILE* stdout_ = nullptr;
};

std::uint16_t PortIn(const std::string& line, const std::string& listener = "socket") {
  unsigned port = 0;
  EXPECT_EQ(1, std::sscanf(line.c_str(), (listener + " 127.0.0.1:%u\n").c_str(), &port)) << line;
  return static_cast<std::uint16_t>(port);
}

TEST(Program, TellsItsPortAndServesTheModelAskedFor) {
  Program program({"--socket", "0", "--model", "TD48172C", "--serial", "77", "--exit-with-stdin"});
  Client client(PortIn(program.Line()));
  EXPECT_EQ("Kelvora,TD48172C,77,1.4.2", client.Ask("*IDN?"));
  program.CloseStdin();
  EXPECT_EQ(0, program.Wait());
}

TEST(Program, EndsCleanlyOnSigterm) {
  Program program({"--socket", "0"});
  Client client(PortIn(program.Line()));
  EXPECT_EQ("1", client.Ask("*OPC?"));
  program.Signal(SIGTERM);
  EXPECT_EQ(0, program.Wait());
}

TEST(Program, EndsWhenItIsShutDown) {
  Program program({"--socket", "0"});
  Client client(PortIn(program.Line()));
  client.Send(":SYST:SHUT\n");
  EXPECT_EQ(0, client.WaitForEnd());
  EXPECT_EQ(0, program.Wait());
}

TEST(Program, TakesFaultsFromTheCommandLineAndFromTheBench) {
  Program program({"--socket", "0", "--exit-with-stdin", "--fault", "terminator@1"});
  const std::uint16_t port = PortIn(program.Line());
  Client client(port);
  client.Send("*OPC?\n");
  EXPECT_EQ("1\r", client.Receive("\r"));
  program.Type("trip\nfault cut\n");
  int tries = 0;
  while (client.Ask("*IDN?") == "Kelvora,TD48142C,481000001,1.4.2" && ++tries < kTries) {
  }
  EXPECT_EQ(0, client.WaitForEnd());
  program.Type("clear-faults\n");
  std::string tripped;
  for (tries = 0; tripped.empty() && tries < kTries; ++tries) tripped = Client(port).Ask(":POW:PROT:TRIP?");
  EXPECT_EQ("1", tripped);
}

TEST(Program, TellsThePortsOfVxi11AndOfItsPortMapper) {
  Program program({"--socket", "0", "--vxi11", "0", "--portmapper", "0", "--exit-with-stdin"});
  EXPECT_NE(0, PortIn(program.Line()));
  EXPECT_NE(0, PortIn(program.Line(), "vxi11"));
  EXPECT_NE(0, PortIn(program.Line(), "portmapper"));
  program.CloseStdin();
  EXPECT_EQ(0, program.Wait());
}

TEST(Program, MapsNoPortWhenToldSo) {
  Program program({"--socket", "0", "--vxi11", "0", "--portmapper", "off", "--exit-with-stdin"});
  EXPECT_NE(0, PortIn(program.Line()));
  EXPECT_NE(0, PortIn(program.Line(), "vxi11"));
  program.CloseStdin();
  EXPECT_EQ("", program.Line());
  EXPECT_EQ(0, program.Wait());
}

TEST(Program, RefusesAPortMapperThatIsNone) {
  Program program({"--portmapper", "65536"});
  EXPECT_NE(0, program.Wait());
}

TEST(Program, RefusesAModelThatDoesNotExist) {
  Program program({"--model", "TD1"});
  EXPECT_NE(0, program.Wait());
}

}  // namespace
}  // namespace siggen
