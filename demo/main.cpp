#include "DemoService.h"

#include <giomm/init.h>
#include <glibmm/main.h>
#include <iostream>

namespace {

int complain(const char* sentence, int status) {
  std::cerr << "quorvel-demo-service: " << sentence << "\n";
  return status;
}

} // namespace

int main(int argc, char** argv) {
  using namespace quorvel::demo;
  Gio::init();
  try {
    const auto options = parseServiceOptions(argc, argv);
    if (options.tellsHost) {
      std::cout << std::string_view(QUORVEL_ORIGIN).substr(std::string_view("https://").size()) << "\n";
      return 0;
    }
    const DemoService service(options);
    std::cout << "listening on https://" << options.address << ":" << options.port << std::endl;
    Glib::MainLoop::create()->run();
  } catch (const UsageError& error) {
    return complain(error.what(), 2);
  } catch (const std::exception& error) {
    return complain(error.what(), 1);
  }
}
