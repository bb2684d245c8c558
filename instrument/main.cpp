// td481x2c-instrument: a virtual TD481X2C signal generator on the network.
#include <CLI/CLI.hpp>
#include <charconv>
#include <cstdio>
#include <optional>
#include <string_view>
#include <system_error>

#include "link/host.h"

namespace {

std::optional<std::uint16_t> PortIn(std::string_view text) {
  std::uint16_t port = 0;
  const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), port);
  if (problem != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return port;
}

int Serve(const siggen::link::HostOptions& options) {
  siggen::link::Host host(options);
  for (const auto& listener : host.listeners()) {
    std::printf("%s %s:%u\n", listener.protocol.c_str(), listener.address.c_str(), unsigned{listener.port});
  }
  std::fflush(stdout);
  host.Run();
  return 0;
}

}  // namespace

int main(int argc, char** argv) try {
  siggen::link::HostOptions options;
  options.end_on_signals = true;
  std::string model(options.identity.variant.name);
  std::uint16_t port = 5025;
  std::string port_mapper = "auto";
  std::vector<std::string> fault_texts;

  CLI::App app("A virtual TD481X2C RF signal generator");
  app.add_option("--model", model, "TD48122C, TD48142C or TD48172C")
      ->capture_default_str()
      ->check([](const std::string& name) {
        return siggen::model::VariantNamed(name) ? std::string() : "no such model: " + name;
      });
  app.add_option("--serial", options.identity.serial, "serial number")->capture_default_str();
  app.add_option("--listen", options.address, "address to listen on")->capture_default_str();
  app.add_option("--socket", port, "port of the raw socket; 0 picks a free one")->capture_default_str();
  app.add_option("--hislip", options.hislip_port,
                 "port of HiSLIP, 4880 by custom; 0 picks a free one; off unless given");
  app.add_option("--vxi11", options.vxi11_port, "port of VXI-11's core channel; 0 picks a free one; off unless given");
  app.add_option("--portmapper", port_mapper,
                 "who tells VXI-11 clients its port: auto (the system's port mapper, else our own on port 111), "
                 "off, or the port of our own; 0 picks a free one")
      ->capture_default_str()
      ->check([](const std::string& text) {
        return text == "auto" || text == "off" || PortIn(text) ? std::string() : "not auto, off or a port: " + text;
      });
  app.add_flag("--exit-with-stdin", options.end_with_stdin,
               "end at the end of standard input; its lines are what happens at the bench (see README)");
  app.add_option("--fault", fault_texts,
                 "delay:MS, drop, reset, cut, garbage, terminator or block, with @N for the "
                 "N-th answer only")
      ->check([](const std::string& text) {
        return siggen::link::ParseFault(text) ? std::string() : "no such fault: " + text;
      });
  CLI11_PARSE(app, argc, argv);

  options.identity.variant = *siggen::model::VariantNamed(model);
  options.socket_port = port;
  options.map_port = port_mapper != "off";
  if (options.map_port && port_mapper != "auto") options.port_mapper = PortIn(port_mapper);
  for (const std::string& text : fault_texts) options.faults.push_back(*siggen::link::ParseFault(text));
  return Serve(options);
} catch (const std::exception& problem) {
  std::fprintf(stderr, "td481x2c-instrument: %s\n", problem.what());
  return 1;
}
