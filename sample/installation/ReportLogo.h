#pragma once

#include <span>

namespace sample {

/// The bytes of OstelReportLogo.jpg, a picture made for the sample.
std::span<const unsigned char> reportLogo();

} // namespace sample
