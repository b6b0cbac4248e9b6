#pragma once

#include <string>
#include <vector>

namespace quorvel {

/// What the toolkit and the engine have to be told about the machine's graphics before they start.
class GraphicsEnvironment {
 public:
  struct Variable {
    std::string name, value;
    bool operator==(const Variable&) const = default;
  };

  /// The minor version of the GTK 4 that the program runs on, which may be newer than that it was built on.
  static unsigned runningToolkit();

  /// `root` is the folder in which the machine's `dev`, `proc` and `sys` are looked for.
  explicit GraphicsEnvironment(std::string root = "/", unsigned toolkit = runningToolkit());

  /// The variables that this machine calls for.
  std::vector<Variable> variables() const;
  /// Sets them for this process and those it starts, except where the user has set one to anything already.
  /// To be called before the toolkit starts and before there is a second thread.
  void apply() const;
  /// Keeps the emulating driver, with its compiler, out of this process, which draws nothing by it where
  /// there is no graphics hardware; what it starts finds it all the same. To be called between the two.
  void spareDriver() const;
  /// Once the toolkit has started: what is animated nowhere but on graphics hardware. Overlay scrollbars fade
  /// for seconds after each page, at full frame rate.
  void spareAnimations() const;

 private:
  std::vector<Variable> withoutGraphicsHardware() const;
  bool isGlOff() const;
  bool hasRenderNode() const;
  bool hasNvidiaDriver() const;

  std::string root_;
  unsigned toolkit_;
};

} // namespace quorvel
