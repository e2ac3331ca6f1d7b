// Field tables: the fields of a record by name, in the order that files and walks need.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <type_traits>

#include "base/text.h"

namespace talvor {

template <class Record>
struct Field {
  TextView name;
  Text Record::* text;
};

template <class Record, std::size_t N>
using FieldTable = std::array<Field<Record>, N>;

// The field of exactly that name, or null. The pointer looks into the table.
template <class Record, std::size_t N>
[[nodiscard]] constexpr const Field<Record>* FindField(const FieldTable<Record, N>& table, TextView name) {
  for (const auto& field : table)
    if (field.name == name) return &field;
  return nullptr;
}

// True if every field of the first table has one of its name in the second.
template <class Inner, std::size_t N, class Outer, std::size_t M>
[[nodiscard]] constexpr bool HasAllNames(const FieldTable<Inner, N>& inner,
                                         const FieldTable<Outer, M>& outer) {
  for (const auto& field : inner)
    if (std::none_of(outer.begin(), outer.end(), [&](const auto& one) { return one.name == field.name; }))
      return false;
  return true;
}

// Copies every field of `from` into the field of the same name of `to`, where there is one.
template <class From, std::size_t N, class To, std::size_t M>
void CopyFieldsByName(const FieldTable<From, N>& fromTable, const std::type_identity_t<From>& from,
                      const FieldTable<To, M>& toTable, std::type_identity_t<To>& to) {
  for (const auto& field : fromTable)
    if (const auto* target = FindField(toTable, field.name)) to.*(target->text) = from.*(field.text);
}

}  // namespace talvor
