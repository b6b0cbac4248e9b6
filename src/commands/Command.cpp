#include "commands/Command.h"

namespace quorvel {

std::string Command::plainTitle() const {
  std::string plain = title;
  std::erase(plain, '_');
  return plain;
}

} // namespace quorvel
