#include "interact/grid_keys.h"

namespace kov {

char upper_character(const GridKey& key) {
  if (key.name != GridKey::Name::character) return '\0';
  const char c = key.character;
  return 'a' <= c && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool passes_to_editor(const GridKey& key, std::string_view admitted) {
  switch (key.name) {
    case GridKey::Name::character:
      return admitted.find(upper_character(key)) != std::string_view::npos;
    case GridKey::Name::enter:
    case GridKey::Name::escape:
      return false;
    default:
      return true;
  }
}

int step_of(const GridKey& key) {
  const char c = upper_character(key);
  return c == 'P' ? 1 : c == 'M' ? -1 : 0;
}

}  // namespace kov
