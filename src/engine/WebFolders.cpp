#include "engine/WebFolders.h"

#include <glibmm/miscutils.h>

namespace quorvel {

WebFolders WebFolders::ofUser() {
  return {Glib::build_filename(Glib::get_user_data_dir(), "quorvel"),
          Glib::build_filename(Glib::get_user_cache_dir(), "quorvel")};
}

} // namespace quorvel
