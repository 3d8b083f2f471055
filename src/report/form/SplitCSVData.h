#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Splits a line into `fields` by sDelimiter and removes every sDataEncapsuler from each of them, where one is given.
/// An empty line leaves `fields` as they are; without a delimiter the whole line is one field.
void SplitCSVData(std::string_view sData, std::string_view sDelimiter, std::string_view sDataEncapsuler,
                  std::vector<std::string>& fields);
