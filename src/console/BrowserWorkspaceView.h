#pragma once

#include "layout/stacks.h"

namespace quorvel {

/// How a page and the agents' notes about it stand side by side: a drawn mail page and three note cards. A
/// picture only; nothing in it can be pressed.
class BrowserWorkspaceView : public VStack {
 public:
  BrowserWorkspaceView();
};

} // namespace quorvel
