#include "engine/PageSandbox.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <unistd.h>
#include <utility>

namespace quorvel {
namespace {

namespace fs = std::filesystem;

bool isSet(const char* variable) {
  const char* value = std::getenv(variable);
  return value && *value;
}

bool looksLikeSnap() {
  return isSet("SNAP") && isSet("SNAP_NAME") && isSet("SNAP_REVISION");
}

/// An empty file of this name is no Flatpak's.
bool isFlatpakInfo(const fs::path& path) {
  std::ostringstream text; // which has nothing where it cannot be read
  text << std::ifstream(path).rdbuf();
  return text.str().find("[Application]") != std::string::npos;
}

std::string listed(const std::vector<std::string>& names) {
  std::string text = names.front();
  for (std::size_t i = 1; i < names.size(); ++i)
    text += (i + 1 == names.size() ? " and " : ", ") + names[i];
  return text;
}

std::string warningOf(const std::vector<std::string>& missing) {
  return "Pages are not confined and could reach your files: the web engine runs them without " +
         listed(missing) + ". " + whyUnconfined();
}

} // namespace

std::vector<std::string> missingFromSandbox(const SystemProcess& page, const SystemProcess& program) {
  std::vector<std::string> missing;
  if (page.mountNamespace() == program.mountNamespace())
    missing.emplace_back("a mount namespace");
  if (page.processNamespaces() <= program.processNamespaces())
    missing.emplace_back("a process namespace");
  if (!page.isFiltered())
    missing.emplace_back("a filter of system calls");
  return page.exists() ? missing : std::vector<std::string>();
}

bool isInsideOuterSandbox(const std::string& root) {
  return SystemProcess::ourselves().isFiltered() &&
         (isFlatpakInfo(fs::path(root) / ".flatpak-info") || looksLikeSnap());
}

std::string whyUnconfined(const std::string& root) {
  const auto exists = [&root](const char* file) {
    std::error_code unknown;
    return fs::exists(fs::path(root) / file, unknown);
  };
  if (isSet("WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS"))
    return "The variable WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS tells it to.";
  if (exists(".flatpak-info"))
    return "Because of the file /.flatpak-info it takes them for confined already.";
  if (looksLikeSnap())
    return "Because of the variables SNAP, SNAP_NAME and SNAP_REVISION it takes them for confined already.";
  if (exists("run/.containerenv"))
    return "In this container bubblewrap does not work.";
  return "";
}

PageSandbox::PageSandbox(std::function<void(const std::string&)> onUnconfined)
    : onUnconfined_(std::move(onUnconfined)) {}

void PageSandbox::look() {
  if (hasLooked_ || isInsideOuterSandbox())
    return;
  const auto program = SystemProcess::ourselves();
  std::vector<std::string> missing;
  for (const auto& page : program.descendants("WebKitWebProcess")) {
    hasLooked_ = true;
    if (missing.empty())
      missing = missingFromSandbox(page, program);
  }
  if (!missing.empty()) {
    std::cerr << "Quorvel: " << warningOf(missing) << std::endl;
    onUnconfined_(warningOf(missing));
  } else if (hasLooked_ && ::geteuid() == 0) {
    std::cerr << "Quorvel runs as root, and so do its pages inside their sandbox; an ordinary user's lack "
                 "such rights."
              << std::endl;
  }
}

} // namespace quorvel
