#include "batch/key_names.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace kov {
namespace {

template <class Value>
struct Named {
  std::string_view name;
  Value value;
};

constexpr std::array<Named<GridKey::Name>, 9> keys{{
    {"Enter", GridKey::Name::enter},
    {"Esc", GridKey::Name::escape},
    {"Tab", GridKey::Name::tab},
    {"Up", GridKey::Name::up},
    {"Down", GridKey::Name::down},
    {"PageUp", GridKey::Name::page_up},
    {"PageDown", GridKey::Name::page_down},
    {"Ctrl+PageUp", GridKey::Name::first_page},
    {"Ctrl+PageDown", GridKey::Name::last_page},
}};

constexpr std::array<Named<GridClick>, 3> clicks{{
    {"left", GridClick::left},
    {"right", GridClick::right},
    {"double", GridClick::double_click},
}};

template <class Value, std::size_t size>
std::optional<Value> value_of(const std::array<Named<Value>, size>& table, std::string_view name) {
  const auto found =
      std::find_if(table.begin(), table.end(), [&](const Named<Value>& row) { return row.name == name; });
  if (found == table.end()) return std::nullopt;
  return found->value;
}

}  // namespace

std::optional<GridKey> key_named(std::string_view name) {
  if (name.size() == 1) return GridKey::of(name.front());
  const auto key = value_of(keys, name);
  if (!key) return std::nullopt;
  return GridKey{*key};
}

std::optional<GridClick> click_named(std::string_view name) { return value_of(clicks, name); }

}  // namespace kov
