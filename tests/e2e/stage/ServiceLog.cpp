#include "e2e/stage/ServiceLog.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace quorvel::e2e {
namespace {

LoggedRequest parse(const std::string& line) {
  std::istringstream fields(line);
  LoggedRequest request;
  fields >> request.microseconds;
  fields.ignore(1, '\t');
  for (auto* field : {&request.method, &request.host, &request.target, &request.userAgent, &request.cookie})
    std::getline(fields, *field, '\t');
  return request;
}

} // namespace

std::vector<LoggedRequest> ServiceLog::requests() const {
  std::vector<LoggedRequest> result;
  std::ifstream file(file_);
  for (std::string line; std::getline(file, line);)
    result.push_back(parse(line));
  return result;
}

std::vector<std::string> ServiceLog::targets() const {
  std::vector<std::string> result;
  for (const auto& request : requests())
    result.push_back(request.target);
  return result;
}

std::ptrdiff_t ServiceLog::count(const std::string& target) const {
  return std::ranges::count(targets(), target);
}

} // namespace quorvel::e2e
