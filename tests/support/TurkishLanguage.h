#pragma once

#include "support/TemporaryFolder.h"

#include <clocale>
#include <cstdlib>
#include <stdexcept>

namespace quorvel::tests {

/// The desktop's language is Turkish, whose capital of "i" has a dot, for as long as this lives.
class TurkishLanguage {
 public:
  TurkishLanguage() {
    const auto compile = "localedef -i tr_TR -f UTF-8 " + (folder_.path / name).string();
    if (std::system(compile.c_str()) != 0 || setenv("LOCPATH", folder_.path.c_str(), true) != 0 ||
        !std::setlocale(LC_ALL, name))
      throw std::runtime_error("there is no Turkish to be had; the package \"locales\" brings it");
  }
  ~TurkishLanguage() {
    unsetenv("LOCPATH");
    std::setlocale(LC_ALL, before_.c_str());
  }
  TurkishLanguage(const TurkishLanguage&) = delete;
  TurkishLanguage& operator=(const TurkishLanguage&) = delete;

 private:
  static constexpr auto name = "tr_TR.UTF-8";
  TemporaryFolder folder_;
  std::string before_ = std::setlocale(LC_ALL, nullptr);
};

} // namespace quorvel::tests
