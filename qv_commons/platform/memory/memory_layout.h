// Layouts of the memory adapter: which views a screen has, by name.
//
//     qv_commons::memory::MemoryLayout& layout =
//         platform.resourceBundle().layouts["QV_AgeGateViewController"];
//     layout["header"].text = "Welcome";  // another text
//     layout.erase("subtitle");           // an outlet that stays unconnected
//     layout["tos"].viewClass = qv_commons::memory::ViewClass::label;  // one of the wrong class
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "qv_commons/export.h"
#include "qv_commons/platform/views.h"

namespace qv_commons::memory {

enum class ViewClass : std::uint8_t { view, label, button, datePicker, textView };

struct ViewLayout {
  ViewClass viewClass = ViewClass::view;
  std::optional<std::string> text{};  // of a label or a text view, in UTF-8
  std::optional<Color> textColor{};   // of a text view: what its text is coloured in
  std::string action{};               // the selector that a button or a date picker triggers
  bool isSelectable = true;           // of a text view: links can be chosen only if selectable
  bool isEditable = false;            // and not editable
};

using MemoryLayout = std::map<std::string, ViewLayout, std::less<>>;

// The layouts of the library's two screens.
QV_COMMONS_EXPORT MemoryLayout ageGateLayout();
QV_COMMONS_EXPORT MemoryLayout ageGateRefusedLayout();

}  // namespace qv_commons::memory
