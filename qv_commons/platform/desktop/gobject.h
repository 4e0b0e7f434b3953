// What GLib's objects are held by.
#pragma once

#include <glib-object.h>
#include <memory>

namespace qv_commons::desktop {

struct GObjectUnref {
  void operator()(void* object) const { g_object_unref(object); }
};

template <class T>
using Owned = std::unique_ptr<T, GObjectUnref>;

}  // namespace qv_commons::desktop
