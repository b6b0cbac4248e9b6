#pragma once

#include <atspi/atspi-constants.h>
#include <functional>
#include <glib.h>
#include <memory>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace quorvel::e2e {

struct ForgetVariant {
  void operator()(GVariant* variant) const { g_variant_unref(variant); }
};
using Variant = std::unique_ptr<GVariant, ForgetVariant>;

/// One object of the accessibility tree, as an assistive program sees it. Each question goes to the program
/// by D-Bus and nothing is remembered. An object that has gone says "" to every question.
class Accessible {
 public:
  /// The top object of the process, once it has announced itself.
  static std::optional<Accessible> ofProcess(pid_t id);

  std::string name() const;
  AtspiRole role() const;
  bool is(AtspiStateType state) const;
  /// How far a progress bar, or whatever else has one, has come.
  std::optional<double> value() const;
  std::vector<Accessible> children() const;
  std::optional<Accessible> parent() const;

  using Choice = std::function<bool(const Accessible&)>;
  /// This object and everything below it, in reading order, except what is below one that is not to be
  /// entered. Each object costs some calls to the program: look once and keep what was found.
  std::vector<Accessible> all(const Choice& isEntered = [](const Accessible&) { return true; }) const;
  /// The first of them with this role and name.
  std::optional<Accessible> find(AtspiRole role, const std::string& name) const;

  /// Does what a click would; false when the object offers no action.
  bool activate() const;
  bool grabFocus() const;

 private:
  Accessible(std::string program, std::string path);
  explicit Accessible(const Variant& reference);
  void collect(std::vector<Accessible>& found, const Choice& isEntered) const;
  Variant ask(const char* interface, const char* method, const char* answer) const;
  Variant property(const char* interface, const char* name, const char* type) const;

  /// The program's name on the bus, and the object's path there.
  std::string program_;
  std::string path_;
};

/// The tree below an object, one line each: for the report of a failing test.
std::string describe(const Accessible& object, int depth = 0);

} // namespace quorvel::e2e
