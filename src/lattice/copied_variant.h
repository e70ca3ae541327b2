#pragma once

#include <utility>
#include <variant>

namespace kov {

/// A copy of a variant of vectors. The variant's own copy constructor is not used: in the library of g++ 12
/// it destroys what it has not made when there is no memory.
template <class... Vectors>
std::variant<Vectors...> copied(const std::variant<Vectors...>& vectors) {
  return std::visit(
      []<class Vector>(const Vector& vector) {
        Vector copy = vector;
        return std::variant<Vectors...>(std::move(copy));
      },
      vectors);
}

}  // namespace kov
