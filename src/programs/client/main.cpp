#include "brand/StyleSheet.h"
#include "programs/client/FailureWindow.h"
#include "programs/client/QuorvelApp.h"
#include "startup/commandLine.h"
#include "startup/lastWords.h"
#include "startup/startToolkit.h"
#include "startup/transport.h"

#include <cstdlib>

namespace {

using namespace quorvel;

constexpr ProgramName program{QuorvelApp::identifier, "Quorvel", "quorvel",
                              "The desktop client of the Quorvel service."};

int showLastWords(const std::string& sentence) {
  if (!startToolkit(program))
    return EXIT_FAILURE;
  const auto application = Gtk::Application::create();
  application->signal_startup().connect(&installStyle);
  return application->make_window_and_run<FailureWindow>(0, nullptr, sentence);
}

} // namespace

int main(int argc, char** argv) {
  if (const auto sentence = sentenceToShow(argc, argv))
    return showLastWords(*sentence);
  if (const auto status = answerCommandLine(program, argc, argv))
    return *status;
  explainFatalErrors(&showInProgramOfItsOwn);
  refuseOutdatedTransport();
  if (!startToolkit(program))
    return EXIT_FAILURE;
  return Glib::make_refptr_for_instance(new QuorvelApp)->run(argc, argv);
}
