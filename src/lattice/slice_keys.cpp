#include "lattice/slice_keys.h"

namespace kov {

char character_looked_up(const GridKey& key) {
  if (key.name != GridKey::Name::character) return '\0';
  const char c = key.character;
  return 'a' <= c && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool is_left_to_editor(const GridKey& key, std::string_view typed_characters) {
  switch (key.name) {
    case GridKey::Name::character:
      return typed_characters.find(character_looked_up(key)) != std::string_view::npos;
    case GridKey::Name::enter:
    case GridKey::Name::escape:
      return false;
    default:
      return true;
  }
}

int step_of(const GridKey& key) {
  const char c = character_looked_up(key);
  return c == 'P' ? 1 : c == 'M' ? -1 : 0;
}

}  // namespace kov
