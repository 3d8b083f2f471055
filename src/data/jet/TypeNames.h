#pragma once

#include "data/types/FieldType.h"

#include <optional>
#include <string_view>

namespace jet {

/// A type name of CREATE TABLE.
struct NamedType {
    FieldType type;
    bool counter = false;
};

/// "Text", "Long", "YesNo" and their many synonyms, in any case; nothing for a word that names no type.
std::optional<NamedType> typeNamed(std::string_view name);

} // namespace jet
