#pragma once

#include <string_view>

/// Of which areas the groups of an account are made, and where these lie.
struct GroupType {
    std::string_view shapeTable;
    std::string_view referenceTable;
    std::string_view referenceColumn;
};

/// By DataType: 3 postcode districts, 1 CSGs, any other TV regions.
const GroupType& groupTypeOf(long DataType);

/// The kind of reference in the code that Callscope reads.
int joinedByOf(long DataType);
