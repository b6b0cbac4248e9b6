#pragma once

#include <glib-object.h>
#include <memory>

namespace quorvel {

struct GObjectUnref {
  void operator()(gpointer object) const { g_object_unref(object); }
};

/// Owns one reference to an object of a C library that has no C++ binding.
template <class Object>
using GObjectPointer = std::unique_ptr<Object, GObjectUnref>;

/// One more reference to an object that somebody else owns; nothing for nothing.
template <class Object>
GObjectPointer<Object> referenceTo(Object* object) {
  if (object)
    g_object_ref(object);
  return GObjectPointer<Object>(object);
}

} // namespace quorvel
